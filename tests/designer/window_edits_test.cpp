// Page settings, fields and printers in the designer's window.

#include <gmock/gmock.h>

#include "designer/field_properties.h"
#include "tests/designer/designer_world.h"

namespace qm::designer {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct EditingAModel : testing::Test, DesignerWorld {
  EditingAModel() {
    SetFile(FileOf({ModelBytes(1, {"UNO", "DOS", "TRES"}, "Printer=\"Impresora A4\"")}));
    menus[0].items = {u"Cliente", u"#Mensaje", u"|Otro"};
    Open();
  }

  // Whether what was done since is one step of undo, and can be done again.
  ::testing::AssertionResult IsOneStepFrom(const Layout& before) {
    const Layout after = Now();
    if (!Doc().Modified()) return ::testing::AssertionFailure() << "not modified";
    window->Undo();
    if (!(Now() == before)) return ::testing::AssertionFailure() << "not undone";
    if (!Doc().Modified()) return ::testing::AssertionFailure() << "undo cleared the modified mark";
    window->Redo();
    if (!(Now() == after)) return ::testing::AssertionFailure() << "not redone";
    return ::testing::AssertionSuccess();
  }
};

// ---- Page size

TEST_F(EditingAModel, FiftyInAnchoGivesTheMessageAndTwentyCentimetres) {
  window->Ancho_Change(u"50");
  EXPECT_THAT(dialogs.told,
              ElementsAre(fakes::ScriptedDialogs::Told{platform::Icon::Exclamation, u"Tamaño exesivo"}));
  EXPECT_EQ(Now().pageWidthCm, 20);
  EXPECT_EQ(Now().canvasWidth, 11340);
  EXPECT_EQ(Now().ancho, u"50");
}

TEST_F(EditingAModel, FiftyInAltoGivesTheMessageAndTenCentimetres) {
  window->Alto_Change(u"50");
  EXPECT_THAT(Told(), ElementsAre(u"Tamaño exesivo"));
  EXPECT_EQ(Now().pageHeightCm, 10);
}

TEST_F(EditingAModel, FortyNinePointNineIsAcceptedInEitherWriting) {
  window->Ancho_Change(u"49.9");
  window->Alto_Change(u"49,9");
  EXPECT_THAT(dialogs.told, IsEmpty());
  EXPECT_EQ(Now().pageWidthCm, 49.9F);
  EXPECT_EQ(Now().pageHeightCm, 49.9F);
}

TEST_F(EditingAModel, ZeroInABoxLeavesTheOtherSideOfTheCanvas) {
  SetFile("");
  Open();
  const float height = Now().canvasHeight;
  window->Ancho_Change(u"0");
  EXPECT_EQ(Now().canvasHeight, height);
  EXPECT_FALSE(Now().pageSizeSet);
  EXPECT_EQ(Now().pageWidthCm, 0);
}

TEST_F(EditingAModel, AChangeOfThePageIsOneStepMovesTheCanvasBackAndMarksTheModel) {
  window->TheCanvas().ScrollTo(300, 200);
  const Layout before = Now();
  window->Ancho_Change(u"15");
  EXPECT_EQ(window->TheCanvas().Horizontal(), 0);
  EXPECT_EQ(window->TheCanvas().Vertical(), 0);
  EXPECT_EQ(window->TheCanvas().HorizontalMax(), 8505);
  EXPECT_TRUE(IsOneStepFrom(before));
}

TEST_F(EditingAModel, TheTextThatABoxHasAlreadyIsNoChange) {
  window->Ancho_Change(u"50");
  window->Ancho_Change(u"50");
  window->Alto_Change(u"10");
  EXPECT_THAT(dialogs.told, SizeIs(1));
}

TEST_F(EditingAModel, APageSizeCanBeSetWithoutTheBoxes) {
  const Layout before = Now();
  window->AjustarPageSize(12, 60);
  EXPECT_EQ(Now().pageWidthCm, 12);
  EXPECT_EQ(Now().pageHeightCm, 10);
  EXPECT_EQ(Now().ancho, u"20");
  EXPECT_THAT(Told(), ElementsAre(u"Tamaño exesivo"));
  EXPECT_TRUE(IsOneStepFrom(before));
}

TEST_F(EditingAModel, TheStandardReceiptSetsBothBoxesInOneStep) {
  dialogs.texts = {u"Recibos Estándar"};
  const Layout before = Now();
  window->ElegirPapel_Click();
  EXPECT_EQ(Now().ancho, u"20");
  EXPECT_EQ(Now().alto, u"10,15873");
  EXPECT_FLOAT_EQ(Now().pageHeightCm, 10.15873F);
  EXPECT_TRUE(IsOneStepFrom(before));
}

TEST_F(EditingAModel, APaperOfHalfAMetreOrMoreFallsBackWithTheMessageForEachSide) {
  spooler.supportsForms = true;
  spooler.AddPrinter(u"Impresora A4", {u"Rollo"});
  printers.papers[u"Impresora A4"] = {{1, {56700, 34020}}};
  dialogs.texts = {u"Rollo"};
  const Layout before = Now();
  window->ElegirPapel_Click();
  EXPECT_THAT(Told(), ElementsAre(u"Tamaño exesivo", u"Tamaño exesivo"));
  EXPECT_EQ(Now().ancho, u"100");
  EXPECT_EQ(Now().pageWidthCm, 20);
  EXPECT_EQ(Now().pageHeightCm, 10);
  EXPECT_TRUE(IsOneStepFrom(before));
}

TEST_F(EditingAModel, NoPaperChosenChangesNothing) {
  window->ElegirPapel_Click();
  EXPECT_FALSE(Doc().Modified());
}

TEST_F(EditingAModel, CopiesAndTheLabelFlagAreOneStepEach) {
  Layout before = Now();
  window->List_Copias_Change(u"07");
  EXPECT_EQ(Now().copias, u"07");
  EXPECT_TRUE(IsOneStepFrom(before));
  before = Now();
  window->ChEsEtiqueta_Click(true);
  EXPECT_TRUE(Now().esEtiqueta);
  EXPECT_TRUE(IsOneStepFrom(before));
}

// ---- Fields

TEST_F(EditingAModel, AMenuEntryBecomesAFieldBehindTheHighestIndex) {
  const Layout before = Now();
  window->MenuField_Click(0, 0);
  ASSERT_NE(Now().At(4), nullptr);
  EXPECT_EQ(Now().At(4)->caption, u"Cliente");
  EXPECT_GT(Now().At(4)->box.width, 0);
  EXPECT_EQ(Doc().Selected(), 0);
  EXPECT_THAT(dialogs.askedTexts, IsEmpty());
  EXPECT_TRUE(IsOneStepFrom(before));
}

TEST_F(EditingAModel, AFixedTextIsTypedAndStaysOne) {
  dialogs.texts = {u"Gracias", u"nota"};
  window->MenuField_Click(0, 1);
  window->MenuField_Click(0, 2);
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"DOS", u"TRES", u"#Gracias", u"|nota"));
  for (const auto& asked : dialogs.askedTexts) {
    EXPECT_EQ(asked.title, u"Mensaje");
    EXPECT_THAT(asked.choices, IsEmpty());
    EXPECT_EQ(asked.defaultAnswer, u"");
  }
}

