#pragma once
// The properties of one field as the dialog CONFMEN edits them: its lists, the working copy that the sample
// shows, and applying it. The field is changed on acceptance only, in one step of undo.
// Units:  twips in the position boxes, points in Tamaño.
// Errors: none of its own; a printer that cannot be asked offers no fonts.
// The dialog passes each event to the operation of its name and shows what this holds.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "designer/document.h"
#include "platform/dialogs.h"
#include "platform/printers.h"
#include "runtime/locale.h"

namespace qm::designer {

// Entries and selection of a list; -1 where none is selected.
struct Choice {
  std::vector<std::u16string> entries;
  int selected = -1;

  [[nodiscard]] bool Has(int position) const {
    return position >= 0 && static_cast<std::size_t>(position) < entries.size();
  }
};

// The sample text box LbL_Men.
struct Sample {
  std::u16string tag;
  std::u16string text;
  bool enabled = false;  // a fixed text, which can be typed here
  FieldFont font;
};

class FieldProperties {
 public:
  // The field's index in the document; fonts are those of the printer of that name.
  FieldProperties(Document& document, int index, platform::Printers& printers, std::u16string_view printer,
                  platform::Dialogs& dialogs, runtime::Locale locale);

  [[nodiscard]] const Choice& FuenList() const { return fuenList_; }
  [[nodiscard]] const Choice& EstiloList() const { return estiloList_; }
  [[nodiscard]] const Choice& TamañoList() const { return tamañoList_; }
  [[nodiscard]] const Choice& Justificar() const { return justificar_; }
  [[nodiscard]] const Choice& Formato() const { return formato_; }
  [[nodiscard]] const std::u16string& NombreFuente() const { return nombreFuente_; }
  [[nodiscard]] const std::u16string& Tamaño() const { return tamaño_; }
  [[nodiscard]] bool Subrayado() const { return subrayado_; }
  [[nodiscard]] bool Todos() const { return todos_; }
  // tLeft, tTop, tWidth, tHeight
  static constexpr std::size_t kBoxes = 4;
  [[nodiscard]] const std::u16string& BoxText(std::size_t which) const { return boxes_[which]; }
  [[nodiscard]] const Sample& LbL_Men() const { return sample_; }
  [[nodiscard]] std::int32_t NombreColor() const { return sample_.font.foreColor; }

  void FuenList_Click(int position);
  void EstiloList_Click(int position);
  void TamañoList_Click(int position);
  void Tamaño_Change(std::u16string_view text);
  void Subrayado_Click(bool ticked);
  void Justificar_Click(int position);
  void Formato_Click(int position);
  void Todos_Click(bool ticked) { todos_ = ticked; }
  void Box_Change(std::size_t which, std::u16string_view text) { boxes_[which] = text; }
  void LbL_Men_Change(std::u16string_view text);
  void Command2_Click();  // the colour

  void AplicaValores();

 private:
  void FillLists(platform::Printers& printers, std::u16string_view printer);
  void CARGA_CAMBIOS(const Field& field);
  void SetFonts();
  [[nodiscard]] Field Applied(Field field) const;

  Document& document_;
  int index_;
  platform::Dialogs& dialogs_;
  runtime::Locale locale_;

  Choice fuenList_;
  Choice estiloList_;
  Choice tamañoList_;
  Choice justificar_;
  Choice formato_;
  std::u16string nombreFuente_;
  std::u16string tamaño_;
  bool subrayado_ = false;
  bool todos_ = false;
  std::array<std::u16string, kBoxes> boxes_;
  Sample sample_;
};

}  // namespace qm::designer
