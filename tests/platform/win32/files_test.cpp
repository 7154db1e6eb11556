#include "platform/win32/files.h"

#include <thread>

#include "tests/platform/win32/expect_error.h"
#include "tests/platform/win32/scratch_folder.h"

namespace qm::platform::win32 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using ::testing::SizeIs;

OwnedFile OpenedBySomeoneElse(const std::u16string& path, DWORD sharing) {
  OwnedFile file(CreateFileW(Wide(path), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
  EXPECT_TRUE(static_cast<bool>(file));
  return file;
}

struct FilesOnDisk : testing::Test {
  ScratchFolder folder;
  Win32Files files;
};

TEST_F(FilesOnDisk, AFileThatDoesNotExistReadsAsNothing) {
  EXPECT_EQ(files.Read(folder.File(u"no.xml")), std::nullopt);
  EXPECT_EQ(files.Read(folder.File(u"no\\no.xml")), std::nullopt);
  EXPECT_FALSE(files.Exists(folder.File(u"no.xml")));
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(FilesOnDisk, AreReadAsTheyWereWritten) {
  std::string bytes;
  for (int i = 0; i < 70000; ++i) bytes += static_cast<char>(i * 7);
  files.Replace(folder.File(u"modelo.xml"), bytes);
  EXPECT_EQ(files.Read(folder.File(u"modelo.xml")), bytes);
  EXPECT_TRUE(files.Exists(folder.File(u"modelo.xml")));
}

TEST_F(FilesOnDisk, MayBeEmpty) {
  files.Replace(folder.File(u"modelo.xml"), "");
  EXPECT_THAT(files.Read(folder.File(u"modelo.xml")), Optional(std::string()));
}

TEST_F(FilesOnDisk, HaveSpanishNames) {
  files.Replace(folder.File(u"añadido·€.xml"), "1");
  EXPECT_THAT(folder.Names(), ElementsAre(u"añadido·€.xml"));
}

TEST_F(FilesOnDisk, ReplacingLeavesOnlyTheNewFile) {
  const std::u16string path = folder.File(u"modelo.xml");
  files.Replace(path, "a longer old content");
  files.Replace(path, "new");
  EXPECT_THAT(files.Read(path), Optional(std::string("new")));
  EXPECT_THAT(folder.Names(), ElementsAre(u"modelo.xml"));
}

TEST_F(FilesOnDisk, ReplacingUnflushedSwapsAsWell) {
  const std::u16string path = folder.File(u"EFactura.bmp");
  files.ReplaceUnflushed(path, "a longer old content");
  files.ReplaceUnflushed(path, "new");
  EXPECT_THAT(files.Read(path), Optional(std::string("new")));
  EXPECT_THAT(folder.Names(), ElementsAre(u"EFactura.bmp"));
  const OwnedFile reader = OpenedBySomeoneElse(path, FILE_SHARE_READ | FILE_SHARE_WRITE);
  EXPECT_RUNTIME_ERROR(70, files.ReplaceUnflushed(path, "newer"));
  EXPECT_THAT(files.Read(path), Optional(std::string("new")));
}

TEST_F(FilesOnDisk, TellTheLocalTimeOfTheirLastChange) {
  const std::u16string path = folder.File(u"modelo.xml");
  EXPECT_EQ(files.LastChange(path), std::nullopt);
  files.Replace(path, "x");
  const SYSTEMTIME local{2015, 7, 0, 14, 9, 8, 6, 0};
  SYSTEMTIME universal;
  FILETIME time;
  TzSpecificLocalTimeToSystemTime(nullptr, &local, &universal);
  SystemTimeToFileTime(&universal, &time);
  {
    const OwnedFile file(
        CreateFileW(Wide(path), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(SetFileTime(file.Get(), nullptr, nullptr, &time));
  }
  const std::optional<runtime::DateTime> found = files.LastChange(path);
  ASSERT_TRUE(found);
  EXPECT_EQ(runtime::Format(*found, u"yyyy-MM-dd HH:mm:ss"), u"2015-07-14 09:08:06");
}

TEST_F(FilesOnDisk, ReplacingKeepsAHiddenFileHidden) {
  const std::u16string path = folder.File(u"modelo.xml");
  files.Replace(path, "old");
  SetFileAttributesW(Wide(path), FILE_ATTRIBUTE_HIDDEN);
  files.Replace(path, "new");
  EXPECT_TRUE(GetFileAttributesW(Wide(path)) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(FilesOnDisk, ReplacingAReadOnlyFileIsError75AndKeepsIt) {
  const std::u16string path = folder.File(u"modelo.xml");
  files.Replace(path, "old");
  SetFileAttributesW(Wide(path), FILE_ATTRIBUTE_READONLY);
  EXPECT_RUNTIME_ERROR(75, files.Replace(path, "new"));
  EXPECT_THAT(files.Read(path), Optional(std::string("old")));
  EXPECT_THAT(folder.Names(), SizeIs(1));
}

TEST_F(FilesOnDisk, ReplacingALockedFileIsError70AndKeepsIt) {
  const std::u16string path = folder.File(u"modelo.xml");
  files.Replace(path, "old");
  {
    const OwnedFile reader = OpenedBySomeoneElse(path, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_RUNTIME_ERROR(70, files.Replace(path, "new"));
  }
  EXPECT_THAT(files.Read(path), Optional(std::string("old")));
  EXPECT_THAT(folder.Names(), ElementsAre(u"modelo.xml"));
  files.Replace(path, "new");
  EXPECT_THAT(files.Read(path), Optional(std::string("new")));
}

// Someone locks the file while the new content is being written beside it, so that only the swap fails. The
// content is large enough to be caught at it.
TEST_F(FilesOnDisk, ASwapThatFailsKeepsTheOldFileAndTakesTheNewContentAway) {
  const std::u16string path = folder.File(u"modelo.xml");
  files.Replace(path, "old");
  OwnedFile other;
  std::thread someone([&] {
    for (int attempt = 0; attempt < 10000 && folder.Names().size() == 1; ++attempt) Sleep(1);
    other = OpenedBySomeoneElse(path, 0);
  });
  const std::string content(64 * 1024 * 1024, 'n');
  EXPECT_RUNTIME_ERROR(70, files.Replace(path, content));
  someone.join();
  other.Reset();
  EXPECT_THAT(files.Read(path), Optional(std::string("old")));
  // Wine's swap leaves an empty file of another name behind when it fails.
  for (const std::u16string& name : folder.Names()) {
    EXPECT_TRUE(name == u"modelo.xml" || !name.starts_with(u"modelo.xml")) << testing::PrintToString(name);
  }
}

TEST_F(FilesOnDisk, WhoeverIsReadingAFileReadsTheOldContentToTheEnd) {
  const std::u16string path = folder.File(u"modelo.xml");
  files.Replace(path, "old");
  const OwnedFile reader = OpenedBySomeoneElse(path, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  files.Replace(path, "new");
  char content[4] = "";
  DWORD length = 0;
  EXPECT_TRUE(ReadFile(reader.Get(), content, 3, &length, nullptr));
  EXPECT_STREQ(content, "old");
  EXPECT_THAT(files.Read(path), Optional(std::string("new")));
}

TEST_F(FilesOnDisk, ReadingAFileThatSomeoneLocksIsError70) {
  const std::u16string path = folder.File(u"modelo.xml");
  files.Replace(path, "old");
  const OwnedFile writer = OpenedBySomeoneElse(path, 0);
  EXPECT_RUNTIME_ERROR(70, (void)files.Read(path));
}

TEST_F(FilesOnDisk, AMissingFileIsMadeEmptyByReadingItWhereAsked) {
  EXPECT_EQ(files.ReadOrCreate(folder.File(u"CLIEN.Qma"), 10), "");
  EXPECT_THAT(folder.Names(), ElementsAre(u"CLIEN.Qma"));
  EXPECT_THAT(files.Read(folder.File(u"CLIEN.Qma")), Optional(std::string()));
  EXPECT_RUNTIME_ERROR(76, (void)files.ReadOrCreate(folder.File(u"no\\CLIEN.Qma"), 10));
}

TEST_F(FilesOnDisk, AreReadUpToALengthWhileOthersWriteThem) {
  const std::u16string path = folder.File(u"CLIEN.Qma");
  files.Replace(path, "0123456789");
  SetFileAttributesW(Wide(path), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(files.ReadOrCreate(path, 4), "0123");
  SetFileAttributesW(Wide(path), FILE_ATTRIBUTE_NORMAL);
  const OwnedFile writer(CreateFileW(Wide(path), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                     OPEN_EXISTING, 0, nullptr));
  EXPECT_EQ(files.ReadOrCreate(path, 20), "0123456789");
}

TEST_F(FilesOnDisk, ReadingOrMakingALockedFileIsError70AndAFolderError75) {
  const std::u16string path = folder.File(u"CLIEN.Qma");
  files.Replace(path, "old");
  const OwnedFile writer = OpenedBySomeoneElse(path, 0);
  EXPECT_RUNTIME_ERROR(70, (void)files.ReadOrCreate(path, 10));
  CreateDirectoryW(Wide(folder.File(u"carpeta")), nullptr);
  EXPECT_RUNTIME_ERROR(75, (void)files.ReadOrCreate(folder.File(u"carpeta"), 10));
}

TEST_F(FilesOnDisk, WritingIntoAMissingFolderIsError76) {
  EXPECT_RUNTIME_ERROR(76, files.Replace(folder.File(u"no\\modelo.xml"), "new"));
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(FilesOnDisk, AFolderIsNoFile) {
  const std::u16string path = folder.File(u"carpeta");
  CreateDirectoryW(Wide(path), nullptr);
  EXPECT_FALSE(files.Exists(path));
  EXPECT_RUNTIME_ERROR(75, files.Replace(path, "new"));
  EXPECT_RUNTIME_ERROR(75, (void)files.Read(path));
}

TEST_F(FilesOnDisk, MayLieDeeperThanAnOrdinaryPathReaches) {
  std::u16string path = folder.File(u"");
  std::vector<std::u16string> made;
  while (path.size() < 400) {
    path += std::u16string(60, u'd') + u"\\";
    made.push_back(path);
    ASSERT_TRUE(CreateDirectoryW(Wide(u"\\\\?\\" + path), nullptr)) << GetLastError();
  }
  const std::u16string file = path + u"modelo.xml";
  files.Replace(file, "old");
  files.Replace(file, "deep");
  EXPECT_TRUE(files.Exists(file));
  EXPECT_THAT(files.Read(file), Optional(std::string("deep")));
  EXPECT_TRUE(DeleteFileW(Wide(u"\\\\?\\" + file)));
  for (auto each = made.rbegin(); each != made.rend(); ++each)
    EXPECT_TRUE(RemoveDirectoryW(Wide(u"\\\\?\\" + *each)));
}

TEST_F(FilesOnDisk, TheScratchFolderExistsAndEndsWithABackslash) {
  const std::u16string scratch = files.ScratchFolder();
  EXPECT_EQ(scratch.back(), u'\\');
  EXPECT_NE(GetFileAttributesW(Wide(scratch)) & FILE_ATTRIBUTE_DIRECTORY, 0U);
}

}  // namespace
}  // namespace qm::platform::win32
