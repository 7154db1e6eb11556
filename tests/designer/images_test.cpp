// The background and the logo: choosing, copying, removing, sizing, and the paint program.

#include "designer/images.h"

#include <gmock/gmock.h>

#include "runtime/error.h"
#include "tests/designer/designing_world.h"
#include "tests/error_of.h"

namespace qm::designer {
namespace {

using platform::Icon;
using runtime::ErrorNumber;
using testing::ElementsAre;
using testing::IsEmpty;

using Kind = platform::PropertyEntry::Kind;
using Started = fakes::RecordedProcesses::Started;
using Texts = std::vector<std::u16string>;
using Told = fakes::ScriptedDialogs::Told;

constexpr char16_t kOwnFile[] = u"C:\\Modelos\\fondo.bmp";
constexpr char16_t kOtherFile[] = u"D:\\Fotos\\fondo.bmp";

struct Pictures : testing::Test, DesigningWorld {
  Pictures() {
    files.contents[kOwnFile] = "PICTURE 40x30";
    files.contents[kOtherFile] = "PICTURE 800x600";
  }

  Document document;
  Images images{world, document};

  [[nodiscard]] const Layout& Now() const { return document.Current(); }
  void InsertaImagen(std::u16string path) {
    dialogs.filesToOpen = {std::move(path)};
    images.InsertaImagen();
  }
  void Logotipo(std::u16string path) {
    dialogs.filesToOpen = {std::move(path)};
    images.Logotipo();
  }
  void SizeLogo(Texts answers) {
    dialogs.properties = {std::move(answers)};
    images.Fotx_DblClick();
  }
  [[nodiscard]] std::u16string Description(ErrorNumber number) const {
    return std::u16string(runtime::DescriptionOf(static_cast<int>(number)));
  }
};

using Background = Pictures;

TEST_F(Background, IsAskedForAmongBitmapsAndJpegsOfTheImageFolder) {
  images.InsertaImagen();
  ASSERT_EQ(dialogs.askedFilesToOpen.size(), 1U);
  EXPECT_EQ(dialogs.askedFilesToOpen[0].filter, u"Imagenes (*.bmp;*.jpg)|*.bmp;*.jpg");
  EXPECT_EQ(dialogs.askedFilesToOpen[0].initialFolder, u"C:\\Modelos\\");
}

TEST_F(Background, ACancelledDialogChangesNothingAndCopiesNothing) {
  images.InsertaImagen();
  EXPECT_EQ(Now(), Layout());
  EXPECT_FALSE(document.Modified());
  EXPECT_THAT(files.replacements, IsEmpty());
}

TEST_F(Background, ChosenInTheImageFolderIsNotCopied) {
  InsertaImagen(kOwnFile);
  EXPECT_EQ(Now().imagen, u"fondo.bmp");
  EXPECT_EQ(Now().background->WidthPixels(), 40);
  EXPECT_THAT(files.replacements, IsEmpty());
  EXPECT_TRUE(document.Modified());
}

TEST_F(Background, ChosenInTheImageFolderUnderOtherLetterCaseIsNotCopiedOntoItself) {
  files.contents[u"c:\\MODELOS\\Fondo.BMP"] = "PICTURE 40x30";
  InsertaImagen(u"c:\\MODELOS\\Fondo.BMP");
  EXPECT_EQ(Now().imagen, u"Fondo.BMP");
  EXPECT_THAT(files.replacements, IsEmpty());
}

TEST_F(Background, ChosenElsewhereOverwritesTheCopyOfThatNameInTheImageFolder) {
  InsertaImagen(kOtherFile);
  EXPECT_EQ(Now().imagen, u"fondo.bmp");
  EXPECT_EQ(Now().background->WidthPixels(), 800);
  EXPECT_EQ(files.contents[kOwnFile], "PICTURE 800x600");
  EXPECT_EQ(files.contents[kOtherFile], "PICTURE 800x600");
}

TEST_F(Background, AFileWithoutAFolderIsItsOwnName) {
  files.contents[u"suelto.jpg"] = "PICTURE 5x5";
  InsertaImagen(u"suelto.jpg");
  EXPECT_EQ(Now().imagen, u"suelto.jpg");
  EXPECT_EQ(files.contents[u"C:\\Modelos\\suelto.jpg"], "PICTURE 5x5");
}

TEST_F(Background, AFileThatIsNoPictureIsToldAndNotCopied) {
  for (const char* bytes : {"Estimado señor:", "PICTURE 0x30", "PICTURE 40x0", ""}) {
    files.contents[kOtherFile] = bytes;
    dialogs.told.clear();
    InsertaImagen(kOtherFile);
    EXPECT_THAT(dialogs.told, ElementsAre(Told{Icon::Exclamation, Description(ErrorNumber::InvalidPicture)}));
  }
  EXPECT_EQ(Now(), Layout());
  EXPECT_EQ(files.contents[kOwnFile], "PICTURE 40x30");
}

TEST_F(Background, ThatCannotBeCopiedLeavesLayoutAndFolderAsTheyWere) {
  files.failReplaceWith = ErrorNumber::DiskFull;
  EXPECT_EQ(tests::ErrorOf([&] {
              InsertaImagen(kOtherFile);
              return 0;
            }),
            61);
  EXPECT_EQ(Now(), Layout());
  EXPECT_EQ(files.contents[kOwnFile], "PICTURE 40x30");
}

TEST_F(Background, IsOneStepOfUndo) {
  InsertaImagen(kOwnFile);
  EXPECT_TRUE(document.Undo());
  EXPECT_EQ(Now(), Layout());
  EXPECT_FALSE(document.Undo());
}

TEST_F(Background, RemovedFromThePageKeepsItsFile) {
  InsertaImagen(kOwnFile);
  images.EliminarFondo();
  EXPECT_EQ(Now().imagen, u"");
  EXPECT_EQ(Now().background, nullptr);
  EXPECT_TRUE(files.Exists(kOwnFile));
}

using Loading = Pictures;

TEST_F(Loading, AMissingPictureIsToldWithItsPath) {
  EXPECT_EQ(images.LoadOrTell(u"C:\\Modelos\\no.bmp"), nullptr);
  EXPECT_THAT(dialogs.told,
              ElementsAre(Told{Icon::Information, u"No se encuentra la imagen: C:\\Modelos\\no.bmp"}));
}

TEST_F(Loading, AnyOtherFailureIsToldByItsDescription) {
  files.failReadWith = ErrorNumber::PermissionDenied;
  EXPECT_EQ(images.LoadOrTell(kOwnFile), nullptr);
  EXPECT_THAT(dialogs.told, ElementsAre(Told{Icon::Exclamation, Description(ErrorNumber::PermissionDenied)}));
}

TEST_F(Loading, BareNamesLieInTheImageFolder) {
  EXPECT_EQ(images.PathOf(u"fondo.bmp"), kOwnFile);
  EXPECT_EQ(images.PathOf(u"sub\\fondo.bmp"), u"C:\\Modelos\\sub\\fondo.bmp");
  EXPECT_EQ(images.PathOf(u"D:\\fondo.bmp"), u"D:\\fondo.bmp");
  EXPECT_EQ(images.PathOf(u"\\\\servidor\\fotos\\fondo.bmp"), u"\\\\servidor\\fotos\\fondo.bmp");
}

using Painting = Pictures;

TEST_F(Painting, RunsThePaintProgramWithThePathInQuotesAndShowsTheEditedPicture) {
  InsertaImagen(kOwnFile);
  document.ClearModified();
  processes.whileRunning = [&] { files.contents[kOwnFile] = "PICTURE 41x31"; };
  images.EditImagen();
  EXPECT_THAT(processes.started, ElementsAre(Started{u"MSPAINT.EXE", u"\"C:\\Modelos\\fondo.bmp\"", true}));
  EXPECT_EQ(Now().background->WidthPixels(), 41);
  EXPECT_FALSE(document.Modified());  // the file is another one, the layout is not
}

TEST_F(Painting, UndoneEditsShowTheEditedPictureToo) {
  InsertaImagen(kOwnFile);
  document.Edit([](Layout& layout) { layout.copias = u"03"; });
  processes.whileRunning = [&] { files.contents[kOwnFile] = "PICTURE 41x31"; };
  images.EditImagen();
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(Now().background->WidthPixels(), 41);
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(Now().background, nullptr);
  ASSERT_TRUE(document.Redo());
  EXPECT_EQ(Now().background->WidthPixels(), 41);
}

TEST_F(Painting, WithoutABackgroundAsksForOneInsteadOfStartingTheProgram) {
  dialogs.filesToOpen = {kOwnFile};
  images.EditImagen();
  EXPECT_THAT(processes.started, IsEmpty());
  EXPECT_EQ(Now().imagen, u"fondo.bmp");
}

TEST_F(Painting, AProgramThatDoesNotStartIsToldAndLeavesThePicture) {
  InsertaImagen(kOwnFile);
  const PicturePointer before = Now().background;
  processes.failWith = ErrorNumber::FileNotFound;
  images.EditImagen();
  EXPECT_THAT(dialogs.told, ElementsAre(Told{Icon::Exclamation, u"No se puede abrir MSPAINT.EXE: " +
                                                                    Description(ErrorNumber::FileNotFound)}));
  EXPECT_EQ(Now().background, before);
}

TEST_F(Painting, APictureDeletedMeanwhileIsTold) {
  InsertaImagen(kOwnFile);
  processes.whileRunning = [&] { files.contents.erase(kOwnFile); };
  images.EditImagen();
  EXPECT_THAT(dialogs.told,
              ElementsAre(Told{Icon::Information, u"No se encuentra la imagen: C:\\Modelos\\fondo.bmp"}));
  EXPECT_EQ(Now().imagen, u"fondo.bmp");
  EXPECT_EQ(Now().background, nullptr);
}

TEST_F(Painting, ANameWithAQuoteStartsNothing) {
  document.Adjust([](Layout& layout) { layout.imagen = u"x\" /p \"y.bmp"; });
  images.EditImagen();
  EXPECT_THAT(processes.started, IsEmpty());
  EXPECT_EQ(dialogs.told.size(), 1U);
}

using LogoOfAModel = Pictures;

TEST_F(LogoOfAModel, StandsACentimetreFromTheCornerInItsOwnSize) {
  Logotipo(kOwnFile);
  ASSERT_TRUE(Now().logo);
  EXPECT_EQ(Now().logo->archivo, u"fondo.bmp");
  EXPECT_EQ(Now().logo->picture->WidthPixels(), 40);
  EXPECT_EQ(Now().logo->box, (Box{567, 567, 600, 450}));
  EXPECT_FALSE(Now().logo->borders);
}

TEST_F(LogoOfAModel, IsCopiedByTheRuleOfTheBackground) {
  Logotipo(kOwnFile);
  EXPECT_THAT(files.replacements, IsEmpty());
  Logotipo(kOtherFile);
  EXPECT_EQ(files.contents[kOwnFile], "PICTURE 800x600");
}

TEST_F(LogoOfAModel, ThatCannotBeLoadedLeavesTheFormerOne) {
  Logotipo(kOwnFile);
  const Layout before = Now();
  Logotipo(u"D:\\no.bmp");
  EXPECT_EQ(Now(), before);
  EXPECT_EQ(dialogs.told.size(), 1U);
}

TEST_F(LogoOfAModel, OffersItsSizeInCentimetres) {
  Logotipo(kOwnFile);
  images.Fotx_DblClick();
  ASSERT_EQ(dialogs.askedProperties.size(), 1U);
  EXPECT_EQ(dialogs.askedProperties[0].title, u"Cambiar Tamaño");
  EXPECT_THAT(dialogs.askedProperties[0].entries,
              ElementsAre(platform::PropertyEntry{u"Ancho", u"1,058201", Kind::Text},
                          platform::PropertyEntry{u"Alto", u"0,7936508", Kind::Text},
                          platform::PropertyEntry{u"Con bordes", u"0", Kind::Check},
                          platform::PropertyEntry{u"Nuevo Logo", u"", Kind::PictureFile}));
}

TEST_F(LogoOfAModel, TakesTheSizeAndTheBordersInOneStep) {
  Logotipo(kOwnFile);
  SizeLogo({u"2,5", u"1.5", u"1", u""});
  EXPECT_EQ(Now().logo->box, (Box{567, 567, 1417.5F, 850.5F}));
  EXPECT_TRUE(Now().logo->borders);
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(Now().logo->box, (Box{567, 567, 600, 450}));
}

TEST_F(LogoOfAModel, AcceptedAsItIsStaysExactlyAsItIs) {
  Logotipo(kOwnFile);
  document.ClearModified();
  SizeLogo({u"1,058201", u"0,7936508", u"0", u""});
  EXPECT_EQ(Now().logo->box, (Box{567, 567, 600, 450}));
  EXPECT_FALSE(document.Modified());
}

TEST_F(LogoOfAModel, TakesNoNegativeOrEndlessSize) {
  Logotipo(kOwnFile);
  SizeLogo({u"-2", u"nada", u"0", u""});
  EXPECT_EQ(Now().logo->box, (Box{567, 567, 0, 0}));
  SizeLogo({u"1e300", u"49.9", u"0", u""});
  EXPECT_EQ(Now().logo->box, (Box{567, 567, 1e6F, 28293.3F}));
}

TEST_F(LogoOfAModel, TakesANewFileIntoTheSizeGiven) {
  Logotipo(kOwnFile);
  files.contents[u"D:\\Fotos\\sello.jpg"] = "PICTURE 9x9";
  SizeLogo({u"2", u"1", u"0", u"D:\\Fotos\\sello.jpg"});
  EXPECT_EQ(Now().logo->archivo, u"sello.jpg");
  EXPECT_EQ(Now().logo->picture->WidthPixels(), 9);
  EXPECT_EQ(Now().logo->box, (Box{567, 567, 1134, 567}));
  EXPECT_EQ(files.contents[u"C:\\Modelos\\sello.jpg"], "PICTURE 9x9");
}

TEST_F(LogoOfAModel, ANewFileThatCannotBeLoadedIsToldAndTheSizeTakenAllTheSame) {
  Logotipo(kOwnFile);
  SizeLogo({u"2", u"1", u"0", u"no.jpg"});
  EXPECT_THAT(dialogs.told,
              ElementsAre(Told{Icon::Information, u"No se encuentra la imagen: C:\\Modelos\\no.jpg"}));
  EXPECT_EQ(Now().logo->archivo, u"fondo.bmp");
  EXPECT_EQ(Now().logo->box, (Box{567, 567, 1134, 567}));
}

TEST_F(LogoOfAModel, SizeDialogCancelledOrWithoutALogoChangesNothing) {
  images.Fotx_DblClick();
  EXPECT_THAT(dialogs.askedProperties, IsEmpty());
  Logotipo(kOwnFile);
  const Layout before = Now();
  images.Fotx_DblClick();
  EXPECT_EQ(Now(), before);
}

}  // namespace
}  // namespace qm::designer
