// store_kills store FILE        stores the file for ever, in turn with few and with many records
// store_kills drive COUNT FILE  starts and kills such a host COUNT times; the file must always be one of the
// two Prints how often a host died in the middle of a store (a file of its own was left beside).

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/win32/files.h"
#include "recordfile/codec.h"
#include "recordfile/record_file.h"
#include "runtime/error.h"

namespace {

using qm::platform::win32::Win32Files;
using qm::recordfile::RecordFile;

constexpr int kRecords = 400;

std::u16string Text(const wchar_t* text) {
  const std::wstring_view view(text);
  return {view.begin(), view.end()};
}

// Both states have the same records; the texts differ, and so does the size.
void Fill(RecordFile& file, char16_t letter, std::size_t length) {
  file.Write(1, std::u16string(length, letter));
}

int Store(const std::u16string& path) {
  Win32Files files;
  RecordFile file(files);
  file.Open(path, u"");
  for (bool large = true;; large = !large) {
    Fill(file, large ? u'L' : u's', large ? 60000 : 10);
    file.Store();
  }
}

void Create(const std::u16string& path) {
  Win32Files files;
  RecordFile file(files);
  file.Create(path, u"", u"ALMAC", {{u"TEXTO", 0}});
  for (int i = 0; i < kRecords; ++i) {
    file.Add();
    file.Write(1, std::u16string(100, u'x'));
  }
  file.Store();
}

// What is wrong with the file, or nothing.
const char* Flaw(const std::u16string& path) {
  Win32Files files;
  RecordFile file(files);
  file.Open(path, u"");
  if (file.Count() != kRecords) return "records are missing";
  const std::u16string& text = file.Value(1);
  const bool large = text == std::u16string(60000, u'L'), small = text == std::u16string(10, u's');
  return large || small || text == std::u16string(100, u'x') ? nullptr : "it is a mixture";
}

// Deletes what killed hosts left beside the file.
int Sweep(const std::wstring& path) {
  int count = 0;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((path + L".*.tmp").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  do {
    const std::wstring folder = path.substr(0, path.rfind(L'\\') + 1);
    if (DeleteFileW((folder + found.cFileName).c_str())) ++count;
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return count;
}

// Starts a host, lets it store for some milliseconds, kills it.
bool Kill(const std::wstring& path, DWORD milliseconds) {
  wchar_t self[MAX_PATH * 2];
  GetModuleFileNameW(nullptr, self, MAX_PATH * 2);
  std::wstring command = L"\"" + std::wstring(self) + L"\" store \"" + path + L"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION host{};
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &host)) {
    return false;
  }
  const bool alive = WaitForSingleObject(host.hProcess, milliseconds) == WAIT_TIMEOUT;
  TerminateProcess(host.hProcess, 99);
  WaitForSingleObject(host.hProcess, INFINITE);
  CloseHandle(host.hThread);
  CloseHandle(host.hProcess);
  return alive;
}

int Drive(int count, const std::wstring& path, const std::u16string& portablePath) {
  int inTheMiddle = 0;
  Create(portablePath);
  std::srand(GetTickCount());
  for (int i = 0; i < count; ++i) {
    if (!Kill(path, static_cast<DWORD>(60 + std::rand() % 60))) {
      std::printf("host %d ended by itself\n", i + 1);
      return 1;
    }
    if (const char* flaw = Flaw(portablePath)) {
      std::printf("after kill %d: %s\n", i + 1, flaw);
      return 1;
    }
    if (Sweep(path) > 0) ++inTheMiddle;
  }
  std::printf("%d kills, %d of them in the middle of a store: the file was always whole\n", count,
              inTheMiddle);
  return inTheMiddle > 0 ? 0 : 1;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  try {
    if (count == 3 && std::wstring_view(arguments[1]) == L"store") return Store(Text(arguments[2]));
    if (count == 4 && std::wstring_view(arguments[1]) == L"drive") {
      return Drive(_wtoi(arguments[2]), arguments[3], Text(arguments[3]));
    }
  } catch (const qm::runtime::RuntimeError& error) {
    std::printf("error %d\n", error.number());
    return 1;
  }
  return 2;
}
