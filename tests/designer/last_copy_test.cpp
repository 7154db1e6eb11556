#include "designer/last_copy.h"

#include <gmock/gmock.h>

#include "runtime/strings.h"
#include "tests/error_of.h"
#include "tests/fakes/fake_folders.h"
#include "tests/fakes/memory_files.h"

namespace qm::designer {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using tests::ErrorOf;

constexpr std::u16string_view kFile = u"C:\\Datos\\fact.xml";

struct LastCopyOfAModelFile : testing::Test {
  fakes::MemoryFiles files;
  fakes::FakeFolders folders;
  LastCopy copy{files, folders, kFile};
};

TEST_F(LastCopyOfAModelFile, LiesInTheUsersLocalDataUnderTheFilesName) {
  EXPECT_TRUE(copy.Path().starts_with(u"C:\\Users\\ana\\AppData\\Local\\TALVO\\Modelos\\fact-"));
  copy.Keep("<Modelos/>");
  EXPECT_EQ(files.contents.at(copy.Path()), "<Modelos/>");
  EXPECT_THAT(folders.made, ElementsAre(u"C:\\Users\\ana\\AppData\\Local\\TALVO",
                                        u"C:\\Users\\ana\\AppData\\Local\\TALVO\\Modelos"));
}

TEST_F(LastCopyOfAModelFile, IsAnotherOneForAFileOfTheSameNameElsewhere) {
  EXPECT_NE(LastCopy(files, folders, u"D:\\Datos\\fact.xml").Path(), copy.Path());
  EXPECT_TRUE(runtime::EqualFolded(LastCopy(files, folders, u"c:\\datos\\FACT.xml").Path(), copy.Path()));
}

TEST_F(LastCopyOfAModelFile, OfARelativeNameGoesByTheFullPath) {
  folders.currentFolder = u"C:\\Datos";
  EXPECT_EQ(LastCopy(files, folders, u"fact.xml").Path(), copy.Path());
}

TEST_F(LastCopyOfAModelFile, IsNotReplacedByWhatHoldsNoModels) {
  copy.Keep("<Modelos/>");
  for (const char* bytes : {"", "<Modelos>", "no es XML", "<?xml version=\"1.0\"?><Modelos/>"})
    copy.Keep(bytes);
  EXPECT_EQ(files.contents.at(copy.Path()), "<Modelos/>");
}

TEST_F(LastCopyOfAModelFile, IsWrittenOnlyWhenSomethingChanged) {
  copy.Keep("<Modelos/>");
  copy.Keep("<Modelos/>");
  EXPECT_EQ(files.replacements.size(), 1U);
}

TEST_F(LastCopyOfAModelFile, ThatCannotBeWrittenStopsNobody) {
  files.failReplaceWith = runtime::ErrorNumber::DiskFull;
  EXPECT_EQ(ErrorOf([&] { copy.Keep("<Modelos/>"); }), 0);
  EXPECT_FALSE(copy.IsGood());
}

TEST_F(LastCopyOfAModelFile, HasNoPlaceWithoutLocalDataOrAFile) {
  folders.localData = u"";
  LastCopy nowhere(files, folders, kFile);
  nowhere.Keep("<Modelos/>");
  EXPECT_FALSE(nowhere.IsGood());
  EXPECT_THAT(files.contents, IsEmpty());
  folders.localData = u"C:\\Local";
  EXPECT_EQ(LastCopy(files, folders, u"").Path(), u"");
}

TEST_F(LastCopyOfAModelFile, TakesTheDamagedFilesPlaceWhichIsKeptBesideIt) {
  copy.Keep("<Modelos/>");
  copy.Restore("<Model");
  EXPECT_EQ(files.contents.at(std::u16string(kFile)), "<Modelos/>");
  EXPECT_EQ(files.contents.at(u"C:\\Datos\\fact.xml.danado"), "<Model");
}

TEST_F(LastCopyOfAModelFile, NeverOverwritesAnEarlierDamagedFile) {
  copy.Keep("<Modelos/>");
  for (const char* damaged : {"a", "b", "a", "c"}) copy.Restore(damaged);
  EXPECT_EQ(files.contents.at(u"C:\\Datos\\fact.xml.danado"), "a");
  EXPECT_EQ(files.contents.at(u"C:\\Datos\\fact.xml.danado2"), "b");
  EXPECT_EQ(files.contents.at(u"C:\\Datos\\fact.xml.danado3"), "c");
}

TEST_F(LastCopyOfAModelFile, ThatIsDamagedItselfIsNotGood) {
  copy.Keep("<Modelos/>");
  EXPECT_TRUE(copy.IsGood());
  files.contents[copy.Path()] = "<Mod";
  EXPECT_FALSE(copy.IsGood());
}

}  // namespace
}  // namespace qm::designer
