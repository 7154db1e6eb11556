// The course of a print: which model, how many jobs, on which paper, and how it ends.

#include "print/engine.h"

#include <gmock/gmock.h>

#include "tests/print/printing_world.h"

namespace qm::print {
namespace {

using runtime::ErrorNumber;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kHello =
    "<Campo><Descripcion>#Hola</Descripcion><Top>500</Top><Left>1000</Left><Width>2000</Width>"
    "<Height>240</Height></Campo>";

struct ModelOfAPrintJob : testing::Test, PrintingWorld {};

TEST_F(ModelOfAPrintJob, WithoutAFileNamePrintingIsError50101WithItsText) {
  modelFile.SetName(u"");
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 50101);
  EXPECT_EQ(ErrorTextOf([&] { (void)Print(); }), u"Debe asignar un nombre de archivo a XMLFileName");
}

TEST_F(ModelOfAPrintJob, AnEmptyFileAndAMissingOneAreError50100AndPrintingCreatesNone) {
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 50100);
  EXPECT_FALSE(files.Exists(modelFile.name));
  SetFile("");
  EXPECT_EQ(ErrorTextOf([&] { (void)Print(); }), u"No existen modelos de impresión...debe crearlos primero");
}

TEST_F(ModelOfAPrintJob, ANumberThatNoModelHasIsError50102WithItsText) {
  SetModel("", kHello);
  job.numeroModelo = 7.0;
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 50102);
  EXPECT_EQ(ErrorTextOf([&] { (void)Print(); }), u"No existe el modelo de impresión...debe crearlo primero");
}

TEST_F(ModelOfAPrintJob, AFileThatCannotBeParsedIsError91AndOneWithADeclarationHasNoModels) {
  SetFile("<Modelos><Modelo Numero=\"1\">");
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 91);
  SetFile("<?xml version=\"1.0\"?><Modelos><Modelo Numero=\"1\"/></Modelos>");
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 50102);
}

TEST_F(ModelOfAPrintJob, TheSameErrorsComeFromDrawing) {
  fakes::RecordingSurface surface;
  EXPECT_EQ(ErrorOf([&] { (void)Draw(surface); }), 50100);
  EXPECT_EQ(surface.Log(), "");
}

TEST_F(ModelOfAPrintJob, TheFileIsLookedAtBeforeTheNumber) {
  job.numeroModelo = data::NullNumber{};
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 50100);
  SetFile("no es XML");
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 94);
}

struct NumberCase {
  const char* why;
  data::ModelNumber number;
  int error;
  const char* drawn;  // the text of the model chosen
};

TEST_F(ModelOfAPrintJob, TheNumberMayBeNothingANumberOrAText) {
  SetFile(
      "<Modelos>"
      "<Modelo Numero=\"1\"><Campo><Descripcion>#uno</Descripcion></Campo></Modelo>"
      "<Modelo Numero=\"3\"><Campo><Descripcion>#tres</Descripcion></Campo></Modelo>"
      "<Modelo Numero=\"3\"><Campo><Descripcion>#otro</Descripcion></Campo></Modelo>"
      "<Modelo Numero=\"-2\"><Campo><Descripcion>#menos dos</Descripcion></Campo></Modelo>"
      "</Modelos>");
  const NumberCase cases[] = {
      {"empty", std::monostate{}, 0, "u"},
      {"empty text", u"", 0, "u"},
      {"zero", 0.0, 0, "u"},
      {"zero as text", u"0", 0, "u"},
      {"number", 3.0, 0, "t"},
      {"text", u"3", 0, "t"},
      {"text with blanks around", u" 3 ", 0, "t"},
      {"half to even", 2.5, 50102, ""},
      {"half to even upwards", 3.5, 50102, ""},
      {"decimal comma of the user", u"2,6", 0, "t"},
      {"negative", -2.0, 0, "m"},
      {"a fraction is not zero", 0.25, 50102, ""},
      {"Null", data::NullNumber{}, 94, ""},
      {"a word", u"tres", 13, ""},
      {"a blank", u" ", 13, ""},
      {"beyond 32 bits", 3e9, 6, ""},
  };
  for (const NumberCase& each : cases) {
    SCOPED_TRACE(each.why);
    job.numeroModelo = each.number;
    std::string drawn;
    EXPECT_EQ(ErrorOf([&] { drawn = Drawn(); }), each.error);
    // A box without width holds one letter a line, one without height one line.
    const std::string expected = each.error != 0 ? "" : std::string("page 0x0\n0,0 ") + each.drawn + "\n";
    EXPECT_EQ(drawn, expected);
  }
}

