#include "print/paper_forms.h"

#include <gmock/gmock.h>

#include "tests/fakes/scripted_prompts.h"
#include "tests/fakes/scripted_spooler.h"

namespace qm::print {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::u16string_view kDevice = u"Impresora A4";

struct PaperFormsOfAPrinter : testing::Test {
  fakes::ScriptedSpooler spooler;
  fakes::ScriptedPrompts prompts;
  PaperFormState state;
  PaperForms forms{state, spooler, prompts};

  std::int16_t CodeFor(double widthTwips, double heightTwips) {
    return forms.PaperCodeForSize(kDevice, widthTwips / 567, heightTwips / 567, kFormName);
  }
  const platform::PaperForm& LastForm() { return spooler.printers[std::u16string(kDevice)].back().form; }
};

TEST_F(PaperFormsOfAPrinter, A4WithTheEnginesTenTwipsBecomes209982By297142ThousandthsOfAMillimetre) {
  spooler.AddPrinter(kDevice, {u"A4"});
  EXPECT_EQ(CodeFor(11906, 16848), 2);
  EXPECT_EQ(LastForm().name, u"PS");
  EXPECT_EQ(LastForm().width, 209982);
  EXPECT_EQ(LastForm().height, 297142);
}

TEST_F(PaperFormsOfAPrinter, FractionsAreCutOffAfterTheProductIsTakenInDoublePrecision) {
  spooler.AddPrinter(kDevice, {u"A4"});
  EXPECT_EQ(forms.PaperCodeForSize(kDevice, 29.7, 20.99, kFormName), 2);
  EXPECT_EQ(LastForm().width, 297000);
  EXPECT_EQ(LastForm().height, 209899);
}

TEST_F(PaperFormsOfAPrinter, TwoCallsInARowLeaveOneCustomForm) {
  spooler.AddPrinter(kDevice, {u"A4", u"A5"});
  EXPECT_EQ(CodeFor(11906, 16848), 3);
  EXPECT_EQ(CodeFor(5670, 2845), 3);
  EXPECT_THAT(spooler.Names(kDevice), ElementsAre(u"A4", u"A5", u"PS"));
  EXPECT_EQ(LastForm().width, 100000);
}

TEST_F(PaperFormsOfAPrinter, AFormWhoseNameMerelyContainsTheCustomNameIsDeletedToo) {
  spooler.AddPrinter(kDevice, {u"A4", u"EPSON 80", u"Tarjeta", u"PS", u"XPS"});
  EXPECT_EQ(CodeFor(11906, 16848), 3);
  EXPECT_THAT(spooler.Names(kDevice), ElementsAre(u"A4", u"Tarjeta", u"PS"));
  EXPECT_EQ(state.formBeingDeleted, u"XPS");
}

TEST_F(PaperFormsOfAPrinter, TheFirstListedFormSurvivesWhateverItsName) {
  spooler.AddPrinter(kDevice, {u"EPSON 80", u"A4"});
  EXPECT_EQ(CodeFor(11906, 16848), 3);
  EXPECT_THAT(spooler.Names(kDevice), ElementsAre(u"EPSON 80", u"A4", u"PS"));
  EXPECT_EQ(state.firstMatch, 1);
}

TEST_F(PaperFormsOfAPrinter, ACustomFormInTheFirstPlaceIsKeptWithItsOldSize) {
  spooler.AddPrinter(kDevice, {u"PS"});
  EXPECT_EQ(CodeFor(11906, 16848), 1);
  EXPECT_THAT(spooler.Names(kDevice), ElementsAre(u"PS"));
  EXPECT_EQ(LastForm().width, 1000);
  EXPECT_EQ(state.lastError, fakes::ScriptedSpooler::kFileExists);
}

TEST_F(PaperFormsOfAPrinter, NamesAreSearchedCaseSensitively) {
  spooler.AddPrinter(kDevice, {u"A4", u"Caps", u"ps"});
  EXPECT_EQ(CodeFor(11906, 16848), 4);
  EXPECT_THAT(spooler.Names(kDevice), ElementsAre(u"A4", u"Caps", u"ps", u"PS"));
}

TEST_F(PaperFormsOfAPrinter, AMissingPrinterIsToldOnceAndHasCodeZero) {
  EXPECT_EQ(forms.PaperCodeForSize(u"Ninguna", 21, 29.7, kFormName), 0);
  EXPECT_THAT(prompts.warnings, ElementsAre(u"Error: Impresora Ninguna No se encuentra"));
  EXPECT_THAT(state.formNames, IsEmpty());
}

TEST_F(PaperFormsOfAPrinter, FormsOfAnEarlierPrinterAreNotTakenForThoseOfAMissingOne) {
  spooler.AddPrinter(kDevice, {u"A4", u"PS"});
  EXPECT_EQ(CodeFor(11906, 16848), 2);
  EXPECT_EQ(forms.PaperCodeForSize(u"Ninguna", 21, 29.7, kFormName), 0);
  EXPECT_THAT(prompts.warnings, ElementsAre(u"Error: Impresora Ninguna No se encuentra"));
  EXPECT_EQ(state.firstMatch, 0);
}

TEST_F(PaperFormsOfAPrinter, AFormThatCannotBeAddedIsRememberedAsAnErrorWithoutAMessage) {
  spooler.AddPrinter(kDevice, {u"A4"});
  spooler.addError = 5;
  EXPECT_EQ(CodeFor(11906, 16848), 0);
  EXPECT_EQ(state.lastError, 5U);
  EXPECT_THAT(prompts.warnings, IsEmpty());
}

TEST_F(PaperFormsOfAPrinter, AFormThatCannotBeDeletedDoesNotKeepTheRestFromBeingDone) {
  spooler.AddPrinter(kDevice, {u"A4", u"XPS", u"PS 2"});
  spooler.printers[std::u16string(kDevice)][1].builtIn = true;
  EXPECT_EQ(CodeFor(11906, 16848), 3);
  EXPECT_THAT(spooler.Names(kDevice), ElementsAre(u"A4", u"XPS", u"PS"));
  EXPECT_EQ(state.lastError, fakes::ScriptedSpooler::kInvalidParameter);
}

TEST_F(PaperFormsOfAPrinter, ANewCallForgetsTheErrorOfTheOneBefore) {
  spooler.AddPrinter(kDevice, {u"A4"});
  spooler.addError = 5;
  (void)CodeFor(11906, 16848);
  spooler.addError = 0;
  EXPECT_EQ(CodeFor(11906, 16848), 2);
  EXPECT_EQ(state.lastError, 0U);
}

TEST_F(PaperFormsOfAPrinter, TheStateKeepsTheListAsItStoodBeforeTheChanges) {
  spooler.AddPrinter(kDevice, {u"A4", u"A5", u"PS"});
  EXPECT_EQ(CodeFor(11906, 16848), 3);
  EXPECT_THAT(state.formNames, ElementsAre(u"A4", u"A5", u"PS"));
  EXPECT_EQ(state.firstMatch, 3);
  EXPECT_EQ(state.device, kDevice);
}

TEST_F(PaperFormsOfAPrinter, ALookupOfACodeAsksThePrinterAnewAndTakesExactNamesOnly) {
  spooler.AddPrinter(kDevice, {u"A4", u"PS largo"});
  EXPECT_EQ(forms.FindFormCode(kDevice, u"PS"), 0);
  spooler.AddPrinter(kDevice, {u"PS"});
  EXPECT_EQ(forms.FindFormCode(kDevice, u"PS"), 3);
  EXPECT_EQ(forms.FindFormCode(u"Ninguna", u"PS"), 0);
}

TEST_F(PaperFormsOfAPrinter, SizesBeyondTheSpoolersRangeAndBelowNothingHaveNoCode) {
  spooler.AddPrinter(kDevice, {u"A4"});
  EXPECT_EQ(CodeFor(-567, 567), 0);
  EXPECT_EQ(state.form.width, -10000);
  EXPECT_EQ(state.lastError, fakes::ScriptedSpooler::kInvalidFormSize);
  (void)CodeFor(1e300, 567);
  EXPECT_EQ(state.form.width, 2147483647);
}

}  // namespace
}  // namespace qm::print
