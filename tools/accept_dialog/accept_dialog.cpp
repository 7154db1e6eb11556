// accept_dialog TITLE [SECONDS]: waits for a dialog of that title of any program and presses its OK button,
// as a user would who is content with what it offers. Exits 1 when none has come after that time (default
// 60).
#include <windows.h>

#include <cstdlib>

int wmain(int count, wchar_t** arguments) {
  if (count < 2) return 2;
  constexpr DWORD kPauseMilliseconds = 20;
  const ULONGLONG end =
      GetTickCount64() + 1000ULL * static_cast<ULONGLONG>(count > 2 ? _wtoi(arguments[2]) : 60);
  while (GetTickCount64() < end) {
    const HWND dialog = FindWindowW(L"#32770", arguments[1]);
    const HWND ok = dialog && IsWindowVisible(dialog) ? GetDlgItem(dialog, IDOK) : nullptr;
    if (ok)
      return PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), reinterpret_cast<LPARAM>(ok)) ? 0
                                                                                                          : 1;
    Sleep(kPauseMilliseconds);
  }
  return 1;
}
