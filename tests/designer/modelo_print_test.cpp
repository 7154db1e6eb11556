#include "designer/modelo_print.h"

#include <gmock/gmock.h>

#include "tests/designer/designer_world.h"

namespace qm::designer {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr std::u16string_view kSavePrompt =
    u"Se ha modificado el modelo... ¿desea grabar las modificaciones?";

constexpr std::u16string_view kUnreadable =
    u"El archivo de modelos no se puede leer. No se grabará nada en él.";

struct DesignerWindow : testing::Test, DesignerWorld {
  DesignerWindow() {
    SetFile(FileOf({ModelBytes(1, {"UNO", "DOS"}, "Printer=\"Impresora Recibos\" Copias=\"2\""),
                    ModelBytes(3, {"TRES"})}));
  }
};

// ---- Opening

TEST_F(DesignerWindow, OpensOnTheHostsModelUnmodified) {
  Open(3);
  EXPECT_THAT(Captions(), ElementsAre(u"TRES"));
  EXPECT_THAT(view.selectedModels, ElementsAre(2));
  EXPECT_FALSE(Doc().Modified());
  EXPECT_THAT(dialogs.told, IsEmpty());
}

TEST_F(DesignerWindow, OpensOnModelOneForANumberThatItDoesNotOffer) {
  for (const std::int16_t numero : {std::int16_t{0}, std::int16_t{10}, std::int16_t{-3}}) {
    Open(numero);
    EXPECT_EQ(view.selectedModels.back(), 0);
    EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS"));
  }
}

TEST_F(DesignerWindow, OffersExactlyOneToTenCopies) {
  EXPECT_THAT(kCopias, ElementsAre(u"01", u"02", u"03", u"04", u"05", u"06", u"07", u"08", u"09", u"10"));
  Open(9);
  EXPECT_EQ(Now().copias, u"01");
}

TEST_F(DesignerWindow, ShowsTheSystemsPrintersAndTheModelsOne) {
  Open();
  const std::vector<std::u16string> names = {u"Impresora A4", u"Impresora Recibos"};
  EXPECT_THAT(view.printers,
              ElementsAre(fakes::FakeView::Printers{names, -1}, fakes::FakeView::Printers{names, 1}));
}

TEST_F(DesignerWindow, OpensWithoutPrintersWhereTheirListCannotBeHad) {
  printers.listFails = true;
  Open();
  EXPECT_THAT(view.printers.back().names, IsEmpty());
  EXPECT_THAT(Captions(), SizeIs(2));
  EXPECT_THAT(dialogs.told, IsEmpty());
}

TEST_F(DesignerWindow, OpensAnEmptyPageForAFileThatIsEmptyOrNotThere) {
  SetFile("");
  Open();
  EXPECT_THAT(Captions(), IsEmpty());
  EXPECT_GT(Now().canvasWidth, 0);
  files.contents.clear();
  Open();
  EXPECT_THAT(files.contents, IsEmpty());
  EXPECT_THAT(dialogs.told, IsEmpty());
}

TEST_F(DesignerWindow, StaysWithItsModelFileWhenTheHostNamesAnother) {
  Open();
  modelFile.SetName(u"D:\\otro.xml");
  window->Grabar();
  EXPECT_EQ(files.replacements.back().path.substr(0, 3), u"C:\\");
  EXPECT_FALSE(files.contents.contains(u"D:\\otro.xml"));
}

TEST_F(DesignerWindow, UnloadsAtOnceWhenWindowsShutsDown) {
  Open();
  window->Form_QueryUnload(0);
  EXPECT_EQ(view.unloads, 0);
  window->Form_QueryUnload(2);
  EXPECT_EQ(view.unloads, 1);
}

// ---- Loading

TEST_F(DesignerWindow, LoadsAModelWhoseBackgroundIsMissingWithItsFields) {
  SetFile(FileOf({ModelBytes(1, {"UNO"}, "Imagen=\"fondo.bmp\"")}));
  Open();
  EXPECT_THAT(Captions(), ElementsAre(u"UNO"));
  EXPECT_THAT(dialogs.told,
              ElementsAre(fakes::ScriptedDialogs::Told{
                  platform::Icon::Information, u"No se encuentra la imagen: C:\\Modelos\\fondo.bmp"}));
  EXPECT_FALSE(Doc().Modified());
}

TEST_F(DesignerWindow, TellsWhatIsWrongWithAPictureThatIsNone) {
  files.contents[u"C:\\Modelos\\logo.bmp"] = "texto";
  SetFile(FileOf({ModelBytes(1, {"UNO"}, "ImagenLogo=\"logo.bmp|1|2|3|4\"")}));
  Open();
  EXPECT_THAT(dialogs.told, ElementsAre(fakes::ScriptedDialogs::Told{
                                platform::Icon::Exclamation, std::u16string(runtime::DescriptionOf(481))}));
  EXPECT_TRUE(Now().logo);
}

TEST_F(DesignerWindow, LoadsItsPicturesFromTheImageFolder) {
  files.contents[u"C:\\Modelos\\fondo.bmp"] = "PICTURE 40x30";
  SetFile(FileOf({ModelBytes(1, {}, "Imagen=\"fondo.bmp\"")}));
  Open();
  ASSERT_TRUE(Now().background);
  EXPECT_EQ(Now().background->WidthPixels(), 40);
}

TEST_F(DesignerWindow, AModelOfFiftyCentimetresShowsItsMessageOnce) {
  SetFile("<Modelos><Modelo Numero=\"1\" Width=\"30000\" Height=\"5670\"/></Modelos>");
  Open();
  EXPECT_THAT(Told(), ElementsAre(u"Tamaño exesivo"));
  EXPECT_EQ(Now().pageWidthCm, 20);
  EXPECT_EQ(Now().pageHeightCm, 10);
  EXPECT_FALSE(Doc().Modified());
}

TEST_F(DesignerWindow, AnotherModelStartsAHistoryOfItsOwn) {
  Open();
  window->MenuField_Click(0, 0);
  Doc().ClearModified();
  window->ModelChosen(2);
  window->Undo();
  EXPECT_THAT(Captions(), ElementsAre(u"TRES"));
  EXPECT_FALSE(Doc().Modified());
}

TEST_F(DesignerWindow, AModelThatTheFileDoesNotHaveIsAnEmptyPageOfTheSizeBefore) {
  Open();
  window->ModelChosen(6);
  EXPECT_THAT(Captions(), IsEmpty());
  EXPECT_EQ(Now().ancho, u"20");
  window->Grabar();
  EXPECT_THAT(File(), StartsWith("<Modelos><Modelo Numero=\"1\""));
  EXPECT_NE(File().find("<Modelo Numero=\"7\" Width=\"11340\" Height=\"5670\""), std::string::npos);
}

// ---- Saving and the save prompt

TEST_F(DesignerWindow, SavesTheModelBehindTheOthersAndIsNoLongerModified) {
  Open();
  window->List_Copias_Change(u"05");
  EXPECT_TRUE(Doc().Modified());
  window->Grabar();
  EXPECT_FALSE(Doc().Modified());
  EXPECT_LT(File().find("Numero=\"3\""), File().find("Numero=\"1\""));
  EXPECT_NE(File().find("Copias=\"05\""), std::string::npos);
}

TEST_F(DesignerWindow, LeavesAFileOfOneModelWhereThereWasNone) {
  SetFile("");
  Open(4);
  window->CREAR_NEW_Campo(u"UNO");
  window->Grabar();
  EXPECT_THAT(File(), StartsWith("<Modelos><Modelo Numero=\"4\" Width=\"11907\" Height=\"16839,9\""));
  EXPECT_THAT(File(), ::testing::EndsWith("</Campo></Modelo></Modelos>"));
}

TEST_F(DesignerWindow, KeepsTheNameOfAPrinterThatIsNotInstalledHere) {
  SetFile(FileOf({ModelBytes(1, {}, "Printer=\"De otra oficina\"")}));
  Open();
  EXPECT_EQ(view.printers.back().selected, -1);
  window->Grabar();
  EXPECT_NE(File().find("Printer=\"De otra oficina\""), std::string::npos);
}

TEST_F(DesignerWindow, AsksToSaveWhenAFieldWasOnlyPressed) {
  Open();
  EXPECT_TRUE(window->Form_Unload());
  EXPECT_THAT(dialogs.askedConfirmations, IsEmpty());
  window->TheCanvas().Press({0, 0}, Button::Left);
  window->TheCanvas().Release({0, 0});
  EXPECT_TRUE(Doc().Modified());
  EXPECT_TRUE(window->Form_Unload());
  EXPECT_THAT(dialogs.askedConfirmations, ElementsAre(kSavePrompt));
}

TEST_F(DesignerWindow, YesSavesAndNoDropsTheChanges) {
  Open();
  const std::string before = File();
  window->ChEsEtiqueta_Click(true);
  dialogs.confirmations = {false};
  EXPECT_TRUE(window->Form_Unload());
  EXPECT_EQ(File(), before);
  dialogs.confirmations = {true};
  EXPECT_TRUE(window->Form_Unload());
  EXPECT_NE(File().find("EsEtiqueta=\"1\" Logo=\"1\""), std::string::npos);
}

TEST_F(DesignerWindow, SavesUnderTheNumberThatWasShownBeforeAnotherIsLoaded) {
  Open(1);
  window->CREAR_NEW_Campo(u"NUEVO");
  dialogs.confirmations = {true};
  window->ModelChosen(2);
  EXPECT_THAT(Captions(), ElementsAre(u"TRES"));
  EXPECT_EQ(window->Numero(), 3);
  window->ModelChosen(0);
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS", u"NUEVO"));
  EXPECT_THAT(dialogs.askedConfirmations, SizeIs(1));
}

TEST_F(DesignerWindow, StaysWhenTheUserWantsToSaveAndThatFails) {
  Open();
  window->CREAR_NEW_Campo(u"NUEVO");
  files.failReplaceWith = runtime::ErrorNumber::DiskFull;
  dialogs.confirmations = {true, true, false};
  EXPECT_FALSE(window->Form_Unload());
  EXPECT_THAT(Told(), ElementsAre(runtime::DescriptionOf(61)));
  window->ModelChosen(2);
  EXPECT_EQ(view.selectedModels.back(), 0);
  EXPECT_EQ(window->Numero(), 1);
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS", u"NUEVO"));
  EXPECT_TRUE(Doc().Modified());
  EXPECT_TRUE(window->Form_Unload()) << "the third answer drops the changes";
}

// ---- A damaged model file

struct DamagedModelFile : DesignerWindow {
  std::string good = File();

