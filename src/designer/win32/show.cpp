#include "designer/win32/show.h"

#include "designer/win32/modelo_print_window.h"
#include "platform/win32/errors.h"
#include "platform/win32/other_windows.h"

namespace qm::designer::win32 {
namespace {

BOOL CALLBACK IsNoDesigner(HWND window, LPARAM found) noexcept {
  wchar_t name[std::size(ModeloPrintWindow::kClassName) + 1];
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  if (std::wstring_view(name) != ModeloPrintWindow::kClassName) return TRUE;
  *reinterpret_cast<bool*>(found) = true;
  return FALSE;
}

}  // namespace

void RequireNotShown() {
  bool shown = false;
  EnumThreadWindows(GetCurrentThreadId(), IsNoDesigner, reinterpret_cast<LPARAM>(&shown));
  if (shown) platform::win32::Throw(runtime::ErrorNumber::FormAlreadyShown);
}

void ShowModeloPrint(const Environment& environment, const data::PickerMenus& menus,
                     std::int16_t numeroModelo) {
  RequireNotShown();
  const platform::win32::ActiveAgain host;
  ModeloPrintWindow window(environment, menus, numeroModelo);
  const platform::win32::OtherWindows others(nullptr);  // enabled again before the window goes
  window.Open();
  RunModal(window);
}

}  // namespace qm::designer::win32