TEST_F(EditingAModel, AFieldsToolTipIsItsCaption) {
  Canvas& canvas = window->TheCanvas();
  dialogs.texts = {u"Le atendió"};
  window->CREAR_NEW_Campo(u"#");
  const Box box = Now().At(4)->box;
  const platform::Point inside{box.left + 10, box.top + 10};
  EXPECT_EQ(canvas.ToolTipAt(inside), u"#Le atendió");
  EXPECT_EQ(canvas.ToolTipAt({box.left - 10, box.top + 10}), u"");
  canvas.ShowHandlesOf(4);
  EXPECT_EQ(canvas.ToolTipAt(inside), u"#Le atendió");
  canvas.Press(inside, Button::Left);
  EXPECT_EQ(canvas.ToolTipAt(inside), u"") << "amid a drag";
}

TEST_F(EditingAModel, NoToolTipOfAFieldThatLiesBelowAHandle) {
  Doc().Adjust([](Layout& layout) {
    for (const int index : {1, 2})
      ChangeField(layout, index, [index](Field& field) {
        field.box = {1000.0F * static_cast<float>(index), 1000, 1000, 300};
      });
  });
  const platform::Point onTheHandle{2010, 1150};  // of the right edge of the first, upon the second
  EXPECT_EQ(window->TheCanvas().ToolTipAt(onTheHandle), u"DOS");
  window->TheCanvas().ShowHandlesOf(1);
  EXPECT_EQ(window->TheCanvas().ToolTipAt(onTheHandle), u"");
}

