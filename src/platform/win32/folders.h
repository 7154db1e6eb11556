#pragma once
// Folders as Windows knows them. The user's working folder is "Quillmar\CRM" of his local application data;
// it is made when it is asked for.

#include "platform/folders.h"

namespace qm::platform::win32 {

class Win32Folders : public Folders {
 public:
  [[nodiscard]] std::u16string CarpetaEspecial(int number) override;
  [[nodiscard]] std::u16string RutaTrabajo(std::u16string_view name) override;
  [[nodiscard]] std::u16string ComponentFolder() override;
  [[nodiscard]] std::u16string LocalData() override;
  [[nodiscard]] std::u16string UserName() override;
  void SetCurrentFolder(std::u16string_view folder) override;
  [[nodiscard]] std::u16string FullPath(std::u16string_view path) override;
  [[nodiscard]] bool Matches(std::u16string_view pattern) override;
  bool Make(std::u16string_view folder) override;
};

}  // namespace qm::platform::win32
