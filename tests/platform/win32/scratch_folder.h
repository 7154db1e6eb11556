#pragma once
// A folder of a test's own, removed with everything in it at the test's end.

#include <string>
#include <vector>

#include "platform/win32/files.h"
#include "platform/win32/handles.h"

namespace qm::platform::win32 {

class ScratchFolder {
 public:
  ScratchFolder() : path_(Win32Files().ScratchFolder() + u"qm" + Number(GetCurrentProcessId()) + u"\\") {
    CreateDirectoryW(Wide(path_), nullptr);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() { Remove(path_); }

  [[nodiscard]] std::u16string File(std::u16string_view name) const { return path_ + std::u16string(name); }

  [[nodiscard]] std::vector<std::u16string> Names() const { return NamesIn(path_); }

  static std::vector<std::u16string> NamesIn(const std::u16string& folder) {
    std::vector<std::u16string> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(Wide(folder + u"*"), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
      const std::u16string name = Text(found.cFileName);
      if (name != u"." && name != u"..") names.push_back(name);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
  }

 private:
  static std::u16string Number(DWORD number) {
    std::u16string text;
    for (; number; number /= 10) text.insert(text.begin(), static_cast<char16_t>(u'0' + number % 10));
    return text;
  }

  static void Remove(const std::u16string& folder) {
    for (const std::u16string& name : NamesIn(folder)) {
      const std::u16string path = folder + name;
      SetFileAttributesW(Wide(path), FILE_ATTRIBUTE_NORMAL);
      if (!DeleteFileW(Wide(path))) Remove(path + u"\\");
    }
    RemoveDirectoryW(Wide(folder));
  }

  std::u16string path_;
};

}  // namespace qm::platform::win32
