#include "platform/zip_archiver.h"

#include <zip.h>

#include <cerrno>
#include <memory>
#include <new>
#include <string>

#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace qm::platform {
namespace {

using runtime::ErrorNumber;

constexpr zip_uint32_t kHighestLevel = 9;

struct LibraryFailure {
  ZipResult result;
};

[[noreturn]] void Fail(const zip_error_t& error) {
  throw LibraryFailure{ResultOfLibrary(zip_error_code_zip(&error), zip_error_code_system(&error))};
}

struct Discard {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};

std::string BareName(std::u16string_view path) {
  return runtime::ToUtf8(path.substr(path.find_last_of(u"\\/:") + 1));
}

// An archive in memory.
class Archive {
 public:
  // The bytes must outlive the archive. No bytes make a new one.
  explicit Archive(const std::string& bytes) {
    zip_error_t error;
    zip_error_init(&error);
    source_ = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    if (!source_) Fail(error);
    zip_.reset(zip_open_from_source(source_, ZIP_CREATE, &error));
    if (!zip_) {
      zip_source_free(source_);
      Fail(error);
    }
    zip_source_keep(source_);  // what the library writes is read back after it has let go of it
  }
  Archive(const Archive&) = delete;
  Archive& operator=(const Archive&) = delete;
  ~Archive() {
    zip_.reset();
    zip_source_free(source_);
  }

  // The bytes must outlive the archive.
  void Put(const std::string& name, const std::string& bytes,
           const std::optional<runtime::DateTime>& lastChange) {
    const zip_uint64_t index = Entry(name, bytes);
    Check(zip_set_file_compression(zip_.get(), index, ZIP_CM_DEFLATE, kHighestLevel));
    if (!lastChange || lastChange->year < 1980 || lastChange->year > 2107) return;
    const int date = (lastChange->year - 1980) << 9 | lastChange->month << 5 | lastChange->day;
    const int time = lastChange->hour << 11 | lastChange->minute << 5 | lastChange->second / 2;
    Check(zip_file_set_dostime(zip_.get(), index, static_cast<zip_uint16_t>(time),
                               static_cast<zip_uint16_t>(date), 0));
  }

  [[nodiscard]] std::string Finished() {
    Check(zip_close(zip_.get()));
    (void)zip_.release();
    zip_stat_t status;
    if (zip_source_stat(source_, &status) != 0) Fail(*zip_source_error(source_));
    if (zip_source_open(source_) != 0) Fail(*zip_source_error(source_));
    std::string bytes(static_cast<std::size_t>(status.size), '\0');
    const zip_int64_t read = zip_source_read(source_, bytes.data(), bytes.size());
    zip_source_close(source_);
    if (read != static_cast<zip_int64_t>(bytes.size())) Fail(*zip_source_error(source_));
    return bytes;
  }

 private:
  void Check(int status) const {
    if (status != 0) Fail(*zip_get_error(zip_.get()));
  }

  // -1 for a name that is new. The library folds the case of English letters only.
  [[nodiscard]] zip_int64_t PlaceOf(const std::string& name) const {
    const std::u16string wanted = runtime::FromUtf8(name);
    const zip_int64_t count = zip_get_num_entries(zip_.get(), 0);
    for (zip_int64_t i = 0; i < count; ++i) {
      const char* known = zip_get_name(zip_.get(), static_cast<zip_uint64_t>(i), ZIP_FL_ENC_GUESS);
      if (known && runtime::EqualFolded(runtime::FromUtf8(known), wanted)) return i;
    }
    return -1;
  }