TEST_F(EditingAModel, AFixedTextLeftEmptyIsAFieldOfItsSignAlone) {
  window->CREAR_NEW_Campo(u"#");
  EXPECT_EQ(Captions().back(), u"#");
}

TEST_F(EditingAModel, AnEntryThatNoMenuHasAddsNothing) {
  window->MenuField_Click(0, 3);
  window->MenuField_Click(10, 0);
  window->MenuField_Click(-1, -1);
  EXPECT_THAT(Captions(), SizeIs(3));
}

TEST_F(EditingAModel, FieldsAddedOneAfterTheOtherDoNotHideEachOther) {
  window->CREAR_NEW_Campo(u"A");
  window->CREAR_NEW_Campo(u"B");
  EXPECT_EQ(Now().At(5)->box.left, Now().At(4)->box.left);
  EXPECT_EQ(Now().At(5)->box.top, Now().At(4)->box.Bottom());
}

TEST_F(EditingAModel, ADeletedFieldLeavesAGapAndIsNoLongerSelected) {
  Doc().Select(2);
  window->TheCanvas().ShowHandlesOf(2);
  const Layout before = Now();
  window->v_Eliminar_Click();
  EXPECT_THAT(Captions(), ElementsAre(u"UNO", u"TRES"));
  EXPECT_EQ(Doc().Selected(), 0);
  EXPECT_FALSE(window->TheCanvas().Handles());
  EXPECT_TRUE(IsOneStepFrom(before));
  window->Grabar();
  EXPECT_EQ(File().find("Key=\"2\""), std::string::npos);
  EXPECT_NE(File().find("Key=\"3\""), std::string::npos);
}

TEST_F(EditingAModel, ANewFieldTakesTheIndexOfADeletedLastOne) {
  Doc().Select(3);
  window->v_Eliminar_Click();
  window->CREAR_NEW_Campo(u"NUEVO");
  EXPECT_EQ(Now().At(3)->caption, u"NUEVO");
}

TEST_F(EditingAModel, DeletingWithNothingSelectedChangesNothing) {
  window->v_Eliminar_Click();
  EXPECT_THAT(Captions(), SizeIs(3));
  EXPECT_FALSE(Doc().Modified());
}

TEST_F(EditingAModel, ADeletedLogoLeavesTheFields) {
  SetFile(FileOf({ModelBytes(1, {"UNO"}, "ImagenLogo=\"logo.bmp|1|2|3|4\"")}));
  Open();
  Doc().SelectLogo();
  const Layout before = Now();
  window->v_Eliminar_Click();
  EXPECT_FALSE(Now().logo);
  EXPECT_THAT(Captions(), SizeIs(1));
  EXPECT_TRUE(IsOneStepFrom(before));
  window->Grabar();
  EXPECT_EQ(File().find("ImagenLogo"), std::string::npos);
}

TEST_F(EditingAModel, PropertiesOfTheSelectedFieldAreShownAndAppliedInOneStep) {
  window->V_Propiedades_Click();
  EXPECT_THAT(view.shownProperties, IsEmpty());
  Doc().Select(1);
  view.whileProperties = [](FieldProperties& properties) {
    properties.Box_Change(0, u"1000");
    properties.AplicaValores();
  };
  const Layout before = Now();
  window->V_Propiedades_Click();
  EXPECT_EQ(Now().At(1)->box.left, 1000);
  EXPECT_TRUE(IsOneStepFrom(before));
}

TEST_F(EditingAModel, FontsAreThoseOfTheModelsPrinterAndOfTheDefaultOneWhereItIsNotInstalled) {
  printers.fonts[u"Impresora A4"] = {u"Sistema", u"Arial"};
  printers.fonts[u"Impresora Recibos"] = {u"Sistema", u"Roman12"};
  printers.defaultName = u"Impresora Recibos";
  std::vector<std::u16string> fonts;
  view.whileProperties = [&](FieldProperties& properties) { fonts = properties.FuenList().entries; };
  Doc().Select(1);
  window->V_Propiedades_Click();
  EXPECT_THAT(fonts, ElementsAre(u"Arial"));
  Doc().Adjust([](Layout& layout) { layout.printer = u"De otra oficina"; });
  window->V_Propiedades_Click();
  EXPECT_THAT(fonts, ElementsAre(u"Roman12"));
}

