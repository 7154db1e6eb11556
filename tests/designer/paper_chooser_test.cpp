// The page size taken from the printer's papers, the standard receipt or a special size.

#include "designer/paper_chooser.h"

#include <gmock/gmock.h>

#include "tests/designer/designing_world.h"

namespace qm::designer {
namespace {

using platform::Icon;
using platform::PageSize;
using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::u16string>;
using Kind = platform::PropertyEntry::Kind;
using Told = fakes::ScriptedDialogs::Told;

constexpr char16_t kPrinter[] = u"Impresora Recibos";
const Told kRefused{Icon::Critical, u"Tamaño de papel no válido para su impresora"};

struct PaperChoice : testing::Test, DesigningWorld {
  PaperChoice() {
    spooler.supportsForms = true;
    spooler.AddPrinter(kPrinter, {u"Carta", u"A4", u"A3", u"Sobre, pequeño"});
    printers.papers[kPrinter] = {{1, {12240, 15840}}, {2, {11906, 16838}}, {4, {6000, 3000}}};
  }

  [[nodiscard]] std::optional<ChosenPage> Choose(std::u16string answer,
                                                 std::u16string_view printer = kPrinter) {
    dialogs.texts = {std::move(answer)};
    return PaperChooser(world).LoadPapersizes(printer);
  }
  [[nodiscard]] std::optional<ChosenPage> ChooseSpecial(Texts answers) {
    dialogs.properties = {std::move(answers)};
    return Choose(u"Tamaño especial");
  }
};

TEST_F(PaperChoice, OffersTheReceiptThenTheFormsThatThePrinterTakesThenTheSpecialSize) {
  (void)Choose(u"");
  ASSERT_EQ(dialogs.askedTexts.size(), 1U);
  EXPECT_EQ(dialogs.askedTexts[0].title, u"Elegir tamaño de papel");
  EXPECT_EQ(dialogs.askedTexts[0].defaultAnswer, u"");
  EXPECT_THAT(dialogs.askedTexts[0].choices,
              ElementsAre(u"Recibos Estándar", u"Carta", u"A4", u"Sobre, pequeño", u"Tamaño especial"));
}

TEST_F(PaperChoice, TheReceiptIsFirstWhateverThePrinter) {
  for (const char16_t* printer : {u"Impresora A4", u"Impresora Recibos", u"", u"No existe"}) {
    dialogs.askedTexts.clear();
    (void)Choose(u"", printer);
    ASSERT_EQ(dialogs.askedTexts.size(), 1U);
    EXPECT_EQ(dialogs.askedTexts[0].choices.front(), u"Recibos Estándar");
    EXPECT_EQ(dialogs.askedTexts[0].choices.back(), u"Tamaño especial");
  }
}

TEST_F(PaperChoice, WithoutAnyPrinterStillOffersTheReceipt) {
  printers.names.clear();
  EXPECT_EQ(Choose(u"Recibos Estándar")->ancho, u"20");
  EXPECT_THAT(dialogs.askedTexts[0].choices, ElementsAre(u"Recibos Estándar", u"Tamaño especial"));
  EXPECT_THAT(prompts.warnings, IsEmpty());
}

TEST_F(PaperChoice, APrinterThatIsNotInstalledIsReplacedByTheDefaultOne) {
  spooler.AddPrinter(u"Impresora A4", {u"Folio"});
  printers.papers[u"Impresora A4"] = {{1, {12000, 18000}}};
  EXPECT_EQ(Choose(u"Folio", u"Vieja"),
            (ChosenPage{u"21,16402", u"31,74603", 12000 / 567.0F, 18000 / 567.0F}));
}

TEST_F(PaperChoice, NothingAnsweredChangesNothing) {
  EXPECT_EQ(Choose(u""), std::nullopt);
  EXPECT_THAT(dialogs.told, IsEmpty());
}

TEST_F(PaperChoice, TheReceiptHasExactlyItsTextsWhateverTheFormsAndSettings) {
  for (const runtime::Locale& locale : {runtime::Locale::Spanish(), runtime::Locale::English()}) {
    environment.locale = locale;
    for (const char16_t* printer : {u"Impresora A4", u"Impresora Recibos"})
      EXPECT_EQ(Choose(u"Recibos Estándar", printer), (ChosenPage{u"20", u"10,15873", 20.0F, 10.15873F}));
  }
}

TEST_F(PaperChoice, AFormGivesThePrintersPageInCentimetres) {
  EXPECT_EQ(Choose(u"A4"), (ChosenPage{u"20,99824", u"29,69665", 11906 / 567.0F, 16838 / 567.0F}));
  ASSERT_EQ(printers.papersAsked.size(), 1U);
  EXPECT_EQ(printers.papersAsked[0].code, 2);
}

TEST_F(PaperChoice, AFormWithACommaInItsNameIsFound) {
  EXPECT_EQ(Choose(u"Sobre, pequeño")->ancho, u"10,58201");
}

TEST_F(PaperChoice, AFormThatThePrinterRefusesAfterAllIsToldAndLeavesThePage) {
  EXPECT_EQ(Choose(u"A3"), std::nullopt);
  EXPECT_THAT(dialogs.told, ElementsAre(kRefused));
}

TEST_F(PaperChoice, AFormThatIsGoneIsTold) {
  EXPECT_EQ(Choose(u"Borrado"), std::nullopt);
  EXPECT_THAT(dialogs.told, ElementsAre(kRefused));
  EXPECT_THAT(printers.papersAsked, IsEmpty());
}

TEST_F(PaperChoice, APaperBeyondHalfAMetreIsGivenAsItIs) {  // AjustarPageSize decides about it
  printers.papers[kPrinter][1] = {28350, 40000};
  EXPECT_EQ(Choose(u"Carta")->widthCm, 50.0F);
}

TEST_F(PaperChoice, ASpecialSizeIsAskedForWithItsLabelsAndDefaults) {
  EXPECT_EQ(Choose(u"Tamaño especial"), std::nullopt);
  ASSERT_EQ(dialogs.askedProperties.size(), 1U);
  EXPECT_THAT(dialogs.askedProperties[0].entries,
              ElementsAre(platform::PropertyEntry{u"Descripción", u"Especial", Kind::Text},
                          platform::PropertyEntry{u"Anchura en cm.", u"", Kind::Text},
                          platform::PropertyEntry{u"Altura en cm.", u"", Kind::Text}));
  EXPECT_THAT(dialogs.told, IsEmpty());
  EXPECT_EQ(spooler.Names(kPrinter).size(), 4U);
}

TEST_F(PaperChoice, ASpecialSizeBecomesAFormOfThePrinter) {
  printers.papers[kPrinter][5] = {6804, 5783};
  EXPECT_EQ(ChooseSpecial({u"Talón", u"12", u"10,2"}),
            (ChosenPage{u"12", u"10,19929", 6804 / 567.0F, 5783 / 567.0F}));
  const platform::PaperForm& form = spooler.printers[kPrinter].back().form;
  EXPECT_EQ(form.name, u"Talón");
  EXPECT_EQ(form.width, 120000);
  EXPECT_EQ(form.height, 102000);
  EXPECT_EQ(printers.papersAsked.back().code, 5);
}

TEST_F(PaperChoice, CentimetresAreReadWithAPointOrACommaInEveryLocale) {
  for (const runtime::Locale& locale : {runtime::Locale::Spanish(), runtime::Locale::English()}) {
    environment.locale = locale;
    (void)ChooseSpecial({u"Especial", u"12,5", u"7.25"});
    EXPECT_EQ(spooler.printers[kPrinter].back().form.width, 125000);
    EXPECT_EQ(spooler.printers[kPrinter].back().form.height, 72500);
  }
}

TEST_F(PaperChoice, ASpecialSizeOfTheSameNameReplacesTheFormerOne) {
  (void)ChooseSpecial({u"Especial", u"10", u"10"});
  (void)ChooseSpecial({u"Especial", u"11", u"12"});
  EXPECT_THAT(spooler.Names(kPrinter), ElementsAre(u"Carta", u"A4", u"A3", u"Sobre, pequeño", u"Especial"));
  EXPECT_EQ(spooler.printers[kPrinter].back().form.width, 110000);
}

TEST_F(PaperChoice, ASpecialSizeWithoutADescriptionDeletesNoOtherForm) {
  (void)ChooseSpecial({u"", u"10", u"10"});
  EXPECT_THAT(spooler.Names(kPrinter), ElementsAre(u"Carta", u"A4", u"A3", u"Sobre, pequeño", u"Especial"));
}

TEST_F(PaperChoice, WhereTheFormCannotBeMadeThePrinterTakesTheSizeIfItCan) {
  spooler.addError = 5;  // the user may not add forms
  EXPECT_EQ(ChooseSpecial({u"Especial", u"10", u"5"}), std::nullopt);
  EXPECT_THAT(dialogs.told, ElementsAre(kRefused));

  printers.papers[kPrinter][0] = {5670, 2835};
  EXPECT_EQ(ChooseSpecial({u"Especial", u"10", u"5"}), (ChosenPage{u"10", u"5", 10, 5}));
  EXPECT_EQ(printers.papersAsked.back().code, 0);
  EXPECT_EQ(printers.papersAsked.back().widthTwips, 5670);
  EXPECT_EQ(printers.papersAsked.back().heightTwips, 2835);
}

TEST_F(PaperChoice, AnotherFormOfThatNameNeverStandsForTheSizeAsked) {
  EXPECT_EQ(ChooseSpecial({u"Carta", u"10", u"5"}), std::nullopt);  // the first form is never replaced
  EXPECT_THAT(dialogs.told, ElementsAre(kRefused));

  spooler.deleteError = 5;
  spooler.addError = 80;
  printers.papers[kPrinter][0] = {5670, 2835};
  EXPECT_EQ(ChooseSpecial({u"A4", u"10", u"5"}), (ChosenPage{u"10", u"5", 10, 5}));
  EXPECT_EQ(printers.papersAsked.back().formName, u"A4");
}

TEST_F(PaperChoice, ASpecialSizeThatIsNoneIsToldAndMakesNoForm) {
  for (const Texts& answers : {Texts{u"Especial", u"", u"10"}, Texts{u"Especial", u"10", u"cero"},
                               Texts{u"Especial", u"-3", u"10"}}) {
    dialogs.told.clear();
    EXPECT_EQ(ChooseSpecial(answers), std::nullopt);
    EXPECT_THAT(dialogs.told, ElementsAre(kRefused));
  }
  EXPECT_EQ(spooler.Names(kPrinter).size(), 4U);
}

TEST_F(PaperChoice, WhereThereAreNoCustomFormsTheSizeIsTakenAsItIs) {
  spooler.supportsForms = false;
  printers.papers[kPrinter][0] = {5670, 2835};
  EXPECT_EQ(ChooseSpecial({u"Especial", u"10", u"5"}), (ChosenPage{u"10", u"5", 10, 5}));
  EXPECT_THAT(dialogs.askedTexts.back().choices, ElementsAre(u"Recibos Estándar", u"Tamaño especial"));
}

}  // namespace
}  // namespace qm::designer
