#pragma once
// Adds files to a ZIP archive, at the highest compression, under their bare names. An entry of the same name
// is replaced. The archive is swapped in whole: whatever happens, it is the old or the new one.
// Errors: as result codes; nothing is raised.
// Implemented by zip_archiver and the tests' RecordedArchiver.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qm::platform {

// What a run can end with (others of the archiver's list never occur here).
enum class ZipResult : std::int16_t {
  Done = 0,
  FilesSkipped = 40,  // some of the files could not be read; the others are in
  BadArchive = 110,
  OutOfMemory = 120,
  NothingToDo = 140,  // no file to add
  DiskFull = 150,
  TempFile = 280,
  ParentFolder = 350,
  SystemError = 400,
};

class Archiver {
 public:
  virtual ~Archiver() = default;

  // Full paths.
  [[nodiscard]] virtual ZipResult Add(std::u16string_view archive,
                                      const std::vector<std::u16string>& files) = 0;
};

}  // namespace qm::platform
