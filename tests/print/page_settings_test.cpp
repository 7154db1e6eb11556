// A model's own attributes, and the printer that a missing one is replaced by.

#include "print/page_settings.h"

#include <gmock/gmock.h>

#include "tests/print/printing_world.h"

namespace qm::print {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ModelAttributes : testing::Test, PrintingWorld {
  PageSettings Read(std::vector<model::Property> attributes) {
    const model::ModelTexts model{std::move(attributes), {}};
    const auto settings = ReadPageSettings(model, job, environment, Output::Printer);
    EXPECT_TRUE(settings);
    return settings.value_or(PageSettings{});
  }
};

TEST_F(ModelAttributes, SizesAreReadWithDecimalCommaAndDecimalPointAlike) {
  EXPECT_EQ(Read({{u"Width", u"11905,5"}}).width, 11905.5);
  EXPECT_EQ(Read({{u"Width", u"11905.5"}}).width, 11905.5);
  EXPECT_EQ(Read({{u"Height", u" 16838 "}}).height, 16838);
  EXPECT_EQ(Read({{u"Height", u"alto"}}).height, 0);
}

TEST_F(ModelAttributes, AMissingAttributeLeavesItsStartingValue) {
  const PageSettings settings = Read({});
  EXPECT_EQ(settings.width, 0);
  EXPECT_EQ(settings.height, 0);
  EXPECT_EQ(settings.copies, 0);
  EXPECT_FALSE(settings.printer);
  EXPECT_FALSE(settings.background);
}

TEST_F(ModelAttributes, UnknownOnesAndThoseOfOtherCaseAreSkipped) {
  const PageSettings settings =
      Read({{u"Color", u"3"}, {u"width", u"5"}, {u"COPIAS", u"4"}, {u"Logo", u"1"}, {u"Width", u"7"}});
  EXPECT_EQ(settings.width, 7);
  EXPECT_EQ(settings.copies, 0);
}

TEST_F(ModelAttributes, ANumberOfCopiesThatDoesNotFitKeepsThePreviousValueAndTheRestIsRead) {
  const PageSettings settings = Read({{u"Copias", u"99999"}, {u"Width", u"100"}});
  EXPECT_EQ(settings.copies, 0);
  EXPECT_EQ(settings.width, 100);
}

TEST_F(ModelAttributes, ADrawingIsMadeOnceWhateverTheModelSays) {
  const model::ModelTexts model{{{u"Copias", u"5"}, {u"Printer", u"Ninguna"}}, {}};
  const auto settings = ReadPageSettings(model, job, environment, Output::Drawing);
  ASSERT_TRUE(settings);
  EXPECT_EQ(settings->copies, 1);
  EXPECT_FALSE(settings->printer);
}

struct PrinterChoice : testing::Test, PrintingWorld {
  PrinterChoice() { SetModel("Copias=\"1\" Printer=\"Impresora Vieja\"", ""); }
};

TEST_F(PrinterChoice, TheModelsPrinterIsTheFirstInstalledOneOfExactlyThatName) {
  SetModel("Copias=\"1\" Printer=\"Impresora Recibos\"", "");
  EXPECT_TRUE(Print());
  EXPECT_EQ(log, "open Impresora Recibos\npage 0x0\n0,0  \nend\n");
  EXPECT_THAT(prompts.printerPrompts, IsEmpty());
}

TEST_F(PrinterChoice, AModelThatNamesNoPrinterGoesToTheDefaultOne) {
  SetModel("Copias=\"1\"", "");
  printers.defaultName = u"Impresora Recibos";
  EXPECT_TRUE(Print());
  EXPECT_EQ(log, "open Impresora Recibos\npage 0x0\n0,0  \nend\n");
}

TEST_F(PrinterChoice, ADifferenceInCaseOrAnEmptyNameIsAMissingPrinter) {
  for (const char* name : {"impresora a4", "", "Impresora A4 "}) {
    SetModel(std::string("Copias=\"1\" Printer=\"") + name + "\"", "");
    EXPECT_FALSE(Print());
  }
  EXPECT_THAT(prompts.printerPrompts,
              ElementsAre(u"Error Impresora|No existe la impresora (impresora a4) Elegir impresora",
                          u"Error Impresora|No existe la impresora () Elegir impresora",
                          u"Error Impresora|No existe la impresora (Impresora A4 ) Elegir impresora"));
}

TEST_F(PrinterChoice, AMissingPrinterIsAskedForOnceAndRememberedByThePrintJob) {
  prompts.printer = u"Impresora Recibos";
  EXPECT_TRUE(Print());
  EXPECT_TRUE(Print());
  EXPECT_THAT(prompts.printerPrompts,
              ElementsAre(u"Error Impresora|No existe la impresora (Impresora Vieja) Elegir impresora"));
  EXPECT_EQ(log,
            "open Impresora Recibos\npage 0x0\n0,0  \nend\n"
            "open Impresora Recibos\npage 0x0\n0,0  \nend\n");
  EXPECT_EQ(job.substitutePrinter, u"Impresora Recibos");
}

TEST_F(PrinterChoice, TheSubstituteTakesThePlaceOfAnInstalledPrinterTooButNotOfNone) {
  prompts.printer = u"Impresora Recibos";
  EXPECT_TRUE(Print());
  log.clear();
  SetModel("Copias=\"1\" Printer=\"Impresora A4\"", "");
  EXPECT_TRUE(Print());
  SetModel("Copias=\"1\"", "");
  EXPECT_TRUE(Print());
  EXPECT_EQ(log,
            "open Impresora Recibos\npage 0x0\n0,0  \nend\n"
            "open Impresora A4\npage 0x0\n0,0  \nend\n");
}

TEST_F(PrinterChoice, AnotherPrintJobAsksAgain) {
  prompts.printer = u"Impresora Recibos";
  EXPECT_TRUE(Print());
  data::PrintJob other;
  EXPECT_TRUE(print::Print(other, environment, Model()));
  EXPECT_EQ(prompts.printerPrompts.size(), 2U);
}

TEST_F(PrinterChoice, ASubstituteThatIsGoneIsAskedForByItsOwnName) {
  job.substitutePrinter = u"Impresora Prestada";
  EXPECT_FALSE(Print());
  EXPECT_THAT(prompts.printerPrompts,
              ElementsAre(u"Error Impresora|No existe la impresora (Impresora Prestada) Elegir impresora"));
  EXPECT_EQ(job.substitutePrinter, u"Impresora Prestada");
}

TEST_F(PrinterChoice, AnEmptyAnswerEndsThePrintSilently) {
  prompts.printer = u"";
  EXPECT_FALSE(Print());
  EXPECT_THAT(prompts.warnings, IsEmpty());
  EXPECT_EQ(log, "");
  EXPECT_FALSE(job.substitutePrinter);
}

TEST_F(PrinterChoice, APromptThatFailsEndsThePrintWithAMessage) {
  prompts.printer = std::nullopt;
  EXPECT_FALSE(Print());
  EXPECT_THAT(prompts.warnings, ElementsAre(u"No está configurada la impresora"));
  EXPECT_EQ(log, "");
}

TEST_F(PrinterChoice, AListOfPrintersThatCannotBeHadIsAskedForLikeAMissingPrinter) {
  printers.listFails = true;
  EXPECT_FALSE(Print());
  EXPECT_EQ(prompts.printerPrompts.size(), 1U);
}

// A user whose first answer names no installed printer.
struct MistypingUser : fakes::ScriptedPrompts {
  std::u16string ChoosePrinter(std::u16string_view title, std::u16string_view text,
                               const std::vector<std::u16string>& names) override {
    printer = printerPrompts.empty() ? u"Recibos" : names.back();
    return ScriptedPrompts::ChoosePrinter(title, text, names);
  }
};

TEST_F(PrinterChoice, AnAnswerThatIsNotInstalledIsAskedForAgainByItsName) {
  MistypingUser user;
  Environment other{files, printers,  spooler,    pictures,          user,
                    clock, modelFile, paperForms, environment.locale};
  EXPECT_TRUE(print::Print(job, other, Model()));
  EXPECT_THAT(user.printerPrompts,
              ElementsAre(u"Error Impresora|No existe la impresora (Impresora Vieja) Elegir impresora",
                          u"Error Impresora|No existe la impresora (Recibos) Elegir impresora"));
  EXPECT_EQ(job.substitutePrinter, u"Impresora Recibos");
}

TEST_F(PrinterChoice, APreviewNeedsNoPrinterAndAsksForNone) {
  EXPECT_EQ(Drawn(), "page 0x0\n");
  EXPECT_THAT(prompts.printerPrompts, IsEmpty());
}

}  // namespace
}  // namespace qm::print
