#pragma once
// The designer's window as a presenter: opening, models, page size, menus, printers, saving, the save prompt
// and the test print. The window passes each event to the operation of its name.
// Units:  centimetres in the boxes, twips in the layout.
// Errors: none leave an operation; each is told to the user.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "data/picker_menus.h"
#include "designer/canvas.h"
#include "designer/document.h"
#include "designer/environment.h"
#include "designer/field_clipboard.h"
#include "designer/images.h"
#include "designer/last_copy.h"
#include "designer/model_store.h"
#include "designer/property_store.h"
#include "designer/view.h"
#include "runtime/error.h"

namespace qm::designer {

class ModeloPrint {
 public:
  // The model number that the host named selects the first model shown; one outside 1 to 9 shows model 1.
  // The designer works on the model file of this moment, also when the host names another one later.
  ModeloPrint(const Environment& environment, View& view, const data::PickerMenus& menus,
              std::int16_t numeroModelo);
  ModeloPrint(const ModeloPrint&) = delete;
  ModeloPrint& operator=(const ModeloPrint&) = delete;
  ~ModeloPrint() = default;

  [[nodiscard]] Document& TheDocument() { return document_; }
  [[nodiscard]] Canvas& TheCanvas() { return canvas_; }
  [[nodiscard]] const data::PickerMenus& Menus() const { return menus_; }
  [[nodiscard]] std::int16_t Numero() const { return numero_; }

  void Form_Load();
  // Windows is shutting down: the window unloads itself at once.
  void Form_QueryUnload(int unloadMode);
  // The save prompt. False when the user wanted to save and that failed: the window had better stay.
  [[nodiscard]] bool Form_Unload() { return CheckModificado(); }

  // A text that is the box's already, as one that the window has just put there, is no change.
  void Ancho_Change(std::u16string_view text);
  void Alto_Change(std::u16string_view text);
  void List_Copias_Change(std::u16string_view text);
  void ChEsEtiqueta_Click(bool ticked);
  void ElegirPapel_Click();

  void Grabar() { SaveFileData(); }  // toolbar and Ctrl+S
  void ImprimirPrueba();
  void ModelChosen(int position);                // toolbar list 0, from 0
  void PrinterChosen(std::u16string_view name);  // toolbar list 1

  void arch_Click(int index);  // 0 Nuevo, 1 Guardar Como, 2 Salir
  void v_Eliminar_Click();     // and Del
  void V_Propiedades_Click();  // and Enter, and a double click on a field
  void EditImagen_Click();
  void prop_Click(int index);  // 0 to 5
  void pegar_Click();
  void m_imagenes_Click(int index);  // 0 background, 1 logo, 3 remove the background
  void Fotx_DblClick();
  void MenuField_Click(int menu, int item);
  void Undo();
  void Redo();
  void CopyField();  // Ctrl+C and Ctrl+V
  void PasteField();

  // The number under which the model will be saved stays.
  void CargarModelo(std::int16_t numero);
  void CREAR_NEW_Campo(std::u16string_view caption);
  bool CheckModificado();  // false when saving failed
  bool SaveFileData();     // false when it failed
  void AjustarPageSize(float widthCm, float heightCm);
  void CargarImpresoras(std::u16string_view name);

 private:
  // Runs an operation and tells of its error; false when there was one.
  bool Guarded(const std::function<void()>& operation);

  void Load(std::int16_t numero);
  [[nodiscard]] std::optional<model::ModelTexts> FindModel(std::int16_t numero);
  void MendFile();
  void Save();
  void Nuevo();
  void GuardarComo();
  void ShowPrinters(std::u16string_view name);
  [[nodiscard]] std::u16string CurrentPrinter();
  void BoxesChanged(std::u16string_view ancho, std::u16string_view alto);
  void EditPageSize(const std::function<TooLarge(Layout&)>& change);
  void Tell(TooLarge tooLarge);
  void GoTo(bool (Document::*step)());
  [[nodiscard]] std::u16string Mensaje();

  model::ModelFile modelFile_;
  print::Environment print_;
  Environment environment_;
  View& view_;
  data::PickerMenus menus_;
  Document document_;
  Canvas canvas_;
  Images images_;
  LastCopy lastCopy_;
  PropertyStore propertyStore_;
  FieldClipboard fieldClipboard_;
  std::int16_t numero_;
  bool loading_ = false;
  // Why the model could not be read. What is not on the canvas must not be saved over.
  std::optional<runtime::RuntimeError> unread_;
};

}  // namespace qm::designer
