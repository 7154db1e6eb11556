#include "platform/win32/folders.h"

#include "tests/platform/win32/expect_error.h"
#include "tests/platform/win32/scratch_folder.h"

namespace qm::platform::win32 {
namespace {

struct SystemFolders : testing::Test {
  ScratchFolder scratch;
  Win32Folders folders;
  std::u16string former = folders.FullPath(u".");

  ~SystemFolders() override { folders.SetCurrentFolder(former); }
};

bool IsFolder(const std::u16string& path) {
  const DWORD attributes = GetFileAttributesW(Wide(path));
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

TEST_F(SystemFolders, AreFoundByTheirNumber) {
  EXPECT_TRUE(IsFolder(folders.CarpetaEspecial(5)));
  EXPECT_TRUE(IsFolder(folders.CarpetaEspecial(43)));
  EXPECT_TRUE(folders.CarpetaEspecial(43).ends_with(u"Common Files"));
  EXPECT_EQ(folders.CarpetaEspecial(9999), u"");
}

TEST_F(SystemFolders, IncludeAWorkingFolderThatIsThereWhenAskedFor) {
  const std::u16string folder = folders.RutaTrabajo(u"");
  EXPECT_TRUE(folder.ends_with(u"\\Quillmar\\CRM\\"));
  EXPECT_TRUE(IsFolder(folder));
  EXPECT_EQ(folders.RutaTrabajo(u"EMAIL.TXT"), folder + u"EMAIL.TXT");
  EXPECT_EQ(folder.substr(0, folders.LocalData().size()), folders.LocalData());
}

TEST_F(SystemFolders, IncludeTheOneOfTheProgramThatHoldsThisCode) {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  EXPECT_TRUE(Text(path).starts_with(folders.ComponentFolder() + u"\\"));
}

TEST_F(SystemFolders, KnowTheUser) {
  EXPECT_NE(folders.UserName(), u"");
  EXPECT_EQ(folders.UserName().find(u'\0'), std::u16string::npos);
}

TEST_F(SystemFolders, MakeOneLevelOnly) {
  EXPECT_TRUE(folders.Make(scratch.File(u"año·2")));
  EXPECT_FALSE(folders.Make(scratch.File(u"año·2")));
  EXPECT_FALSE(folders.Make(scratch.File(u"a\\b")));
  EXPECT_TRUE(IsFolder(scratch.File(u"año·2")));
}

TEST_F(SystemFolders, MatchFoldersHiddenFilesAndPatterns) {
  EXPECT_FALSE(folders.Matches(scratch.File(u"x*")));
  folders.Make(scratch.File(u"xa"));
  EXPECT_TRUE(folders.Matches(scratch.File(u"xa")));
  EXPECT_TRUE(folders.Matches(scratch.File(u"x*")));
  Win32Files().Replace(scratch.File(u"oculto.txt"), "");
  SetFileAttributesW(Wide(scratch.File(u"oculto.txt")), FILE_ATTRIBUTE_HIDDEN);
  EXPECT_TRUE(folders.Matches(scratch.File(u"oculto.txt")));
}

TEST_F(SystemFolders, MakePathsFullAgainstTheCurrentOne) {
  folders.SetCurrentFolder(scratch.File(u""));
  EXPECT_EQ(folders.FullPath(u".") + u"\\", scratch.File(u""));
  EXPECT_EQ(folders.FullPath(u"x.pdf"), scratch.File(u"x.pdf"));
  EXPECT_EQ(folders.FullPath(u"a\\..\\x.pdf"), scratch.File(u"x.pdf"));
  EXPECT_EQ(folders.FullPath(u"C:/a/x.pdf"), u"C:\\a\\x.pdf");
  const std::u16string longName(400, u'n');
  EXPECT_EQ(folders.FullPath(longName), scratch.File(longName));
}

TEST_F(SystemFolders, AreNoCurrentOnesWhenTheyDoNotExist) {
  EXPECT_RUNTIME_ERROR(76, folders.SetCurrentFolder(scratch.File(u"nada\\")));
  EXPECT_EQ(folders.FullPath(u"."), former);
}

}  // namespace
}  // namespace qm::platform::win32