TEST_F(ModelOfAPrintJob, AModelIsASheetOfLabelsWhenItsFlagSaysOne) {
  const std::pair<const char*, bool> cases[] = {{"EsEtiqueta=\"1\"", true},
                                                {"EsEtiqueta=\" 1 \"", true},
                                                {"EsEtiqueta=\"0\"", false},
                                                {"EsEtiqueta=\"-1\"", false},
                                                {"EsEtiqueta=\"01\"", false},
                                                {"Logo=\"1\"", false},
                                                {"", false}};
  for (const auto& [attributes, expected] : cases) {
    SCOPED_TRACE(attributes);
    SetModel(attributes, "");
    EXPECT_EQ(EsEtiqueta(Model()), expected);
  }
}

struct PrintedCopies : testing::Test, PrintingWorld {};

TEST_F(PrintedCopies, ThreeCopiesAreThreeJobsAndAPreviewIsDrawnOnce) {
  SetModel("Width=\"5000\" Height=\"4000\" Copias=\"3\"", kHello);
  EXPECT_TRUE(Print());
  EXPECT_EQ(log,
            "open Impresora A4\n"
            "page 5000x4000\n0,0  \n1000,500 Hola\nend\n"
            "page 5000x4000\n0,0  \n1000,500 Hola\nend\n"
            "page 5000x4000\n0,0  \n1000,500 Hola\nend\n");
  EXPECT_EQ(Drawn(), "page 5000x4000\n1000,500 Hola\n");
}

TEST_F(PrintedCopies, AModelThatDoesNotSayHowManyOrSaysNonePrintsNothingAndSucceeds) {
  for (const char* attributes : {"", "Copias=\"0\"", "Copias=\"-2\"", "Copias=\"tres\"", "Copias=\"0.5\""}) {
    SCOPED_TRACE(attributes);
    SetModel(attributes, kHello);
    EXPECT_TRUE(Print());
    EXPECT_EQ(log, "");
    EXPECT_EQ(Drawn(), "page 0x0\n1000,500 Hola\n");
  }
}

TEST_F(PrintedCopies, TheNumberOfCopiesIsTheLeadingNumberRoundedHalfToEven) {
  const std::pair<const char*, int> cases[] = {{"2", 2},   {"2 juegos", 2}, {"1.5", 2},   {"2.5", 2},
                                               {"2,9", 2}, {" 1 2", 12},    {"40000", 0}, {"1e400", 0}};
  for (const auto& [text, jobs] : cases) {
    SCOPED_TRACE(text);
    log.clear();
    SetModel(std::string("Copias=\"") + text + "\"", "");
    EXPECT_TRUE(Print());
    int ends = 0;
    for (std::size_t at = log.find("end\n"); at != std::string::npos; at = log.find("end\n", at + 1)) ++ends;
    EXPECT_EQ(ends, jobs);
  }
}

TEST_F(PrintedCopies, AModelWithoutFieldsStillGivesAPageForEachCopy) {
  SetModel("Copias=\"1\"", "");
  EXPECT_TRUE(Print());
  EXPECT_EQ(log, "open Impresora A4\npage 0x0\n0,0  \nend\n");
}

TEST_F(PrintedCopies, TextsOfOneCopyArePrintedOnThatCopyOnlyAndOnNoPreview) {
  SetModel("Copias=\"2\"", "<Campo><Descripcion>#2Duplicado</Descripcion><Width>3000</Width></Campo>");
  EXPECT_TRUE(Print());
  EXPECT_EQ(log, "open Impresora A4\npage 0x0\n0,0  \nend\npage 0x0\n0,0  \n0,0 Duplicado\nend\n");
  EXPECT_EQ(Drawn(), "page 0x0\n");
}

TEST_F(PrintedCopies, PromptsAreAskedOnEachCopyWithTheCopyBeforeAsDefaultAndNeverByAPreview) {
  SetModel("Copias=\"2\"",
           "<Campo><Descripcion>#?Pedido</Descripcion><Width>3000</Width></Campo>"
           "<Campo><Descripcion>#?Fecha</Descripcion><Top>300</Top></Campo>");
  prompts.answers = {u"A-1", u"hoy", u"A-2", u"ayer"};
  EXPECT_TRUE(Print());
  ASSERT_EQ(prompts.asked.size(), 4U);
  EXPECT_EQ(prompts.asked[0].prompt, u"Copia 1: Pedido");
  EXPECT_EQ(prompts.asked[2].prompt, u"Copia 2: Pedido");
  EXPECT_EQ(prompts.asked[2].defaultAnswer, u"A-1");
  EXPECT_EQ(prompts.asked[3].defaultAnswer, u"hoy");
  EXPECT_EQ(Drawn(), "page 0x0\n0,0 A-2\n0,300 ayer\n");
  EXPECT_EQ(prompts.asked.size(), 4U);
}

