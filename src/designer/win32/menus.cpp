#include "designer/win32/menus.h"

#include <string>
#include <string_view>

#include "platform/win32/errors.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::Wide;

constexpr int kMostFields = 0xFFFF - kFirstField;  // of a command's 16 bits
constexpr int kEditarPosition = 1;
constexpr int kInsertarPosition = 2;

struct Item {
  int id;  // 0 for a separator
  const wchar_t* caption;
};

constexpr Item kArchivo[] = {{kNuevo, L"&Nuevo"}, {kGuardarComo, L"&Guardar Como"}, {kSalir, L"&Salir"}};
constexpr Item kEditar[] = {
    {kEliminar, L"Eliminar"}, {kPropiedades, L"&Propiedades"}, {kEditImagen, L"&Imagen"}};
constexpr Item kCopiar[] = {{kProp, L"&Top"},        {kProp + 1, L"&Left"},
                            {kProp + 2, L"&Width"},  {kProp + 3, L"&Height"},
                            {kProp + 4, L"&Fuente"}, {kProp + 5, L"&Seleccionar Propiedades"}};
constexpr Item kImagen[] = {{kImagenes, L"Imagen de Fondo"},
                            {kImagenes + 1, L"Logotipo"},
                            {0, nullptr},
                            {kImagenes + 3, L"Eliminar Imagen de Fondo"}};

OwnedMenu Made(HMENU menu) {
  if (!menu) platform::win32::Throw(runtime::ErrorNumber::OutOfMemory);
  return OwnedMenu(menu);
}

template <std::size_t N>
OwnedMenu MenuOf(const Item (&items)[N]) {
  OwnedMenu menu = Made(CreatePopupMenu());
  for (const Item& item : items)
    AppendMenuW(menu.Get(), item.id ? MF_STRING : MF_SEPARATOR, static_cast<UINT_PTR>(item.id), item.caption);
  return menu;
}

void Append(HMENU menu, OwnedMenu below, const wchar_t* caption) {
  if (AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(below.Get()), caption)) (void)below.Release();
}

// As it stands: an ampersand in a field's name marks no access key.
std::u16string Literal(std::u16string_view caption) {
  std::u16string literal;
  for (const char16_t letter : caption) {
    if (letter == u'&') literal += letter;
    literal += letter == u'\t' ? u' ' : letter;  // a tab would begin the column of keys
  }
  return literal;
}

bool HasItems(const data::PickerMenu& menu) { return menu.items.size() > 1 || !menu.items.front().empty(); }

OwnedMenu MenuOfFields(const data::PickerMenu& fields, int firstId) {
  OwnedMenu menu = Made(CreatePopupMenu());
  if (!HasItems(fields)) return menu;
  int id = firstId;
  for (const std::u16string& item : fields.items) {
    if (id - kFirstField >= kMostFields) break;
    AppendMenuW(menu.Get(), MF_STRING, static_cast<UINT_PTR>(id++), Wide(Literal(item)));
  }
  return menu;
}

bool PickField(ModeloPrint& presenter, int id) {
  int place = id - kFirstField;
  const data::PickerMenus& menus = presenter.Menus();
  for (std::size_t menu = 0; menu < menus.size(); ++menu) {
    const int count = static_cast<int>(menus[menu].items.size());
    if (place < count) {
      presenter.MenuField_Click(static_cast<int>(menu), place);
      return true;
    }
    place -= count;
  }
  return false;
}

struct Action {
  int id;
  void (*run)(ModeloPrint&);
};

constexpr Action kActions[] = {
    {kNuevo, [](ModeloPrint& presenter) { presenter.arch_Click(0); }},
    {kGuardarComo, [](ModeloPrint& presenter) { presenter.arch_Click(1); }},
    {kSalir, [](ModeloPrint& presenter) { presenter.arch_Click(2); }},
    {kEliminar, [](ModeloPrint& presenter) { presenter.v_Eliminar_Click(); }},
    {kPropiedades, [](ModeloPrint& presenter) { presenter.V_Propiedades_Click(); }},
    {kEditImagen, [](ModeloPrint& presenter) { presenter.EditImagen_Click(); }},
    {kProp, [](ModeloPrint& presenter) { presenter.prop_Click(0); }},
    {kProp + 1, [](ModeloPrint& presenter) { presenter.prop_Click(1); }},
    {kProp + 2, [](ModeloPrint& presenter) { presenter.prop_Click(2); }},
    {kProp + 3, [](ModeloPrint& presenter) { presenter.prop_Click(3); }},
    {kProp + 4, [](ModeloPrint& presenter) { presenter.prop_Click(4); }},
    {kProp + 5, [](ModeloPrint& presenter) { presenter.prop_Click(5); }},
    {kPegar, [](ModeloPrint& presenter) { presenter.pegar_Click(); }},
    {kImagenes, [](ModeloPrint& presenter) { presenter.m_imagenes_Click(0); }},
    {kImagenes + 1, [](ModeloPrint& presenter) { presenter.m_imagenes_Click(1); }},
    {kImagenes + 3, [](ModeloPrint& presenter) { presenter.m_imagenes_Click(3); }},
    {kGrabar, [](ModeloPrint& presenter) { presenter.Grabar(); }},
    {kImprimirPrueba, [](ModeloPrint& presenter) { presenter.ImprimirPrueba(); }},
    {kElegirPapel, [](ModeloPrint& presenter) { presenter.ElegirPapel_Click(); }},
    {kTamañoPapel, [](ModeloPrint& presenter) { presenter.ElegirPapel_Click(); }},
};

}  // namespace

OwnedMenu NewMenuBar(const data::PickerMenus& fields) {
  OwnedMenu bar = Made(CreateMenu());
  Append(bar.Get(), MenuOf(kArchivo), L"&Archivo");

  OwnedMenu editar = MenuOf(kEditar);
  Append(editar.Get(), MenuOf(kCopiar), L"&Copiar Propiedades");
  AppendMenuW(editar.Get(), MF_STRING, kPegar, L"&Pegar Propiedades");
  Append(bar.Get(), std::move(editar), L"&Editar");

  OwnedMenu insertar = Made(CreatePopupMenu());
  Append(insertar.Get(), MenuOf(kImagen), L"&Imagen");
  Append(bar.Get(), std::move(insertar), L"Insertar");

  int id = kFirstField;
  for (const data::PickerMenu& menu : fields) {
    if (menu.visible) Append(bar.Get(), MenuOfFields(menu, id), Wide(Literal(menu.caption)));
    id += static_cast<int>(menu.items.size());
  }
  return bar;
}

HMENU PopUpOf(HMENU menuBar, PopUp menu) {
  return GetSubMenu(menuBar, menu == PopUp::Editar ? kEditarPosition : kInsertarPosition);
}

bool RunCommand(ModeloPrint& presenter, int id) {
  if (id >= kFirstField) return PickField(presenter, id);
  for (const Action& action : kActions) {
    if (action.id != id) continue;
    action.run(presenter);
    return true;
  }
  return false;
}

}  // namespace qm::designer::win32
