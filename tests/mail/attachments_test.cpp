#include "mail/attachments.h"

#include <gmock/gmock.h>

#include "platform/zip_archiver.h"
#include "tests/fakes/fake_picture_page.h"
#include "tests/fakes/recorded_archiver.h"
#include "tests/mail/attachment_world.h"

namespace qm::mail {
namespace {

using fakes::RecordedArchiver;
using platform::ZipResult;
using runtime::ErrorNumber;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr char16_t kBitmap[] =
    u"C:\\Salida\\\\EFactura.bmp";  // as it is saved: one backslash too many does no harm

// ---- archives

TEST(CrearZip, MakesTheBitmapOfThePageAndAnArchiveInTheFolder) {
  AttachmentWorld world;
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  EXPECT_EQ(world.files.contents[kBitmap], "BMP\npage 3000x3000\n1000,100 Se\xC3\xB1or\n1000,400 Total\n");
  EXPECT_THAT(world.folders.currentSet, ElementsAre(u"C:\\Salida\\"));
  EXPECT_THAT(world.archiver.runs,
              ElementsAre(RecordedArchiver::Run{u"C:\\Salida\\fra.zip", {u"C:\\Salida\\EFactura.bmp"}}));
  EXPECT_THAT(world.prompts.warnings, IsEmpty());
}

TEST(CrearZip, AFileNameEndingInPdfInAnyCaseMakesAPdfAndNoArchive) {
  for (const char16_t* name : {u"fra.pdf", u"fra.PDF", u"fra.PdF"}) {
    AttachmentWorld world;
    EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", name), 0);
    EXPECT_THAT(world.files.contents[u"C:\\Salida\\\\" + std::u16string(name)], StartsWith("%PDF-"));
    EXPECT_THAT(world.archiver.runs, IsEmpty());
  }
}

TEST(CrearZip, AnEmptyFolderBecomesTheComponentsOwnAndTheHostSeesIt) {
  AttachmentWorld world;
  std::u16string eDir;
  CrearZip(world.job, world.environment, eDir, u"fra.zip");
  EXPECT_EQ(eDir, u"C:\\Programas\\Modelos\\");
  EXPECT_TRUE(world.files.contents.contains(u"C:\\Programas\\Modelos\\\\EFactura.bmp"));
  EXPECT_EQ(world.archiver.runs.at(0).archive, u"C:\\Programas\\Modelos\\fra.zip");
}

TEST(CrearZip, AMissingFolderIsMadeAndOneWithSomethingInItIsNot) {
  AttachmentWorld world;
  EXPECT_EQ(world.CrearZip(u"C:\\Nueva\\", u"fra.zip"), 0);
  EXPECT_THAT(world.folders.made, ElementsAre(u"C:\\Nueva\\"));
  world.folders.existing.insert(u"C:\\Salida\\*.*");
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  EXPECT_THAT(world.folders.made, ElementsAre(u"C:\\Nueva\\"));
}

TEST(CrearZip, MakingAFolderThatIsThereButEmptyFailsAndIsIgnored) {
  AttachmentWorld world;
  world.folders.makingFails = true;
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  EXPECT_EQ(world.archiver.runs.size(), 1U);
}

TEST(CrearZip, AnEarlierBitmapIsReplaced) {
  AttachmentWorld world;
  world.files.contents[kBitmap] = "anterior";
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  EXPECT_THAT(world.files.contents[kBitmap], StartsWith("BMP\n"));
}

TEST(CrearZip, ABitmapThatCannotBeSavedIsTheHostsErrorAndNothingIsPacked) {
  AttachmentWorld world;
  world.files.failReplaceWith = ErrorNumber::DiskFull;
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 61);
  EXPECT_THAT(world.archiver.runs, IsEmpty());
}

TEST(CrearZip, AFolderThatWentAwayIsTheHostsError) {
  AttachmentWorld world;
  world.folders.cannotBeSet.insert(u"C:\\Salida\\");
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 76);
  EXPECT_THAT(world.archiver.runs, IsEmpty());
}

TEST(CrearZip, AFullDiskAndAnyOtherFailureHaveAMessageEach) {
  AttachmentWorld world;
  world.archiver.result = ZipResult::DiskFull;
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  EXPECT_THAT(world.prompts.warnings, ElementsAre(u"Disco lleno ... Copia Abortada"));
  for (const ZipResult result :
       {ZipResult::FilesSkipped, ZipResult::BadArchive, ZipResult::NothingToDo, ZipResult::SystemError}) {
    world.prompts.warnings.clear();
    world.archiver.result = result;
    EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
    EXPECT_THAT(world.prompts.warnings, ElementsAre(u"Se produjeron errores al crear el archivo ZIP"));
  }
}

TEST(CrearZip, AModelThatIsNotThereIsTheHostsErrorBeforeAnythingIsMade) {
  for (const char16_t* name : {u"fra.zip", u"fra.pdf"}) {
    AttachmentWorld world;
    world.job.numeroModelo = 7.0;
    EXPECT_EQ(world.CrearZip(u"C:\\Nueva\\", name), 50102);
    world.modelFile.SetName(u"C:\\Modelos\\falta.xml");
    EXPECT_EQ(world.CrearZip(u"C:\\Nueva\\", name), 50100);
    world.modelFile.SetName(u"");
    EXPECT_EQ(world.CrearZip(u"C:\\Nueva\\", name), 50101);
    EXPECT_THAT(world.folders.made, IsEmpty());
    EXPECT_FALSE(world.files.contents.contains(u"C:\\Nueva\\\\EFactura.bmp"));
  }
}

