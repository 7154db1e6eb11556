#pragma once
// Files by full path, as bytes.
// Errors: the runtime's numbers: 53 file not found, 61 disk full, 70 permission denied or locked, 75 path or
//         file access, 76 path not found.
// Implemented by win32/files and the tests' MemoryFiles.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/format.h"

namespace qm::platform {

class Files {
 public:
  virtual ~Files() = default;

  [[nodiscard]] virtual bool Exists(std::u16string_view path) = 0;  // a file, not a folder
  // Nothing when there is no such file.
  [[nodiscard]] virtual std::optional<std::string> Read(std::u16string_view path) = 0;
  // At most that many bytes from the file's start, read while others may have it open for writing. A file
  // that does not exist is made, empty, and stays.
  [[nodiscard]] virtual std::string ReadOrCreate(std::u16string_view path, std::size_t most) = 0;
  // Writes beside the file, flushes and swaps: at any moment the file is the old or the new one, whole.
  virtual void Replace(std::u16string_view path, std::string_view bytes) = 0;
  // The same without waiting until the disk has it: for what can be made again at any time.
  virtual void ReplaceUnflushed(std::u16string_view path, std::string_view bytes) { Replace(path, bytes); }
  virtual void Delete(std::u16string_view path) = 0;
  // Whether it exists and can be opened for reading while others read and write it.
  [[nodiscard]] virtual bool CanRead(std::u16string_view path) = 0;
  // Opens the file for appending and closes it again, nothing written: error 70 while another program keeps
  // it to itself.
  virtual void TryAppend(std::u16string_view path) = 0;
  // The local time of the file's last change; nothing where that is not known.
  [[nodiscard]] virtual std::optional<runtime::DateTime> LastChange(std::u16string_view) {
    return std::nullopt;
  }
  // The user's folder for scratch files, with its final backslash.
  [[nodiscard]] virtual std::u16string ScratchFolder() = 0;
};

}  // namespace qm::platform
