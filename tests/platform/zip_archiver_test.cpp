#include "platform/zip_archiver.h"

#include <gmock/gmock.h>
#include <zip.h>

#include <cerrno>

#include "runtime/code_page.h"
#include "tests/fakes/memory_files.h"

namespace qm::platform {
namespace {

using runtime::ErrorNumber;
using testing::ElementsAre;
using testing::Pair;

constexpr char16_t kArchive[] = u"C:\\Salida\\correo.zip";

// Names and contents as an archive's reader finds them.
std::vector<std::pair<std::string, std::string>> EntriesOf(const std::string& bytes) {
  std::vector<std::pair<std::string, std::string>> entries;
  zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
  zip_t* zip = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
  if (!zip) {
    zip_source_free(source);
    return entries;
  }
  for (zip_int64_t i = 0; i < zip_get_num_entries(zip, 0); ++i) {
    zip_stat_t status;
    zip_stat_index(zip, static_cast<zip_uint64_t>(i), 0, &status);
    std::string content(static_cast<std::size_t>(status.size), '\0');
    zip_file_t* file = zip_fopen_index(zip, static_cast<zip_uint64_t>(i), 0);
    zip_fread(file, content.data(), content.size());
    zip_fclose(file);
    entries.emplace_back(zip_get_name(zip, static_cast<zip_uint64_t>(i), ZIP_FL_ENC_GUESS), content);
  }
  zip_discard(zip);
  return entries;
}

// Sixteen bits of a file, the low byte first.
int Word(const std::string& bytes, std::size_t offset) {
  return static_cast<unsigned char>(bytes[offset]) | static_cast<unsigned char>(bytes[offset + 1]) << 8;
}

class ZipArchives : public testing::Test {
 protected:
  ZipArchives() {
    files.contents[u"C:\\a\\uno.txt"] = "uno";
    files.contents[u"C:\\b\\dos.txt"] = "dos";
  }
  const std::string& Bytes() { return files.contents[kArchive]; }

  fakes::MemoryFiles files;
  ZipArchiver archiver{files};
};

TEST_F(ZipArchives, AMissingArchiveIsMadeWithTheFilesUnderBareNames) {
  EXPECT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt", u"C:\\b\\dos.txt"}), ZipResult::Done);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair("uno.txt", "uno"), Pair("dos.txt", "dos")));
}

TEST_F(ZipArchives, ALaterRunAddsToWhatIsThere) {
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt"}), ZipResult::Done);
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\b\\dos.txt"}), ZipResult::Done);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair("uno.txt", "uno"), Pair("dos.txt", "dos")));
}

TEST_F(ZipArchives, AnEntryOfTheSameNameIsReplacedWhateverTheCaseOfItsLetters) {
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt", u"C:\\b\\dos.txt"}), ZipResult::Done);
  files.contents[u"C:\\c\\UNO.TXT"] = "otro";
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\c\\UNO.TXT"}), ZipResult::Done);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair("UNO.TXT", "otro"), Pair("dos.txt", "dos")));
}

TEST_F(ZipArchives, AnEntryIsReplacedWhateverTheCaseOfItsLettersBeyondAscii) {
  files.contents[u"C:\\a\\Peña·€.pdf"] = "uno";
  files.contents[u"C:\\c\\PEÑA·€.PDF"] = "otro";
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\Peña·€.pdf"}), ZipResult::Done);
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\c\\PEÑA·€.PDF"}), ZipResult::Done);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair(runtime::ToUtf8(u"PEÑA·€.PDF"), "otro")));
}

TEST_F(ZipArchives, OfTwoFilesOfTheSameNameTheLaterOneIsKept) {
  files.contents[u"C:\\b\\uno.txt"] = "segundo";
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt", u"C:\\b\\uno.txt"}), ZipResult::Done);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair("uno.txt", "segundo")));
}

TEST_F(ZipArchives, NamesBeyondAsciiAreMarkedAsUtf8) {
  constexpr int kUtf8Mark = 0x0800;
  files.contents[u"C:\\a\\Peña·€.txt"] = "x";
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\Peña·€.txt"}), ZipResult::Done);
  EXPECT_EQ(Word(Bytes(), 6) & kUtf8Mark, kUtf8Mark);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair(runtime::ToUtf8(u"Peña·€.txt"), "x")));
}

TEST_F(ZipArchives, PlainNamesAreNotMarked) {
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt"}), ZipResult::Done);
  EXPECT_EQ(Word(Bytes(), 6) & 0x0800, 0);
}

TEST_F(ZipArchives, ContentIsCompressedAtTheHighestLevel) {
  constexpr int kMaximumCompression = 2;  // of the two bits in which an archive says so
  files.contents[u"C:\\a\\largo.txt"] = std::string(100000, 'a');
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\largo.txt"}), ZipResult::Done);
  EXPECT_EQ(Word(Bytes(), 8), 8) << "deflate";
  EXPECT_EQ(Word(Bytes(), 6) & 6, kMaximumCompression);
  EXPECT_LT(Bytes().size(), 500U);
}