TEST(CrearZip, AModelOfThreeCopiesWithAMissingPrinterIsDrawnOnceWithoutAQuestion) {
  AttachmentWorld world("Copias=\"3\" Printer=\"No existe\"");
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  EXPECT_EQ(world.files.contents[kBitmap], "BMP\npage 3000x3000\n1000,100 Se\xC3\xB1or\n1000,400 Total\n");
  EXPECT_THAT(world.prompts.printerPrompts, IsEmpty());
}

TEST(CrearZip, ASheetOfLabelsIsDrawnAsAPlainPage) {
  AttachmentWorld world("EsEtiqueta=\"1\"");
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  EXPECT_EQ(world.files.contents[kBitmap], "BMP\npage 3000x3000\n1000,100 Se\xC3\xB1or\n1000,400 Total\n");
}

TEST(CrearZip, ANameThatNoFileCanHaveIsRefusedBeforeAnythingIsMade) {
  for (const char16_t* name : {u"CON.zip", u"nul.pdf", u"\\\\.\\C:", u"a\nb.pdf"}) {
    AttachmentWorld world;
    EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", name), 52);
    EXPECT_THAT(world.archiver.runs, IsEmpty());
    EXPECT_THAT(world.files.replacements, IsEmpty());
  }
}

TEST(CrearZip, AFullDiskLeavesTheOldArchiveAndSaysSo) {
  AttachmentWorld world;
  world.useRealArchiver = true;
  world.files.contents[u"C:\\Salida\\EFactura.bmp"] = "BMP";  // where a reader of the plain path finds it
  ASSERT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  const std::string before = world.files.contents[u"C:\\Salida\\fra.zip"];
  ASSERT_THAT(before, HasSubstr("EFactura.bmp"));
  world.files.fullFor = u"C:\\Salida\\fra.zip";
  EXPECT_EQ(world.CrearZip(u"C:\\Salida\\", u"fra.zip"), 0);
  EXPECT_EQ(world.files.contents[u"C:\\Salida\\fra.zip"], before);
  EXPECT_THAT(world.prompts.warnings, ElementsAre(u"Disco lleno ... Copia Abortada"));
}

// ---- PDF files

TEST(CrearPdf, HasThePictureAndItsTextsUnderTheFilesOwnTitle) {
  AttachmentWorld world;
  EXPECT_EQ(world.CrearPdf(u"C:\\Salida\\", u"Factura 42.pdf"), 0);
  const std::string& pdf = world.files.contents[u"C:\\Salida\\\\Factura 42.pdf"];
  EXPECT_THAT(pdf, HasSubstr("/Width 200/Height 200"));
  EXPECT_THAT(pdf, HasSubstr("/Title<FEFF0046006100630074007500720061002000340032>"));
  EXPECT_THAT(pdf, HasSubstr("/StructElem/S/P"));
  EXPECT_TRUE(world.files.contents.contains(kBitmap));
}

TEST(CrearPdf, WithoutAFinalBackslashTheBitmapIsSavedInTheFolderAndNotFoundBesideIt) {
  AttachmentWorld world;
  EXPECT_EQ(world.CrearPdf(u"C:\\Salida", u"fra.pdf"), 53);
  EXPECT_TRUE(world.files.contents.contains(u"C:\\Salida\\EFactura.bmp"));
  EXPECT_FALSE(world.files.contents.contains(u"C:\\Salida\\fra.pdf"));
}

TEST(CrearPdf, WithoutAFinalBackslashABitmapThatStandsBesideTheFolderIsTakenWithoutTexts) {
  AttachmentWorld world;
  world.files.contents[u"C:\\SalidaEFactura.bmp"] = "PICTURE 40x30";
  EXPECT_EQ(world.CrearPdf(u"C:\\Salida", u"fra.pdf"), 0);
  const std::string& pdf = world.files.contents[u"C:\\Salida\\fra.pdf"];
  EXPECT_THAT(pdf, HasSubstr("/Width 40/Height 30"));
  EXPECT_THAT(pdf, Not(HasSubstr("/Font")));
}

TEST(CrearPdf, AFileThatIsOpenElsewhereEndsItSilently) {
  AttachmentWorld world;
  world.files.contents[u"C:\\Salida\\fra.pdf"] = "abierto";
  world.files.locked.insert(u"C:\\Salida\\fra.pdf");
  EXPECT_EQ(world.CrearPdf(u"C:\\Salida\\", u"fra.pdf"), 0);
  EXPECT_EQ(world.files.contents[u"C:\\Salida\\fra.pdf"], "abierto");
  EXPECT_FALSE(world.files.contents.contains(kBitmap));
  EXPECT_THAT(world.prompts.warnings, IsEmpty());
}

TEST(CrearPdf, AFullDiskIsTheHostsError) {
  AttachmentWorld world;
  world.files.fullFor = u"C:\\Salida\\\\fra.pdf";
  EXPECT_EQ(world.CrearPdf(u"C:\\Salida\\", u"fra.pdf"), 61);
  EXPECT_TRUE(world.files.contents.contains(kBitmap));
}

TEST(CrearPdf, AnEmptyFolderBecomesTheComponentsOwn) {
  AttachmentWorld world;
  std::u16string eDir;
  CrearPdf(world.job, world.environment, eDir, u"fra.pdf");
  EXPECT_EQ(eDir, u"C:\\Programas\\Modelos\\");
  EXPECT_TRUE(world.files.contents.contains(u"C:\\Programas\\Modelos\\\\fra.pdf"));
}

TEST(CrearPdf, AMissingFolderIsMade) {
  AttachmentWorld world;
  EXPECT_EQ(world.CrearPdf(u"C:\\Nueva\\", u"fra.pdf"), 0);
  EXPECT_THAT(world.folders.made, ElementsAre(u"C:\\Nueva\\"));
}

}  // namespace
}  // namespace qm::mail