TEST_F(PrintedCopies, TheFontOfTheLastFieldStaysForTheNextCopy) {
  SetModel("Copias=\"2\"",
           "<Campo><Descripcion>#a</Descripcion><Width>500</Width></Campo>"
           "<Campo><Descripcion>#b</Descripcion><Top>300</Top><Bold>1</Bold></Campo>");
  EXPECT_TRUE(Print());
  EXPECT_EQ(log,
            "open Impresora A4\npage 0x0\n0,0  \n0,0 a\nfont Arial 10 bold\n0,300 b\nend\n"
            "page 0x0\n0,0  \n0,300 a\n0,300 b\nend\n");
}

struct PaperOfAPrint : testing::Test, PrintingWorld {
  PaperOfAPrint() { spooler.supportsForms = true; }
};

TEST_F(PaperOfAPrint, EachCopyDefinesTheModelsSizeWithTenTwipsMoreHeightAsAForm) {
  spooler.AddPrinter(u"Impresora A4", {u"A4", u"A5"});
  SetModel("Width=\"11906\" Height=\"16838\" Copias=\"2\"", "");
  EXPECT_TRUE(Print());
  EXPECT_EQ(log,
            "open Impresora A4\n"
            "paper code=3 \"PS\" 11906x16848\n0,0  \nend\n"
            "paper code=3 \"PS\" 11906x16848\n0,0  \nend\n");
  EXPECT_THAT(spooler.Names(u"Impresora A4"), ElementsAre(u"A4", u"A5", u"PS"));
  EXPECT_EQ(paperForms.form.width, 209982);
  EXPECT_EQ(paperForms.form.height, 297142);
}

TEST_F(PaperOfAPrint, AFormThatCannotBeDefinedLeavesTheSizeToThePrinter) {
  spooler.AddPrinter(u"Impresora A4", {u"A4"});
  spooler.addError = 5;
  SetModel("Width=\"11906\" Height=\"16838\" Copias=\"1\"", "");
  EXPECT_TRUE(Print());
  EXPECT_EQ(log, "open Impresora A4\npaper code=0 \"PS\" 11906x16848\n0,0  \nend\n");
}

TEST_F(PaperOfAPrint, APrinterThatTheSpoolerDoesNotKnowIsToldAndPrintedOn) {
  SetModel("Width=\"11906\" Height=\"16838\" Copias=\"1\"", "");
  EXPECT_TRUE(Print());
  EXPECT_THAT(prompts.warnings, ElementsAre(u"Error: Impresora Impresora A4 No se encuentra"));
  EXPECT_EQ(log, "open Impresora A4\npaper code=0 \"PS\" 11906x16848\n0,0  \nend\n");
}

TEST_F(PaperOfAPrint, WhereThereAreNoFormsThePageSizeItselfIsSet) {
  spooler.supportsForms = false;
  SetModel("Width=\"11905,5\" Height=\"16838.5\" Copias=\"1\"", "");
  EXPECT_TRUE(Print());
  EXPECT_EQ(log, "open Impresora A4\npage 11905.5x16838.5\n0,0  \nend\n");
  EXPECT_EQ(spooler.enumerations, 0);
}

TEST_F(PaperOfAPrint, ADrawingNeverTouchesTheSpoolerOrAPrinter) {
  spooler.AddPrinter(u"Impresora A4", {u"A4"});
  SetModel("Width=\"11906\" Height=\"16838\" Copias=\"2\" Printer=\"Ninguna\"", "");
  EXPECT_EQ(Drawn(), "page 11906x16838\n");
  EXPECT_EQ(spooler.enumerations, 0);
  EXPECT_EQ(log, "");
}

struct FailingPrinter : testing::Test, PrintingWorld {};

constexpr std::string_view kThreeTexts =
    "<Campo><Descripcion>#a</Descripcion><Width>500</Width></Campo>"
    "<Campo><Descripcion>#b</Descripcion><Top>300</Top></Campo>"
    "<Campo><Descripcion>#c</Descripcion><Top>600</Top></Campo>";

