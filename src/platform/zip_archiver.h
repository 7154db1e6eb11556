#pragma once
// ZIP archives over the ZIP library, built in memory and swapped in through Files, so that an archive on disk
// is the old or the new one. Entries of the same name, in any case of its letters, are replaced. Names that
// need it are stored as UTF-8 and marked so.

#include "platform/archiver.h"
#include "platform/files.h"
#include "runtime/error.h"

namespace qm::platform {

class ZipArchiver : public Archiver {
 public:
  explicit ZipArchiver(Files& files) : files_(files) {}

  [[nodiscard]] ZipResult Add(std::u16string_view archive, const std::vector<std::u16string>& files) override;

 private:
  Files& files_;
};

// The archiver's code for a failure of the ZIP library and for one of the files.
[[nodiscard]] ZipResult ResultOfLibrary(int zipError, int systemError);
[[nodiscard]] ZipResult ResultOfFiles(const runtime::RuntimeError& error);

}  // namespace qm::platform
