// What the menus of the designer's window do with fields and pictures.

#include <vector>

#include "designer/field_list.h"
#include "designer/field_properties.h"
#include "designer/modelo_print.h"

namespace qm::designer {

void ModeloPrint::MenuField_Click(int menu, int item) {
  if (menu < 0 || static_cast<std::size_t>(menu) >= menus_.size()) return;
  const auto& items = menus_[static_cast<std::size_t>(menu)].items;
  if (item < 0 || static_cast<std::size_t>(item) >= items.size()) return;
  CREAR_NEW_Campo(items[static_cast<std::size_t>(item)]);
}

// A fixed text and its like are typed by the user, whatever else the entry's caption says.
void ModeloPrint::CREAR_NEW_Campo(std::u16string_view caption) {
  Guarded([&] {
    std::u16string text(caption);
    if (text.starts_with(u'#') || text.starts_with(u'|'))
      text = text.substr(0, 1) + environment_.dialogs.AskText(u"Mensaje", {}, u"");
    document_.Edit([&](Layout& layout) { AddField(layout, text); });
  });
}

void ModeloPrint::v_Eliminar_Click() {
  Guarded([&] {
    const int selected = document_.Selected();
    const bool logo = document_.LogoSelected();
    if (selected <= 0 && !logo) return;
    document_.Edit([&](Layout& layout) {
      RemoveField(layout, selected);
      if (logo) layout.logo = nullptr;
    });
    canvas_.HideHandles();
  });
}

void ModeloPrint::V_Propiedades_Click() {
  const int selected = document_.Selected();
  if (selected <= 0) return;
  Guarded([&] {
    FieldProperties properties(document_, selected, print_.printers, CurrentPrinter(), environment_.dialogs,
                               print_.locale);
    view_.ShowProperties(properties);
  });
}

void ModeloPrint::prop_Click(int index) {
  Guarded([&] { propertyStore_.Copy(document_, index, environment_.dialogs); });
}

void ModeloPrint::pegar_Click() {
  Guarded([&] { propertyStore_.Paste(document_); });
}

void ModeloPrint::CopyField() {
  Guarded([&] { fieldClipboard_.Copy(document_); });
}

void ModeloPrint::PasteField() {
  Guarded([&] {
    const Layout before = document_.Current();
    fieldClipboard_.Paste(document_);
    if (document_.Current() != before) canvas_.ShowHandlesOf(document_.Selected());
  });
}

void ModeloPrint::EditImagen_Click() {
  Guarded([&] { images_.EditImagen(); });
}

void ModeloPrint::m_imagenes_Click(int index) {
  Guarded([&] {
    if (index == 0) images_.InsertaImagen();
    if (index == 1) images_.Logotipo();
    if (index == 3) images_.EliminarFondo();
  });
}

void ModeloPrint::Fotx_DblClick() {
  Guarded([&] { images_.Fotx_DblClick(); });
}

void ModeloPrint::Undo() { GoTo(&Document::Undo); }
void ModeloPrint::Redo() { GoTo(&Document::Redo); }

void ModeloPrint::GoTo(bool (Document::*step)()) {
  Guarded([&] {
    const std::u16string printer = document_.Current().printer;
    if (!(document_.*step)()) return;
    if (document_.Current().printer != printer) ShowPrinters(document_.Current().printer);
    view_.MarksChanged();
  });
}

}  // namespace qm::designer
