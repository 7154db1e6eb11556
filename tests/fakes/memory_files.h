#pragma once
// Files that live in memory. Every replacement is written down; the next ones can be told to fail.

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "runtime/error.h"

namespace qm::fakes {

class MemoryFiles : public platform::Files {
 public:
  struct Replacement {
    std::u16string path;
    std::string bytes;
  };

  std::map<std::u16string, std::string, std::less<>> contents;
  std::vector<Replacement> replacements;                // the successful ones, in order
  std::optional<runtime::ErrorNumber> failReplaceWith;  // then nothing is written
  std::optional<runtime::ErrorNumber> failReadWith;
  std::u16string fullFor;                        // this file finds no room on the disk
  std::set<std::u16string, std::less<>> locked;  // for appending
  std::optional<runtime::DateTime> lastChange;   // of every file
  std::u16string scratchFolder = u"C:\\Temp\\";

  [[nodiscard]] bool Exists(std::u16string_view path) override { return contents.contains(path); }

  [[nodiscard]] std::optional<std::string> Read(std::u16string_view path) override {
    if (failReadWith) throw runtime::RuntimeError(*failReadWith);
    const auto found = contents.find(path);
    return found == contents.end() ? std::nullopt : std::optional(found->second);
  }

  [[nodiscard]] std::string ReadOrCreate(std::u16string_view path, std::size_t most) override {
    if (failReadWith) throw runtime::RuntimeError(*failReadWith);
    return contents.try_emplace(std::u16string(path)).first->second.substr(0, most);
  }

  void Replace(std::u16string_view path, std::string_view bytes) override {
    if (failReplaceWith) throw runtime::RuntimeError(*failReplaceWith);
    if (path == fullFor) throw runtime::RuntimeError(runtime::ErrorNumber::DiskFull);
    contents.insert_or_assign(std::u16string(path), std::string(bytes));
    replacements.push_back({std::u16string(path), std::string(bytes)});
  }

  void Delete(std::u16string_view path) override {
    if (contents.erase(std::u16string(path)) == 0)
      throw runtime::RuntimeError(runtime::ErrorNumber::FileNotFound);
  }

  [[nodiscard]] bool CanRead(std::u16string_view path) override { return contents.contains(path); }

  void TryAppend(std::u16string_view path) override {
    if (locked.contains(path)) throw runtime::RuntimeError(runtime::ErrorNumber::PermissionDenied);
    if (!contents.contains(path)) throw runtime::RuntimeError(runtime::ErrorNumber::FileNotFound);
  }

  [[nodiscard]] std::optional<runtime::DateTime> LastChange(std::u16string_view) override {
    return lastChange;
  }

  [[nodiscard]] std::u16string ScratchFolder() override { return scratchFolder; }
};

}  // namespace qm::fakes
