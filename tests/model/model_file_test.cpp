#include "model/model_file.h"

#include <gtest/gtest.h>

#include "runtime/error.h"
#include "tests/fakes/memory_files.h"
#include "tests/model/sample_models.h"

namespace qm::model {
namespace {

using runtime::ErrorNumber;
using runtime::Locale;

constexpr std::u16string_view kPath = u"C:\\Modelos\\fact.xml";

class SavingToAFile : public testing::Test {
 protected:
  void Save(std::int32_t numero) { SaveModel(files, kPath, SampleModel(numero), Locale::Spanish()); }
  void PutFile(std::string bytes) { files.contents[std::u16string(kPath)] = std::move(bytes); }
  [[nodiscard]] std::string File() { return files.Read(kPath).value_or("(no file)"); }
  int ErrorOfSaving() {
    try {
      Save(1);
    } catch (const runtime::RuntimeError& error) {
      return error.number();
    }
    return 0;
  }

  fakes::MemoryFiles files;
};

TEST(ModelFileName, GivesItsFolderWithTheFinalBackslash) {
  ModelFile file;
  file.SetName(kPath);
  EXPECT_EQ(file.name, kPath);
  EXPECT_EQ(file.folder, u"C:\\Modelos\\");
}

TEST(ModelFileName, GivesNoFolderWhenBare) {
  ModelFile file;
  file.SetName(kPath);
  file.SetName(u"fact.xml");
  EXPECT_EQ(file.name, u"fact.xml");
  EXPECT_EQ(file.folder, u"");
  file.SetName(u"");
  EXPECT_EQ(file.folder, u"");
}

TEST(ModelFileName, LooksAtBackslashesOnly) {
  ModelFile file;
  file.SetName(u"C:/Modelos/fact.xml");
  EXPECT_EQ(file.folder, u"");
  file.SetName(u"\\\\servidor\\modelos\\");
  EXPECT_EQ(file.folder, u"\\\\servidor\\modelos\\");
}

TEST_F(SavingToAFile, CreatesItWhenThereIsNone) {
  Save(5);
  ASSERT_EQ(files.replacements.size(), 1U);
  EXPECT_EQ(files.replacements[0].path, kPath);
  EXPECT_TRUE(ModelDocument::Parse(File()).Find(5));
}

TEST_F(SavingToAFile, FillsAnEmptyOne) {
  PutFile("");
  Save(5);
  EXPECT_EQ(File().rfind("<Modelos><Modelo Numero=\"5\" ", 0), 0U);
}

TEST_F(SavingToAFile, LeavesModelsOneThreeFiveInTheOrderOneFiveThree) {
  for (const int numero : {1, 3, 5, 3}) Save(numero);
  const std::string file = File();
  EXPECT_LT(file.find("Numero=\"1\""), file.find("Numero=\"5\""));
  EXPECT_LT(file.find("Numero=\"5\""), file.find("Numero=\"3\""));
  EXPECT_EQ(file.find("Numero=\"3\""), file.rfind("Numero=\"3\""));
  EXPECT_EQ(files.replacements.size(), 4U);
}

TEST_F(SavingToAFile, LeavesAFileThatCannotBeParsedAsItIs) {
  for (const char* text : {"no es XML", "<Modelos>", " ", "<Modelos/><Modelos/>"}) {
    PutFile(text);
    EXPECT_EQ(ErrorOfSaving(), 91);
    EXPECT_EQ(File(), text);
  }
  EXPECT_TRUE(files.replacements.empty());
}

TEST_F(SavingToAFile, LeavesAFileWithADeclarationAsItIs) {
  PutFile("<?xml version=\"1.0\"?><Modelos><Modelo Numero=\"1\"/></Modelos>");
  EXPECT_EQ(ErrorOfSaving(), 91);
  EXPECT_TRUE(files.replacements.empty());
}

TEST_F(SavingToAFile, PassesOnWhatReadingAndWritingFailWith) {
  PutFile("<Modelos/>");
  files.failReplaceWith = ErrorNumber::DiskFull;
  EXPECT_EQ(ErrorOfSaving(), 61);
  files.failReadWith = ErrorNumber::PermissionDenied;
  EXPECT_EQ(ErrorOfSaving(), 70);
  files.failReadWith.reset();
  EXPECT_EQ(File(), "<Modelos/>");
}

}  // namespace
}  // namespace qm::model
