// clipboard_user PROGRAM ARGS...: runs a program and meanwhile copies a picture of one black dot to the
// clipboard over and over, as some program of the user's might at any time. Exits with the program's code.
#include <windows.h>

#include <cwchar>
#include <string>

namespace {

bool CopyDot() {
  const HBITMAP dot = CreateBitmap(1, 1, 1, 1, nullptr);
  const HWND owner =
      CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  bool copied = false;
  if (OpenClipboard(owner)) {
    EmptyClipboard();
    copied = SetClipboardData(CF_BITMAP, dot) != nullptr;
    CloseClipboard();
  }
  if (!copied) DeleteObject(dot);
  DestroyWindow(owner);
  return copied;
}

}  // namespace

int wmain() {
  // The rest of the own command line is the other's.
  const wchar_t* command = GetCommandLineW();
  const wchar_t end = *command == L'"' ? *command++ : L' ';
  command = std::wcschr(command, end);
  if (!command) return 2;
  std::wstring rest(command + 1);
  rest.erase(0, rest.find_first_not_of(L' '));
  STARTUPINFOW how{};
  how.cb = sizeof how;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, rest.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &how, &process))
    return 2;
  while (WaitForSingleObject(process.hProcess, 0) == WAIT_TIMEOUT)
    if (!CopyDot()) Sleep(1);
  DWORD code = 2;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(code);
}
