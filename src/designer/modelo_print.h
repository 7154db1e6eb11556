#pragma once
// The designer's window as a presenter: opening, models, page size, menus, printers, saving, the save prompt
// and the test print. The window passes each event to the operation of its name.
// Units:  centimetres in the boxes, twips in the layout.
// Errors: those of the model file and of printing leave the operation; whoever calls shows them.

#include <cstdint>
#include <string>
#include <string_view>

#include "data/picker_menus.h"
#include "designer/canvas.h"
#include "designer/document.h"
#include "designer/environment.h"
#include "designer/view.h"

namespace qm::designer {

class ModeloPrint {
 public:
  // The model number that the host named selects the first model shown; one outside 1 to 9 shows model 1.
  ModeloPrint(const Environment& environment, View& view, const data::PickerMenus& menus,
              std::int16_t numeroModelo);

  [[nodiscard]] Document& TheDocument() { return document_; }
  [[nodiscard]] Canvas& TheCanvas() { return canvas_; }
  [[nodiscard]] const data::PickerMenus& Menus() const { return menus_; }

  void Form_Load();
  void Form_Unload();  // the save prompt

  void Ancho_Change(std::u16string_view text);
  void Alto_Change(std::u16string_view text);
  void List_Copias_Change(std::u16string_view text);
  void ChEsEtiqueta_Click(bool ticked);
  void ElegirPapel_Click();

  void Grabar();  // toolbar and Ctrl+S
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

  void CargarModelo(std::int16_t numero);
  void CREAR_NEW_Campo(std::u16string_view caption);
  void CheckModificado();
  void SaveFileData();
  void AjustarPageSize(float widthCm, float heightCm);
  void CargarImpresoras(std::u16string_view name);

 private:
  Environment environment_;
  View& view_;
  data::PickerMenus menus_;
  Document document_;
  Canvas canvas_;
  std::int16_t numero_;
  bool loading_ = false;
};

}  // namespace qm::designer
