#pragma once
// Folders that live in memory, under drive letters. Every change is written down.

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folders.h"
#include "runtime/error.h"

namespace qm::fakes {

class FakeFolders : public platform::Folders {
 public:
  std::map<int, std::u16string> special{{5, u"C:\\Users\\ana\\Documents"},
                                        {43, u"C:\\Program Files\\Common Files"}};
  std::u16string workFolder = u"C:\\Users\\ana\\Trabajo\\";
  std::u16string componentFolder = u"C:\\Programas\\Modelos";
  std::u16string localData = u"C:\\Users\\ana\\AppData\\Local";
  std::u16string userName = u"ana";
  std::u16string currentFolder = u"C:\\Inicio";
  std::set<std::u16string, std::less<>> existing{u"C:", u"C:\\Inicio", u"C:\\Users\\ana\\Trabajo"};
  std::set<std::u16string, std::less<>> cannotBeSet;  // as the current folder, with its final backslash
  bool makingFails = false;
  std::vector<std::u16string> made;        // in order, those that failed as well
  std::vector<std::u16string> currentSet;  // in order, as given

  [[nodiscard]] std::u16string CarpetaEspecial(int number) override {
    const auto found = special.find(number);
    return found == special.end() ? std::u16string() : found->second;
  }
  [[nodiscard]] std::u16string RutaTrabajo(std::u16string_view name) override {
    return workFolder + std::u16string(name);
  }
  [[nodiscard]] std::u16string ComponentFolder() override { return componentFolder; }
  [[nodiscard]] std::u16string LocalData() override { return localData; }
  [[nodiscard]] std::u16string UserName() override { return userName; }

  void SetCurrentFolder(std::u16string_view folder) override {
    currentSet.emplace_back(folder);
    if (cannotBeSet.contains(folder)) throw runtime::RuntimeError(runtime::ErrorNumber::PathNotFound);
    currentFolder = folder;
    if (currentFolder.ends_with(u'\\')) currentFolder.pop_back();
  }
  [[nodiscard]] std::u16string FullPath(std::u16string_view path) override {
    if (path.starts_with(u"\\\\")) return std::u16string(path);
    const bool hasDrive = path.size() > 1 && path[1] == u':';
    if (hasDrive && (path.size() == 2 || path[2] == u'\\' || path[2] == u'/')) return std::u16string(path);
    if (hasDrive) path.remove_prefix(2);  // from the drive's own current folder, here the same
    return currentFolder + u"\\" + std::u16string(path);
  }
  [[nodiscard]] bool Matches(std::u16string_view pattern) override { return existing.contains(pattern); }
  bool Make(std::u16string_view folder) override {
    made.emplace_back(folder);
    if (makingFails) return false;
    return existing.emplace(folder).second;
  }
};

}  // namespace qm::fakes
