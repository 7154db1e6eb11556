#pragma once
// Folders that are texts. Only those listed exist; what is made is added to them.

#include <algorithm>
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
  std::map<int, std::u16string> special;
  std::u16string workingFolder = u"C:\\Trabajo\\";
  std::u16string componentFolder = u"C:\\Programa";
  std::u16string localData = u"C:\\Usuario\\AppData\\Local";
  std::u16string userName = u"usuario";
  std::u16string currentFolder = u"C:\\Actual";
  std::set<std::u16string, std::less<>> found;  // what Matches finds, besides the folders made
  std::set<std::u16string, std::less<>> cannotBeMade;
  std::set<std::u16string, std::less<>> cannotBeCurrent;
  std::vector<std::u16string> made;

  [[nodiscard]] std::u16string CarpetaEspecial(int number) override {
    const auto folder = special.find(number);
    return folder == special.end() ? std::u16string() : folder->second;
  }
  [[nodiscard]] std::u16string RutaTrabajo(std::u16string_view name) override {
    return workingFolder + std::u16string(name);
  }
  [[nodiscard]] std::u16string ComponentFolder() override { return componentFolder; }
  [[nodiscard]] std::u16string LocalData() override { return localData; }
  [[nodiscard]] std::u16string UserName() override { return userName; }

  [[nodiscard]] std::u16string CurrentFolder() override { return currentFolder; }
  void SetCurrentFolder(std::u16string_view folder) override {
    if (cannotBeCurrent.contains(folder)) throw runtime::RuntimeError(runtime::ErrorNumber::PathNotFound);
    currentFolder = folder;
  }
  [[nodiscard]] std::u16string FullPath(std::u16string_view path) override {
    const bool absolute = path.starts_with(u"\\\\") || (path.size() > 1 && path[1] == u':');
    return absolute ? std::u16string(path) : currentFolder + u"\\" + std::u16string(path);
  }
  [[nodiscard]] bool Matches(std::u16string_view pattern) override {
    return found.contains(pattern) || std::find(made.begin(), made.end(), pattern) != made.end();
  }
  bool Make(std::u16string_view folder) override {
    if (cannotBeMade.contains(folder) || Matches(folder)) return false;
    made.emplace_back(folder);
    return true;
  }
};

}  // namespace qm::fakes