TEST_F(ZipArchives, AnEntryHasTheTimeOfItsFile) {
  files.lastChange = {2015, 12, 31, 23, 58, 40};
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt"}), ZipResult::Done);
  EXPECT_EQ(Word(Bytes(), 10), 23 << 11 | 58 << 5 | 20);
  EXPECT_EQ(Word(Bytes(), 12), 35 << 9 | 12 << 5 | 31);
}

TEST_F(ZipArchives, WhatCannotBeReadIsSkippedAndTheRestIsIn) {
  EXPECT_EQ(archiver.Add(kArchive, {u"C:\\a\\falta.txt", u"C:\\b\\dos.txt"}), ZipResult::FilesSkipped);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair("dos.txt", "dos")));
}

TEST_F(ZipArchives, NothingToAddLeavesTheArchiveAlone) {
  EXPECT_EQ(archiver.Add(kArchive, {}), ZipResult::NothingToDo);
  EXPECT_EQ(archiver.Add(kArchive, {u"C:\\a\\falta.txt"}), ZipResult::NothingToDo);
  EXPECT_TRUE(files.replacements.empty());
}

TEST_F(ZipArchives, AnEmptyFileOfThatNameBecomesAnArchive) {
  files.contents[kArchive] = "";
  EXPECT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt"}), ZipResult::Done);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair("uno.txt", "uno")));
}

TEST_F(ZipArchives, AnEmptyFileCanBeAdded) {
  files.contents[u"C:\\a\\vacio.txt"] = "";
  EXPECT_EQ(archiver.Add(kArchive, {u"C:\\a\\vacio.txt"}), ZipResult::Done);
  EXPECT_THAT(EntriesOf(Bytes()), ElementsAre(Pair("vacio.txt", "")));
}

TEST_F(ZipArchives, AFileThatIsNoArchiveStaysAsItIs) {
  for (const char* bytes : {"BM no es un archivo", "PK\x03\x04 cortado"}) {
    files.contents[kArchive] = bytes;
    EXPECT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt"}), ZipResult::BadArchive);
    EXPECT_EQ(Bytes(), bytes);
  }
}

TEST_F(ZipArchives, AnArchiveCutAnywhereIsRefusedOrExtendedWithAllThatItLists) {
  files.contents[u"C:\\a\\largo.txt"] = std::string(300, 'x') + "y";
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt", u"C:\\a\\largo.txt"}), ZipResult::Done);
  const std::string whole = Bytes();
  for (std::size_t length = 1; length < whole.size(); ++length) {
    files.contents[kArchive] = whole.substr(0, length);
    EXPECT_EQ(archiver.Add(kArchive, {u"C:\\b\\dos.txt"}), ZipResult::BadArchive) << length;
    EXPECT_EQ(Bytes().size(), length);
  }
}

struct Fault {
  ErrorNumber error;
  ZipResult result;
};

TEST_F(ZipArchives, AWriteThatFailsLeavesTheOldArchiveAndSaysWhy) {
  ASSERT_EQ(archiver.Add(kArchive, {u"C:\\a\\uno.txt"}), ZipResult::Done);
  const std::string before = Bytes();
  for (const Fault& fault : {Fault{ErrorNumber::DiskFull, ZipResult::DiskFull},
                             {ErrorNumber::PathNotFound, ZipResult::ParentFolder},
                             {ErrorNumber::PermissionDenied, ZipResult::SystemError},
                             {ErrorNumber::PathFileAccess, ZipResult::SystemError},
                             {ErrorNumber::OutOfMemory, ZipResult::OutOfMemory}}) {
    files.failReplaceWith = fault.error;
    EXPECT_EQ(archiver.Add(kArchive, {u"C:\\b\\dos.txt"}), fault.result);
    EXPECT_EQ(Bytes(), before);
  }
}

TEST(ZipResults, EveryFailureOfTheLibraryHasItsCode) {
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_OK, 0), ZipResult::Done);
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_WRITE, ENOSPC), ZipResult::DiskFull);
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_WRITE, EACCES), ZipResult::SystemError);
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_NOZIP, 0), ZipResult::BadArchive);
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_INCONS, 0), ZipResult::BadArchive);
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_MEMORY, 0), ZipResult::OutOfMemory);
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_TMPOPEN, ENOSPC), ZipResult::DiskFull);
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_TMPOPEN, ENOENT), ZipResult::TempFile);
  EXPECT_EQ(ResultOfLibrary(ZIP_ER_NOENT, ENOENT), ZipResult::ParentFolder);
  for (int code = 1; code <= ZIP_ER_CANCELLED; ++code)
    EXPECT_NE(ResultOfLibrary(code, 0), ZipResult::Done) << code;
}

}  // namespace
}  // namespace qm::platform