  // A new entry, or the one of that name, with new content.
  zip_uint64_t Entry(const std::string& name, const std::string& bytes) {
    zip_source_t* content = zip_source_buffer(zip_.get(), bytes.data(), bytes.size(), 0);
    if (!content) Fail(*zip_get_error(zip_.get()));
    const zip_int64_t known = PlaceOf(name);
    const zip_int64_t index =
        known < 0 ? zip_file_add(zip_.get(), name.c_str(), content, ZIP_FL_ENC_UTF_8)
        : zip_file_replace(zip_.get(), static_cast<zip_uint64_t>(known), content, 0) == 0 ? known
                                                                                          : -1;
    if (index < 0) {
      zip_source_free(content);
      Fail(*zip_get_error(zip_.get()));
    }
    const auto entry = static_cast<zip_uint64_t>(index);
    if (known >= 0) Check(zip_file_rename(zip_.get(), entry, name.c_str(), ZIP_FL_ENC_UTF_8));
    return entry;
  }

  zip_source_t* source_ = nullptr;
  std::unique_ptr<zip_t, Discard> zip_;
};

struct Content {
  std::string name;
  std::string bytes;
  std::optional<runtime::DateTime> lastChange;
};

std::optional<Content> Readable(Files& files, const std::u16string& path) {
  try {
    if (auto bytes = files.Read(path))
      return Content{BareName(path), std::move(*bytes), files.LastChange(path)};
  } catch (const runtime::RuntimeError& error) {
    if (error.Is(ErrorNumber::OutOfMemory)) throw;
  }
  return std::nullopt;
}

ZipResult AddReadable(Files& files, std::u16string_view archivePath,
                      const std::vector<std::u16string>& paths) {
  std::vector<Content> contents;
  for (const std::u16string& path : paths)
    if (auto content = Readable(files, path)) contents.push_back(std::move(*content));
  if (contents.empty()) return ZipResult::NothingToDo;

  const std::string former = files.Read(archivePath).value_or(std::string());
  Archive archive(former);
  for (const Content& content : contents) archive.Put(content.name, content.bytes, content.lastChange);
  files.Replace(archivePath, archive.Finished());
  return contents.size() == paths.size() ? ZipResult::Done : ZipResult::FilesSkipped;
}

}  // namespace

ZipResult ZipArchiver::Add(std::u16string_view archive, const std::vector<std::u16string>& files) {
  try {
    return AddReadable(files_, archive, files);
  } catch (const LibraryFailure& failure) {
    return failure.result;
  } catch (const runtime::RuntimeError& error) {
    return ResultOfFiles(error);
  } catch (const std::bad_alloc&) {
    return ZipResult::OutOfMemory;
  }
}

ZipResult ResultOfLibrary(int zipError, int systemError) {
  struct Row {
    int zipError;
    ZipResult result;
  };
  constexpr Row kRows[] = {
      {ZIP_ER_OK, ZipResult::Done},
      {ZIP_ER_MEMORY, ZipResult::OutOfMemory},
      {ZIP_ER_NOZIP, ZipResult::BadArchive},
      {ZIP_ER_INCONS, ZipResult::BadArchive},
      {ZIP_ER_CRC, ZipResult::BadArchive},
      {ZIP_ER_EOF, ZipResult::BadArchive},
      {ZIP_ER_MULTIDISK, ZipResult::BadArchive},
      {ZIP_ER_COMPRESSED_DATA, ZipResult::BadArchive},
      {ZIP_ER_TMPOPEN, ZipResult::TempFile},
      {ZIP_ER_NOENT, ZipResult::ParentFolder},
  };
  if (systemError == ENOSPC &&
      (zipError == ZIP_ER_WRITE || zipError == ZIP_ER_CLOSE || zipError == ZIP_ER_TMPOPEN))
    return ZipResult::DiskFull;
  for (const Row& row : kRows)
    if (row.zipError == zipError) return row.result;
  return ZipResult::SystemError;
}

ZipResult ResultOfFiles(const runtime::RuntimeError& error) {
  if (error.Is(ErrorNumber::DiskFull)) return ZipResult::DiskFull;
  if (error.Is(ErrorNumber::OutOfMemory)) return ZipResult::OutOfMemory;
  if (error.Is(ErrorNumber::PathNotFound)) return ZipResult::ParentFolder;
  return ZipResult::SystemError;
}

}  // namespace qm::platform
