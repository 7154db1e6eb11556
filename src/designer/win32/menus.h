#pragma once
// The menus of the designer's window: its menu bar, and two of its menus also as pop-ups.

#include "data/picker_menus.h"
#include "designer/modelo_print.h"
#include "platform/win32/handles.h"

namespace qm::designer::win32 {

struct MenuRule : platform::win32::NullHandle<HMENU> {
  static void Close(HMENU menu) { DestroyMenu(menu); }
};
using OwnedMenu = platform::win32::Owned<MenuRule>;

// Ids of commands, from menus and toolbar alike. The entries of the field-picker menus follow from
// kFirstField on, menu after menu.
enum Command : int {
  kNuevo = 100,
  kGuardarComo,
  kSalir,
  kEliminar = 110,
  kPropiedades,
  kEditImagen,
  kProp = 120,  // to 125
  kPegar = 130,
  kImagenes = 140,  // to 143, without the separator 142
  kGrabar = 150,
  kImprimirPrueba,
  kElegirPapel,  // beside the page size
  kTamañoPapel,  // in the toolbar
  kFirstField = 1000,
};

[[nodiscard]] OwnedMenu NewMenuBar(const data::PickerMenus& fields);
[[nodiscard]] HMENU PopUpOf(HMENU menuBar, PopUp menu);

// False when it is none of these.
bool RunCommand(ModeloPrint& presenter, int id);

}  // namespace qm::designer::win32