TEST_F(FailingPrinter, AFailureWhileFieldsAreDrawnEndsThatCopyAsItStandsAndPrintsTheNext) {
  SetModel("Copias=\"2\"", kThreeTexts);
  printers.faults.text = 3;
  EXPECT_TRUE(Print());
  EXPECT_EQ(log,
            "open Impresora A4\npage 0x0\n0,0  \n0,0 a\nend\n"
            "page 0x0\n0,0  \n0,300 a\n0,300 b\n0,600 c\nend\n");
}

TEST_F(FailingPrinter, AFailureOfTheOpeningBlankReachesTheHostAndThrowsTheJobAway) {
  SetModel("Copias=\"2\"", kThreeTexts);
  printers.faults.text = 1;
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 482);
  EXPECT_EQ(log, "open Impresora A4\npage 0x0\nabandoned\n");
}

TEST_F(FailingPrinter, AFailureAtTheEndOfAJobReachesTheHostAndEndsThePrint) {
  SetModel("Copias=\"3\"", "");
  printers.faults.end = 2;
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 482);
  EXPECT_EQ(log, "open Impresora A4\npage 0x0\n0,0  \nend\npage 0x0\n0,0  \nabandoned\n");
}

TEST_F(FailingPrinter, WithoutADefaultPrinterAModelThatNamesNoneIsError482) {
  SetModel("Copias=\"1\"", "");
  printers.defaultName = u"";
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 482);
}

TEST_F(FailingPrinter, AnErrorOfAFieldReachesTheHostAndThrowsTheJobAway) {
  SetModel("Copias=\"1\"",
           "<Campo><Descripcion>#a</Descripcion><Width>500</Width></Campo>"
           "<Campo><Descripcion>#b</Descripcion><Height>alto</Height></Campo>");
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 13);
  EXPECT_EQ(log, "open Impresora A4\npage 0x0\n0,0  \n0,0 a\nabandoned\n");
}

TEST_F(FailingPrinter, TheDescriptionOfANumberSignAloneIsAnInvalidArgument) {
  SetModel("Copias=\"1\"", "<Campo><Descripcion>#</Descripcion></Campo>");
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 5);
}

TEST_F(FailingPrinter, TheTwentyFirstPromptOfACopyIsASubscriptError) {
  std::string fields;
  for (int i = 0; i < 21; ++i) fields += "<Campo><Descripcion>#?p</Descripcion></Campo>";
  SetModel("Copias=\"1\"", fields);
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 9);
  EXPECT_EQ(prompts.asked.size(), 20U);
}

struct Background : testing::Test, PrintingWorld {};

TEST_F(Background, APictureInTheModelsFolderIsPaintedAtTheOriginBeforeTheFieldsOfEachCopy) {
  files.Replace(u"C:\\Modelos\\fondo.bmp", "PICTURE 640x480");
  SetModel("Copias=\"2\" Imagen=\"fondo.bmp\"", kHello);
  EXPECT_TRUE(Print());
  const std::string copy =
      "page 0x0\n0,0  \nload C:\\Modelos\\fondo.bmp\npicture 640x480 px 0,0\n1000,500 Hola\nend\n";
  EXPECT_EQ(log, "open Impresora A4\n" + copy + copy);
  EXPECT_EQ(Drawn(), "page 0x0\npicture 640x480 px 0,0\n1000,500 Hola\n");
}

TEST_F(Background, APictureThatIsNotThereIsSkippedWithoutNotice) {
  SetModel("Copias=\"1\" Imagen=\"fondo.bmp\"", kHello);
  EXPECT_TRUE(Print());
  EXPECT_EQ(log, "open Impresora A4\npage 0x0\n0,0  \n1000,500 Hola\nend\n");
  EXPECT_THAT(prompts.warnings, IsEmpty());
}

TEST_F(Background, AFileThatIsNoPictureIsError481) {
  files.Replace(u"C:\\Modelos\\fondo.bmp", "texto");
  SetModel("Copias=\"1\" Imagen=\"fondo.bmp\"", kHello);
  EXPECT_EQ(ErrorOf([&] { (void)Print(); }), 481);
  EXPECT_EQ(log, "open Impresora A4\npage 0x0\n0,0  \nload C:\\Modelos\\fondo.bmp\nabandoned\n");
}

}  // namespace
}  // namespace qm::print