TEST_F(EditingAModel, RemovingTheBackgroundIsOneStep) {
  files.contents[u"C:\\Modelos\\fondo.bmp"] = "PICTURE 40x30";
  SetFile(FileOf({ModelBytes(1, {}, "Imagen=\"fondo.bmp\"")}));
  Open();
  const Layout before = Now();
  window->m_imagenes_Click(2);  // a line between entries
  EXPECT_FALSE(Doc().Modified());
  window->m_imagenes_Click(3);
  EXPECT_FALSE(Now().background);
  EXPECT_TRUE(IsOneStepFrom(before));
  window->Grabar();
  EXPECT_EQ(File().find("Imagen="), std::string::npos);
  EXPECT_TRUE(files.contents.contains(u"C:\\Modelos\\fondo.bmp"));
}

TEST_F(EditingAModel, ErrorsOfPicturesAreToldAndLeaveTheLayout) {
  files.contents[u"D:\\otro.bmp"] = "PICTURE 40x30";
  dialogs.filesToOpen = {u"D:\\otro.bmp"};
  files.failReplaceWith = runtime::ErrorNumber::PermissionDenied;
  window->m_imagenes_Click(0);
  EXPECT_THAT(Told(), ElementsAre(runtime::DescriptionOf(70)));
  EXPECT_FALSE(Doc().Modified());
}

// ---- Printers and the test print

TEST_F(EditingAModel, TheChosenPrinterIsTheModelsInOneStep) {
  const Layout before = Now();
  window->PrinterChosen(u"Impresora Recibos");
  EXPECT_EQ(Now().printer, u"Impresora Recibos");
  EXPECT_TRUE(IsOneStepFrom(before));
  window->Undo();
  EXPECT_EQ(view.printers.back().selected, 0);
}

TEST_F(EditingAModel, APrinterThatTheSystemDoesNotHaveChangesNothing) {
  window->PrinterChosen(u"Otra");
  EXPECT_EQ(Now().printer, u"Impresora A4");
  EXPECT_FALSE(Doc().Modified());
}

TEST_F(EditingAModel, FillingThePrinterListSelectsTheNameGivenAndChangesNothing) {
  window->CargarImpresoras(u"Impresora Recibos");
  EXPECT_EQ(view.printers.back().selected, 1);
  window->CargarImpresoras(u"impresora recibos");
  EXPECT_EQ(view.printers.back().selected, -1);
  window->CargarImpresoras(u"");
  EXPECT_EQ(view.printers.back().selected, -1);
  EXPECT_FALSE(Doc().Modified());
}

TEST_F(EditingAModel, ATestPrintShowsTheDescriptionsAndNoValues) {
  window->PrinterChosen(u"Impresora Recibos");
  log.clear();
  window->ImprimirPrueba();
  EXPECT_EQ(log, "open Impresora Recibos\npage 11340x5670\n0,0  \n0,0 UNO\n0,0 DOS\n0,0 TRES\nend\n");
}

TEST_F(EditingAModel, ATestPrintThatFailsIsTold) {
  printers.faults.end = 1;
  window->ImprimirPrueba();
  EXPECT_THAT(Told(), ElementsAre(runtime::DescriptionOf(482)));
}

// ---- During a drag

TEST_F(EditingAModel, ACommandDuringADragEndsItWhereItIs) {
  SetFile(
      "<Modelos><Modelo Numero=\"1\" Width=\"11340\" Height=\"5670\"><Campo><Top>100</Top><Left>100</Left>"
      "<Width>500</Width><Height>300</Height></Campo></Modelo></Modelos>");
  Open();
  window->TheCanvas().Press({150, 150}, Button::Left);
  window->TheCanvas().Move({250, 150}, true, {});
  window->Grabar();
  EXPECT_NE(File().find("<Left>200</Left>"), std::string::npos) << File();
  window->Undo();
  EXPECT_EQ(Now().At(1)->box.left, 100);
}

}  // namespace
}  // namespace qm::designer
