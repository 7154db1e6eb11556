// Sheets of labels: the options and their settings, the grid of places, sheets, copies and failures.

#include "print/label_sheets.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "runtime/strings.h"
#include "tests/print/printing_world.h"

namespace qm::print {
namespace {

using runtime::ErrorNumber;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Saved = fakes::FakeSettings::Saved;
using Texts = std::vector<std::u16string>;

constexpr std::string_view kLabel = "Width=\"5670\" Height=\"2835\" Copias=\"1\"";
constexpr std::string_view kName =
    "<Campo><Descripcion>NOMBRE</Descripcion><Top>200</Top><Left>100</Left><Width>3000</Width>"
    "<Height>240</Height></Campo>";

std::u16string RowName(int row) { return runtime::FromUtf8("Fila" + std::to_string(row + 1)); }

struct LabelSheets : testing::Test, PrintingWorld {
  LabelSheets() { SetModel(kLabel, kName); }

  void AddRow(std::u16string name) { job.rows.push_back(data::Cells{{u"CLIEN", u"NOMBRE", name, 0}}); }
  void AddRows(int count) {
    for (int row = 0; row < count; ++row) AddRow(RowName(row));
  }
  void Answer(const Texts& answers) { prompts.options = answers; }

  // The lines of the log that tell of texts, sheets and jobs; the opening blanks are left out.
  [[nodiscard]] std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (const std::u16string& wide : runtime::Split(runtime::FromUtf8(log), u"\n")) {
      const std::string line = runtime::ToUtf8(wide);
      const bool told = line == "new page" || line == "end" || line.starts_with("picture") ||
                        line.find_first_of("0123456789-") == 0;
      if (told && line != "0,0  ") lines.push_back(line);
    }
    return lines;
  }
};

using OptionsOfLabels = LabelSheets;

TEST_F(OptionsOfLabels, AreOfferedInTheirOrderWithTheDefaultsOfAFirstUse) {
  EXPECT_TRUE(PrintLabels());
  ASSERT_EQ(prompts.askedOptions.size(), 1U);
  EXPECT_EQ(prompts.askedOptions[0].title, u"Opciones de Etiquetas");
  using Entry = platform::OptionEntry;
  EXPECT_THAT(prompts.askedOptions[0].entries,
              ElementsAre(Entry{u"Etiquetas a lo ancho", u"02"}, Entry{u"Etiquetas a lo alto", u"08"},
                          Entry{u"Margen Superior", u"0"}, Entry{u"Margen Izquierda", u"0"},
                          Entry{u"Ancho Pagina Completa", u"21"}, Entry{u"Alto Pagina Completa", u"29,50"}));
}

TEST_F(OptionsOfLabels, AreSavedInTheirOrderAsTheyWereTyped) {
  Answer({u" 3", u"07", u"1,5", u"0.5", u"21,0", u"29.7"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(settings.saved,
              ElementsAre(Saved{u"Etiquetas", u"Ancho", u" 3"}, Saved{u"Etiquetas", u"Alto", u"07"},
                          Saved{u"Etiquetas", u"Margen Superior", u"1,5"},
                          Saved{u"Etiquetas", u"Margen Superior", u"0.5"},
                          Saved{u"Etiquetas", u"Ancho Pagina", u"21,0"},
                          Saved{u"Etiquetas", u"Alto Pagina", u"29.7"}));
}

TEST_F(OptionsOfLabels, AreOfferedAgainAsTheyWereSaved) {
  Answer({u"3", u"7", u"1", u"1", u"20", u"28"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_TRUE(PrintLabels());
  Texts offered;
  for (const auto& entry : prompts.askedOptions.back().entries) offered.push_back(entry.text);
  EXPECT_THAT(offered, ElementsAre(u"3", u"7", u"1", u"1", u"20", u"28"));
}

TEST_F(OptionsOfLabels, ChangingOnlyTheLeftMarginChangesTheTopMarginOfferedNextTime) {
  Answer({u"02", u"08", u"0", u"0,5", u"21", u"29,50"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_TRUE(PrintLabels());
  EXPECT_EQ(prompts.askedOptions[1].entries[2].text, u"0,5");
  EXPECT_EQ(prompts.askedOptions[1].entries[3].text, u"0,5");
}

TEST_F(OptionsOfLabels, CancelledPrintNothingAndSaveNothing) {
  AddRows(3);
  prompts.cancelOptions = true;
  EXPECT_FALSE(PrintLabels());
  EXPECT_EQ(log, "");
  EXPECT_THAT(settings.saved, IsEmpty());
}

TEST_F(OptionsOfLabels, AreKeptWhenTheUserEndsThePrintAtTheChoiceOfAPrinter) {
  SetModel("Printer=\"Vieja\" Copias=\"1\"", kName);
  AddRows(1);
  EXPECT_FALSE(PrintLabels());
  EXPECT_EQ(prompts.printerPrompts.size(), 1U);
  EXPECT_EQ(settings.saved.size(), 6U);
  EXPECT_EQ(log, "");
}

TEST_F(OptionsOfLabels, ACountThatIsNoNumberIsAnErrorBeforeAnythingIsSavedOrPrinted) {
  AddRows(1);
  const std::pair<std::u16string, int> cases[] = {
      {u"", 13}, {u"dos", 13}, {u"2 x 8", 13}, {u"32768", 6}, {u"-40000", 6}};
  for (const auto& [count, error] : cases) {
    Answer({count, u"08", u"0", u"0", u"21", u"29,50"});
    EXPECT_EQ(ErrorOf([&] { (void)PrintLabels(); }), error) << runtime::ToUtf8(count);
    Answer({u"02", count, u"0", u"0", u"21", u"29,50"});
    EXPECT_EQ(ErrorOf([&] { (void)PrintLabels(); }), error) << runtime::ToUtf8(count);
  }
  EXPECT_THAT(settings.saved, IsEmpty());
  EXPECT_EQ(log, "");
}

TEST_F(OptionsOfLabels, ACountBelowOneIsOne) {
  AddRows(2);
  for (const char16_t* count : {u"0", u"-3", u"0,4"}) {
    log.clear();
    Answer({count, count, u"0", u"0", u"21", u"29,50"});
    EXPECT_TRUE(PrintLabels());
    EXPECT_THAT(Lines(), ElementsAre("100,200 Fila1", "new page", "100,200 Fila2", "end"));
  }
}

TEST_F(OptionsOfLabels, CountsAreReadAsNumbersOfTheUsersLocaleAndRounded) {
  AddRows(3);
  Answer({u"1,5", u"8", u"0", u"0", u"21", u"29,50"});  // 2 across
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 Fila1", "5770,200 Fila2", "100,3035 Fila3", "end"));
}

TEST_F(OptionsOfLabels, TheLargestGridIsOneSheet) {
  AddRows(3);
  Answer({u"32767", u"32767", u"0", u"0", u"21", u"29,50"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 7);  // open, paper, blank, three labels, end
  EXPECT_THAT(log, Not(HasSubstr("new page")));
}

TEST_F(OptionsOfLabels, CentimetresTakeALoneCommaForTheDecimalSignInEveryLocale) {
  AddRows(1);
  for (const runtime::Locale& locale : {runtime::Locale::Spanish(), runtime::Locale::English()}) {
    log.clear();
    environment.locale = locale;
    Answer({u"2", u"8", u"0,5", u"0.5", u"21", u"29,50"});
    EXPECT_TRUE(PrintLabels());
    EXPECT_THAT(log, HasSubstr("page 11907x16726.5\n"));
    EXPECT_THAT(Lines(), ElementsAre("383.5,483.5 Fila1", "end"));
  }
}

TEST_F(OptionsOfLabels, WhatCannotBeSavedIsAnErrorAndPrintsNothing) {
  AddRows(1);
  settings.failSaveWith = ErrorNumber::PermissionDenied;
  EXPECT_EQ(ErrorOf([&] { (void)PrintLabels(); }), 70);
  EXPECT_EQ(log, "");
}

using PlacesOfLabels = LabelSheets;

TEST_F(PlacesOfLabels, GoRowByRowAndTheSeventeenthStartsASecondSheet) {
  AddRows(17);
  EXPECT_TRUE(PrintLabels());
  const auto lines = Lines();
  ASSERT_EQ(lines.size(), 19U);
  EXPECT_EQ(lines[0], "100,200 Fila1");
  EXPECT_EQ(lines[1], "5770,200 Fila2");
  EXPECT_EQ(lines[2], "100,3035 Fila3");
  EXPECT_EQ(lines[15], "5770,20045 Fila16");
  EXPECT_EQ(lines[16], "new page");
  EXPECT_EQ(lines[17], "100,200 Fila17");
  EXPECT_EQ(lines[18], "end");
}

TEST_F(PlacesOfLabels, TheTopMarginCountsOnceForEveryRowDownToTheLabels) {
  AddRows(6);
  Answer({u"2", u"8", u"1", u"0,5", u"21", u"29,50"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("383.5,767 Fila1", "6053.5,767 Fila2", "383.5,4169 Fila3",
                                   "6053.5,4169 Fila4", "383.5,7571 Fila5", "6053.5,7571 Fila6", "end"));
}

TEST_F(PlacesOfLabels, ANegativeMarginMovesTheLabelsOut) {
  AddRows(3);
  Answer({u"2", u"8", u"-0,1", u"-1", u"21", u"29,50"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("-467,143.3 Fila1", "5203,143.3 Fila2", "-467,2921.6 Fila3", "end"));
}

TEST_F(PlacesOfLabels, OneByOneIsALabelASheetWithoutABlankOneAtEitherEnd) {
  AddRows(3);
  Answer({u"1", u"1", u"0", u"0", u"21", u"29,50"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(),
              ElementsAre("100,200 Fila1", "new page", "100,200 Fila2", "new page", "100,200 Fila3", "end"));
}

TEST_F(PlacesOfLabels, AFullSheetIsFollowedByNoBlankOne) {
  AddRows(16);
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(log, Not(HasSubstr("new page")));
}

TEST_F(PlacesOfLabels, AllFieldsOfALabelStandTogether) {
  SetModel(kLabel,
           "<Campo><Descripcion>NOMBRE</Descripcion><Top>200</Top><Left>100</Left><Width>3000</Width>"
           "<Height>240</Height></Campo>"
           "<Campo><Descripcion>#Calle</Descripcion><Top>500</Top></Campo>"
           "<Campo><Descripcion>#Cerca</Descripcion><Left>900</Left></Campo>");
  AddRows(3);
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 Fila1", "100,500 Calle", "900,500 Cerca",     //
                                   "5770,200 Fila2", "5770,500 Calle", "6570,500 Cerca",  //
                                   "100,3035 Fila3", "100,3335 Calle", "900,3335 Cerca", "end"));
}

TEST_F(PlacesOfLabels, WhatAFieldDoesNotSayItHasFromTheOneBeforeAlsoOfTheLabelBefore) {
  SetModel(kLabel,
           "<Campo><Descripcion>NOMBRE</Descripcion><Left>100</Left><Width>3000</Width><Height>240</Height></"
           "Campo>"
           "<Campo><Descripcion>#Nota</Descripcion><Top>500</Top><FontSize>8</FontSize></Campo>");
  AddRows(3);
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,0 Fila1", "100,500 Nota", "5770,500 Fila2", "5770,500 Nota",
                                   "100,3335 Fila3", "100,3335 Nota", "end"));
  EXPECT_EQ(log.find("font", log.find("font") + 1), std::string::npos) << "8 points from the first note on";
}

TEST_F(PlacesOfLabels, AnInheritanceThatAFailingPrinterCutShortGoesOnWithTheLastFieldPrinted) {
  SetModel("Width=\"5670\" Height=\"2835\" Copias=\"2\"",
           "<Campo><Descripcion>NOMBRE</Descripcion><Width>3000</Width><Height>240</Height></Campo>"
           "<Campo><Descripcion>#Nota</Descripcion><Top>500</Top></Campo>"
           "<Campo><Descripcion>#Fin</Descripcion><Top>900</Top></Campo>");
  AddRows(4);
  printers.faults.text = 1 + 3 * 3 + 2;  // the opening blank, three labels, then the note of the fourth
  EXPECT_TRUE(PrintLabels());
  const auto lines = Lines();
  ASSERT_EQ(lines.size(), 10U + 1 + 12 + 1);
  EXPECT_EQ(lines[9], "5670,3735 Fila4");
  EXPECT_EQ(lines[10], "end");
  EXPECT_EQ(lines[11], "0,500 Fila1");  // the note's own Top, not that of the last field
  EXPECT_EQ(lines[12], "0,500 Nota");
  EXPECT_EQ(lines[14], "5670,900 Fila2");
}

using RowsOfLabels = LabelSheets;

TEST_F(RowsOfLabels, WithoutAnyNothingIsPrintedAndThePrintIsComplete) {
  EXPECT_TRUE(PrintLabels());
  EXPECT_EQ(log, "");
  job.rows.resize(5);
  EXPECT_TRUE(PrintLabels());
  EXPECT_EQ(log, "");
}

TEST_F(RowsOfLabels, EndAtTheFirstThatWasNeverFilled) {
  AddRows(2);
  job.rows.emplace_back();
  AddRow(u"Perdida");
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 Fila1", "5770,200 Fila2", "end"));
}

TEST_F(RowsOfLabels, ARowWithoutCellsIsALabelOfItsOwn) {
  AddRow(u"Uno");
  job.rows.emplace_back(data::Cells{});
  AddRow(u"Tres");
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 Uno", "100,3035 Tres", "end"));
}

TEST_F(RowsOfLabels, AreLookedUpWhateverTheirCaseAndTheFirstCellOfANameCounts) {
  job.rows.push_back(data::Cells{{u"CLIEN", u"nombre", u"primero", 0}, {u"CLIEN", u"NOMBRE", u"segundo", 0}});
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 primero", "end"));
}

TEST_F(RowsOfLabels, AFieldOfTheHostComesBeforeThem) {
  AddRows(2);
  data::AsignarCampo(job, u"NOMBRE", u"Todos");
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 Todos", "5770,200 Todos", "end"));
}

TEST_F(RowsOfLabels, APlainFieldAfterANumericCellStillWraps) {
  SetModel(kLabel,
           "<Campo><Descripcion>IMPORTE</Descripcion><Top>0</Top><Left>0</Left><Width>900</Width>"
           "<Height>600</Height></Campo>"
           "<Campo><Descripcion>NOTA</Descripcion><Top>300</Top></Campo>");
  data::AsignarCampo(job, u"NOTA", u"uno dos tres");
  job.rows.push_back(data::Cells{{u"T", u"IMPORTE", u"1234.5", 3}});
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("0,0 1.234,50", "0,300 uno dos", "0,550 tres", "end"));
}

TEST_F(RowsOfLabels, PromptsAreCountedThroughAllLabelsOfACopy) {
  SetModel("Width=\"5670\" Height=\"2835\" Copias=\"2\"",
           "<Campo><Descripcion>#?Serie</Descripcion><Top>0</Top><Left>0</Left><Width>900</Width>"
           "<Height>240</Height></Campo>");
  AddRows(2);
  prompts.answers = {u"A", u"B", u"C", u"D"};
  EXPECT_TRUE(PrintLabels());
  ASSERT_EQ(prompts.asked.size(), 4U);
  EXPECT_EQ(prompts.asked[2].prompt, u"Copia 2: Serie");
  EXPECT_EQ(prompts.asked[2].defaultAnswer, u"A");
  EXPECT_EQ(prompts.asked[3].defaultAnswer, u"B");
}

using JobsOfLabels = LabelSheets;

TEST_F(JobsOfLabels, EveryCopyIsAJobOfItsOwnWithAllLabelsFromTheFirstPlace) {
  SetModel("Width=\"5670\" Height=\"2835\" Copias=\"2\"", kName);
  AddRows(3);
  Answer({u"2", u"1", u"0", u"0", u"21", u"29,50"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 Fila1", "5770,200 Fila2", "new page", "100,200 Fila3", "end",
                                   "100,200 Fila1", "5770,200 Fila2", "new page", "100,200 Fila3", "end"));
}

TEST_F(JobsOfLabels, WithoutCopiesNothingIsPrintedAndThePrintIsComplete) {
  SetModel("Width=\"5670\" Height=\"2835\"", kName);
  AddRows(3);
  EXPECT_TRUE(PrintLabels());
  EXPECT_EQ(log, "");
  EXPECT_EQ(settings.saved.size(), 6U);
}

TEST_F(JobsOfLabels, ThePaperHasTheSizeOfTheWholeSheetAndTenTwipsMoreOfHeight) {
  spooler.supportsForms = true;
  spooler.AddPrinter(u"Impresora A4", {u"A4", u"A5"});
  AddRows(1);
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(log, HasSubstr("paper code=3 \"PS\" 11907x16736.5\n"));
  EXPECT_EQ(spooler.printers[u"Impresora A4"].back().form.width, 210000);
  EXPECT_EQ(spooler.printers[u"Impresora A4"].back().form.height, 295176);
}

TEST_F(JobsOfLabels, EverySheetHasTheBackground) {
  SetModel("Width=\"5670\" Height=\"2835\" Copias=\"1\" Imagen=\"fondo.bmp\"", kName);
  files.Replace(u"C:\\Modelos\\fondo.bmp", "PICTURE 40x30");
  AddRows(2);
  Answer({u"1", u"1", u"0", u"0", u"21", u"29,50"});
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("picture 40x30 px 0,0", "100,200 Fila1", "new page",
                                   "picture 40x30 px 0,0", "100,200 Fila2", "end"));
}

TEST_F(JobsOfLabels, APrinterThatFailsEndsTheCopyAndTheNextOneIsPrinted) {
  SetModel("Width=\"5670\" Height=\"2835\" Copias=\"2\"", kName);
  AddRows(3);
  printers.faults.text = 3;
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 Fila1", "end", "100,200 Fila1", "5770,200 Fila2",
                                   "100,3035 Fila3", "end"));
}

TEST_F(JobsOfLabels, APrinterThatFailsAtANewSheetEndsTheCopyAsWell) {
  AddRows(3);
  Answer({u"1", u"1", u"0", u"0", u"21", u"29,50"});
  printers.faults.page = 2;
  EXPECT_TRUE(PrintLabels());
  EXPECT_THAT(Lines(), ElementsAre("100,200 Fila1", "new page", "100,200 Fila2", "end"));
}

TEST_F(JobsOfLabels, AFailingEndOfAJobIsError482) {
  AddRows(1);
  printers.faults.end = 1;
  EXPECT_EQ(ErrorOf([&] { (void)PrintLabels(); }), 482);
}

TEST_F(JobsOfLabels, AnErrorOfAFieldReachesTheHostAndThrowsTheJobAway) {
  SetModel(kLabel, "<Campo><Descripcion>NOMBRE</Descripcion><Height>alto</Height></Campo>");
  AddRows(1);
  EXPECT_EQ(ErrorOf([&] { (void)PrintLabels(); }), 13);
  EXPECT_THAT(log, HasSubstr("abandoned\n"));
}

// The places of labels as one would fill a sheet by hand: counting columns, rows and labels of the sheet.
std::vector<std::string> FilledByHand(int rows, int across, int down) {
  std::vector<std::string> lines;
  int column = 1;
  int line = 1;
  int number = 1;
  for (int row = 0; row < rows; ++row) {
    if (number > across * down) {
      lines.emplace_back("new page");
      number = 1;
    }
    if (column > across) {
      column = 1;
      if (++line > down) line = 1;
    }
    lines.push_back(std::to_string((column - 1) * 5670 + 100) + "," +
                    std::to_string((line - 1) * 2835 + 200) + " Fila" + std::to_string(row + 1));
    ++column;
    ++number;
  }
  lines.emplace_back("end");
  return lines;
}

TEST_F(LabelSheets, EveryLabelIsPrintedExactlyOnceInOrderInAnyGrid) {
  for (const int rows : {1, 2, 7, 16, 17, 33, 64, 100}) {
    job.rows.clear();
    AddRows(rows);
    for (const auto& [across, down] :
         {std::pair{1, 1}, {2, 8}, {3, 7}, {8, 2}, {1, 5}, {5, 1}, {10, 10}, {200, 1}}) {
      log.clear();
      const auto text = [](int number) { return runtime::FromUtf8(std::to_string(number)); };
      Answer({text(across), text(down), u"0", u"0", u"21", u"29,50"});
      ASSERT_TRUE(PrintLabels());
      ASSERT_EQ(Lines(), FilledByHand(rows, across, down)) << rows << " rows, " << across << " x " << down;
    }
  }
}

}  // namespace
}  // namespace qm::print
