#pragma once
// Folders of the system, of the user and of this component, and the process's current folder.
// Paths: folders end without a backslash unless a name says so.
// Errors: 75 and 76 for a current folder that cannot be set; making a folder fails as a value.
// Implemented by win32/folders and the tests' FakeFolders.

#include <string>
#include <string_view>

namespace qm::platform {

class Folders {
 public:
  virtual ~Folders() = default;

  // A Windows special folder by its number: 5 the user's documents, 43 the common program files. Empty when
  // the system has none.
  [[nodiscard]] virtual std::u16string CarpetaEspecial(int number) = 0;
  // The full path of a file of that name in the user's working folder; an empty name gives the folder itself,
  // with its final backslash.
  [[nodiscard]] virtual std::u16string RutaTrabajo(std::u16string_view name) = 0;
  [[nodiscard]] virtual std::u16string ComponentFolder() = 0;  // where the DLL lies
  [[nodiscard]] virtual std::u16string LocalData() = 0;        // the user's local application data
  [[nodiscard]] virtual std::u16string UserName() = 0;         // of the Windows user

  virtual void SetCurrentFolder(std::u16string_view folder) = 0;
  // The path made absolute against the current folder.
  [[nodiscard]] virtual std::u16string FullPath(std::u16string_view path) = 0;
  // Whether anything is found: a file, folder or hidden entry; wildcards are those of the system.
  [[nodiscard]] virtual bool Matches(std::u16string_view pattern) = 0;
  virtual bool Make(std::u16string_view folder) = 0;  // one level; false when that failed
};

}  // namespace qm::platform
