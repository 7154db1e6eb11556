// store_kills store FILE        stores the file for ever, in turn with few and with many records
// store_kills drive COUNT FILE  kills such a host COUNT times; the file must always be one of the two

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/win32/files.h"
#include "recordfile/codec.h"
#include "recordfile/record_file.h"
#include "runtime/error.h"
#include "tests/wine/killed_hosts.h"

namespace {

using qm::platform::win32::Text;
using qm::platform::win32::Win32Files;
using qm::recordfile::RecordFile;

constexpr int kRecords = 400;

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

int Drive(int count, const std::u16string& path) {
  Create(path);
  return qm::tests::KillHosts(count, path, u"store \"" + path + u"\"", 60, [&] { return Flaw(path); });
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  try {
    if (count == 3 && std::wstring_view(arguments[1]) == L"store") return Store(Text(arguments[2]));
    if (count == 4 && std::wstring_view(arguments[1]) == L"drive") {
      return Drive(_wtoi(arguments[2]), Text(arguments[3]));
    }
  } catch (const qm::runtime::RuntimeError& error) {
    std::printf("error %d\n", error.number());
    return 1;
  }
  return 2;
}