  DamagedModelFile() {
    Open();  // leaves a copy
    SetFile("<Modelos><Modelo Num");
  }
};

TEST_F(DamagedModelFile, IsReplacedByItsLastGoodCopyWhenTheUserAgrees) {
  dialogs.confirmations = {true};
  Open();
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS"));
  EXPECT_EQ(File(), good);
  EXPECT_EQ(files.contents.at(modelFile.name + u".danado"), "<Modelos><Modelo Num");
  EXPECT_THAT(dialogs.told, IsEmpty());
}

TEST_F(DamagedModelFile, StaysAsItIsWhenTheUserDeclinesAndCannotBeSavedOver) {
  Open();
  EXPECT_THAT(dialogs.askedConfirmations, SizeIs(1));
  EXPECT_THAT(Captions(), IsEmpty());
  window->CREAR_NEW_Campo(u"NUEVO");
  window->Grabar();
  EXPECT_EQ(File(), "<Modelos><Modelo Num");
  EXPECT_THAT(Told(), ElementsAre(kUnreadable, kUnreadable));
  EXPECT_TRUE(Doc().Modified());
}

TEST_F(DamagedModelFile, WithoutACopyIsToldAndLeftAlone) {
  std::erase_if(files.contents, [&](const auto& file) { return file.first != modelFile.name; });
  Open();
  EXPECT_THAT(dialogs.askedConfirmations, IsEmpty());
  EXPECT_THAT(Told(), ElementsAre(kUnreadable));
  EXPECT_EQ(File(), "<Modelos><Modelo Num");
}

TEST_F(DamagedModelFile, IsKeptWhenTheCopyCannotTakeItsPlace) {
  files.failReplaceWith = runtime::ErrorNumber::DiskFull;
  dialogs.confirmations = {true};
  Open();
  EXPECT_THAT(Told(), ElementsAre(runtime::DescriptionOf(61)));
  EXPECT_EQ(File(), "<Modelos><Modelo Num");
}

TEST_F(DesignerWindow, AFileDamagedMeanwhileIsMendedBeforeTheModelIsSavedIntoIt) {
  Open();
  window->CREAR_NEW_Campo(u"NUEVO");
  SetFile("<Modelos><Modelo Num");
  window->Grabar();
  EXPECT_THAT(Told(), ElementsAre(kUnreadable));
  EXPECT_EQ(File(), "<Modelos><Modelo Num");
  EXPECT_TRUE(Doc().Modified());
  dialogs.confirmations = {true};
  window->Grabar();
  EXPECT_FALSE(Doc().Modified());
  EXPECT_EQ(files.contents.at(modelFile.name + u".danado"), "<Modelos><Modelo Num");
  Open(3);
  EXPECT_THAT(Captions(), ElementsAre(u"TRES"));
  Open(1);
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS", u"NUEVO"));
}

TEST_F(DesignerWindow, AFileThatBeginsWithADeclarationIsNoDamagedOneAndIsNotSavedOver) {
  Open();  // leaves a copy
  const std::string declared = "<?xml version=\"1.0\"?>" + File();
  SetFile(declared);
  Open();
  EXPECT_THAT(Captions(), IsEmpty());
  window->CREAR_NEW_Campo(u"NUEVO");
  window->Grabar();
  EXPECT_THAT(dialogs.askedConfirmations, IsEmpty());
  EXPECT_THAT(Told(), ElementsAre(kUnreadable));
  EXPECT_EQ(File(), declared);
}

TEST_F(DesignerWindow, AModelNumberThatTheListDoesNotHaveIsNotChosen) {
  Open();
  window->ModelChosen(-1);
  window->ModelChosen(9);
  EXPECT_EQ(window->Numero(), 1);
  EXPECT_THAT(Captions(), SizeIs(2));
}

TEST_F(DesignerWindow, AModelThatCouldNotBeReadIsNotSavedOverOnceTheFileIsThere) {
  files.failReadWith = runtime::ErrorNumber::PermissionDenied;
  Open();
  EXPECT_THAT(Told(), ElementsAre(runtime::DescriptionOf(70)));
  files.failReadWith.reset();
  const std::string before = File();
  window->CREAR_NEW_Campo(u"NUEVO");
  window->Grabar();
  EXPECT_EQ(File(), before);
  dialogs.confirmations = {false};
  window->ModelChosen(0);
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS"));
  window->Grabar();
  EXPECT_THAT(File(), Not(before));
}

TEST_F(DesignerWindow, TheLastGoodCopyIsTheFileAsItWasSavedLast) {
  Open();
  window->CREAR_NEW_Campo(u"NUEVO");
  window->Grabar();
  const std::string saved = File();
  SetFile("x");
  dialogs.confirmations = {true};
  Open();
  EXPECT_EQ(File(), saved);
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS", u"NUEVO"));
}

// ---- File menu

TEST_F(DesignerWindow, NewAsksWhichModelToStartFromAndKeepsItsOwnNumber) {
  Open(1);
  dialogs.texts = {u"3"};
  window->arch_Click(0);
  ASSERT_THAT(dialogs.askedTexts, SizeIs(1));
  EXPECT_EQ(dialogs.askedTexts[0].title, u"Utilzar como modelo");
  EXPECT_THAT(dialogs.askedTexts[0].choices,
              ElementsAre(u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9"));
  EXPECT_EQ(dialogs.askedTexts[0].defaultAnswer, u"");
  EXPECT_THAT(Captions(), ElementsAre(u"TRES"));
  EXPECT_THAT(dialogs.askedConfirmations, IsEmpty());
  EXPECT_FALSE(Doc().Modified());
  window->Grabar();
  Open(1);
  EXPECT_THAT(Captions(), ElementsAre(u"TRES"));
  Open(3);
  EXPECT_THAT(Captions(), ElementsAre(u"TRES"));
}

TEST_F(DesignerWindow, NewWithoutAnAnswerLeavesAnEmptyPageAndOneUndoBringsTheFieldsBack) {
  Open();
  window->arch_Click(0);
  EXPECT_THAT(Captions(), IsEmpty());
  EXPECT_TRUE(Doc().Modified());
  window->Undo();
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS"));
}

TEST_F(DesignerWindow, NewOffersToSaveTheFieldsAndNotTheEmptyPage) {
  Open();
  window->CREAR_NEW_Campo(u"NUEVO");
  dialogs.texts = {u"3"};
  dialogs.confirmations = {true};
  window->arch_Click(0);
  EXPECT_THAT(dialogs.askedConfirmations, ElementsAre(kSavePrompt));
  EXPECT_THAT(Captions(), ElementsAre(u"TRES"));
  Open(1);
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS", u"NUEVO"));
}

TEST_F(DesignerWindow, NewFromSomethingThatIsNoNumberSaysSo) {
  Open();
  dialogs.texts = {u"el mismo"};
  window->arch_Click(0);
  EXPECT_THAT(Told(), ElementsAre(runtime::DescriptionOf(13)));
  window->Undo();
  EXPECT_THAT(Captions(), SizeIs(2));
}

TEST_F(DesignerWindow, SavingAsCopiesTheFileAsItStandsOnDiskAndGoesOnWithItsOwn) {
  Open();
  window->CREAR_NEW_Campo(u"NUEVO");
  dialogs.filesToSave = {u"D:\\copia.xml"};
  const std::string before = File();
  window->arch_Click(1);
  EXPECT_THAT(dialogs.askedFilesToSave, ElementsAre(u"C:\\Modelos\\fact.xml"));
  EXPECT_EQ(files.contents.at(u"D:\\copia.xml"), before);
  EXPECT_TRUE(Doc().Modified());
  window->Grabar();
  EXPECT_EQ(files.contents.at(u"D:\\copia.xml"), before);
}

TEST_F(DesignerWindow, SavingAsUnderTheSameNameCopiesNothing) {
  Open();
  const auto writes = files.replacements.size();
  dialogs.filesToSave = {u"C:\\Modelos\\fact.xml", u"c:\\modelos\\FACT.XML"};
  window->arch_Click(1);
  window->arch_Click(1);
  window->arch_Click(1);  // cancelled
  EXPECT_EQ(files.replacements.size(), writes);
}

TEST_F(DesignerWindow, SavingAsBeforeThereIsAFileSaysSo) {
  files.contents.clear();
  Open();
  dialogs.filesToSave = {u"D:\\copia.xml"};
  window->arch_Click(1);
  EXPECT_THAT(Told(), ElementsAre(runtime::DescriptionOf(53)));
}

TEST_F(DesignerWindow, LeavingUnloadsTheWindow) {
  Open();
  window->arch_Click(2);
  EXPECT_EQ(view.unloads, 1);
}

}  // namespace
}  // namespace qm::designer
