// A mail sender that sends nothing: it writes a line with its command line, how its window was to be shown
// and its current folder to the file of its own name with ".log" in place of ".exe", in UTF-8. An argument
// "espera" makes it take its time first, so that others can see whether they are waited for.

#include <windows.h>

#include <string>

namespace {

constexpr DWORD kItsTime = 700;  // milliseconds

std::string ToUtf8(const std::wstring& text) {
  std::string bytes(text.size() * 3, '\0');
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

std::wstring LogPath() {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring log(path);
  return log.replace(log.size() - 4, 4, L".log");
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int show) {
  const std::wstring commandLine = GetCommandLineW();
  if (commandLine.find(L"espera") != std::wstring::npos) Sleep(kItsTime);
  wchar_t folder[MAX_PATH] = L"";
  GetCurrentDirectoryW(MAX_PATH, folder);
  const std::string line = ToUtf8(commandLine + L"|" + std::to_wstring(show) + L"|" + folder + L"\n");

  HANDLE file = INVALID_HANDLE_VALUE;
  while ((file = CreateFileW(LogPath().c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr)) == INVALID_HANDLE_VALUE) {
    if (GetLastError() != ERROR_SHARING_VIOLATION) return 1;
    Sleep(5);  // another one is writing its line
  }
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return 0;
}
