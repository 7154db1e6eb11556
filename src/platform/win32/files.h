#pragma once
// Files on Windows: long and network paths too, replaced without ever losing the old content.

#include "platform/files.h"

namespace qm::platform::win32 {

class Win32Files : public Files {
 public:
  [[nodiscard]] bool Exists(std::u16string_view path) override;
  // Nothing also when the folder does not exist.
  [[nodiscard]] std::optional<std::string> Read(std::u16string_view path) override;
  [[nodiscard]] std::string ReadOrCreate(std::u16string_view path, std::size_t most) override;
  // Keeps the access rights and the creation time of a file that is there. On failure the old file stays
  // and nothing else does; only where Windows has already lost the name of the old one does the new content
  // stay beside it, under a name that ends in ".tmp".
  void Replace(std::u16string_view path, std::string_view bytes) override;
  void ReplaceUnflushed(std::u16string_view path, std::string_view bytes) override;
  void Delete(std::u16string_view path) override;
  [[nodiscard]] bool CanRead(std::u16string_view path) override;
  void TryAppend(std::u16string_view path) override;
  [[nodiscard]] std::optional<runtime::DateTime> LastChange(std::u16string_view path) override;
  [[nodiscard]] std::u16string ScratchFolder() override;
};

}  // namespace qm::platform::win32
