#include "data/value_lookup.h"

#include <gtest/gtest.h>

#include "data/fields.h"
#include "runtime/error.h"
#include "tests/error_of.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/scripted_prompts.h"

namespace qm::data {
namespace {

using tests::ErrorOf;

constexpr std::int16_t kUntouched = -7;

// A print job with a user, a clock in 2015 and Spanish settings.
class ValueLookups : public testing::Test {
 protected:
  std::u16string Value(std::u16string_view name, std::int16_t copy = 1) {
    kind = kUntouched;
    return lookup.ObtenerValor(name, copy, kind);
  }
  std::u16string RowValue(std::u16string_view name, int row, std::int16_t copy = 1) {
    kind = kUntouched;
    return lookup.ObtenerValorFila(name, copy, kind, row);
  }
  PrintJob job;
  fakes::ScriptedPrompts user;
  fakes::FixedClock clock;
  runtime::Locale spanish = runtime::Locale::Spanish();
  ValueLookup lookup{job, user, clock, spanish};
  std::int16_t kind = 0;
};

using FieldLookup = ValueLookups;
using CellLookup = ValueLookups;
using RowLookup = ValueLookups;
using LiteralTexts = ValueLookups;
using PromptedTexts = ValueLookups;

TEST_F(FieldLookup, FindsTheFirstFieldOfExactlyThatNameAndLeavesTheKind) {
  AsignarCampo(job, u"TOTAL", u"10");
  AsignarCampo(job, u"Total", u"20");
  AñadirCampo(job, u"TOTAL")->valor = u"30";
  EXPECT_EQ(Value(u"TOTAL"), u"10");
  EXPECT_EQ(Value(u"Total"), u"20");
  EXPECT_EQ(kind, kUntouched);
}

TEST_F(FieldLookup, DoesNotFindANameThatDiffersOnlyInCase) {
  AsignarCampo(job, u"TOTAL", u"10");
  EXPECT_EQ(Value(u"total"), u"");
}

TEST_F(FieldLookup, SaysNothingForANameFoundNowhereAndLeavesTheKind) {
  EXPECT_EQ(Value(u"NADA"), u"");
  EXPECT_EQ(kind, kUntouched);
}

TEST_F(FieldLookup, FindsTheEmptyName) {
  AsignarCampo(job, u"", u"sin nombre");
  EXPECT_EQ(Value(u""), u"sin nombre");
}

TEST_F(FieldLookup, TakesAUserTypedKindAsAnyName) {
  AsignarCampo(job, u"|Código", u"A-1");
  EXPECT_EQ(Value(u"|Código"), u"A-1");
}

TEST_F(FieldLookup, ComesBeforeCellsOfTheSameName) {
  AñadirCampoTabla(job, {u"F", u"IMPORTE", u"5", 3});
  AsignarCampo(job, u"IMPORTE", u"campo");
  EXPECT_EQ(Value(u"IMPORTE"), u"campo");
  EXPECT_EQ(kind, kUntouched);
}

TEST_F(CellLookup, MatchesRegardlessOfCaseAndTakesTheFirst) {
  AñadirCampoTabla(job, {u"FACTU", u"importe (FACTU)", u"año", 0});
  AñadirCampoTabla(job, {u"FACTU", u"IMPORTE (FACTU)", u"second", 1});
  EXPECT_EQ(Value(u"IMPORTE (FACTU)"), u"año");
  EXPECT_EQ(kind, 0);
}

TEST_F(CellLookup, FoldsSpanishLettersButNotAccents) {
  AñadirCampoTabla(job, {u"F", u"año (F)", u"2015", 0});
  EXPECT_EQ(Value(u"AÑO (F)"), u"2015");
  EXPECT_EQ(Value(u"ANO (F)"), u"");
}

TEST_F(CellLookup, FormatsNumbersWithTheUsersSeparatorsAndLeavesZeroBlank) {
  struct Row {
    std::u16string_view value;
    std::u16string_view printed;
  };
  const Row rows[] = {{u"1234.5", u"1.234,50"}, {u"0", u""},         {u"abc", u""},       {u"", u""},
                      {u"1234,5", u"1.234,00"},  // read up to the comma
                      {u"-3", u"-3,00"},        {u"0.004", u"0,00"}, {u"12 kg", u"12,00"}};
  for (const Row& row : rows) {
    job.cells = {{u"F", u"C", std::u16string(row.value), 3}};
    EXPECT_EQ(Value(u"C"), row.printed);
    EXPECT_EQ(kind, 3);
  }
}

TEST_F(CellLookup, TellsNumbersDatesAndTextsByTheirType) {
  for (int tipo = -1; tipo < 100; ++tipo) {
    job.cells = {{u"F", u"C", u"151231", static_cast<std::int16_t>(tipo)}};
    const bool number = tipo == 2 || tipo == 3 || tipo == 6 || tipo == 7 || (tipo >= 80 && tipo <= 89);
    EXPECT_EQ(Value(u"C"), number ? u"151.231,00" : tipo == 5 ? u"31/12/15" : u"151231") << tipo;
    EXPECT_EQ(kind, tipo);
  }
}

TEST_F(CellLookup, NormalizesDates) {
  struct Row {
    std::u16string_view value;
    std::u16string_view printed;
  };
  const Row rows[] = {{u"151231", u"31/12/15"},     {u"B51231", u"31/12/15"}, {u"31/12/15", u"B51231"},
                      {u"31/12/75", u"751231"},     {u"51231", u"ERROR"},     {u"", u""},
                      {u"12/31/15 ", u"31/12/2015"}};  // the century is the clock's
  for (const Row& row : rows) {
    job.cells = {{u"F", u"FECHA", std::u16string(row.value), 5}};
    EXPECT_EQ(Value(u"FECHA"), row.printed);
    EXPECT_EQ(kind, 5);
  }
}

TEST_F(CellLookup, PassesOnAnAmountTooLargeForANumber) {
  job.cells = {{u"F", u"C", u"1e400", 3}};
  EXPECT_EQ(ErrorOf([&] { (void)Value(u"C"); }), 6);
}

TEST_F(RowLookup, FindsTheCellsOfItsRowOnly) {
  job.cells = {{u"F", u"NOMBRE", u"lista", 0}};
  job.rows = {Cells{{u"F", u"nombre", u"Ana", 0}}, Cells{{u"F", u"nombre", u"Luis", 4}}};
  EXPECT_EQ(RowValue(u"NOMBRE", 0), u"Ana");
  EXPECT_EQ(RowValue(u"NOMBRE", 1), u"Luis");
  EXPECT_EQ(kind, 4);
  EXPECT_EQ(Value(u"NOMBRE"), u"lista");
}

TEST_F(RowLookup, CreatesAMissingRowEmpty) {
  job.rows.resize(2);
  EXPECT_EQ(RowValue(u"NOMBRE", 1), u"");
  EXPECT_EQ(kind, kUntouched);
  EXPECT_FALSE(job.rows[0]);
  ASSERT_TRUE(job.rows[1]);
  EXPECT_TRUE(job.rows[1]->empty());
}

TEST_F(RowLookup, FailsForARowThatDoesNotExist) {
  EXPECT_EQ(ErrorOf([&] { (void)RowValue(u"NOMBRE", 0); }), 9);
  job.rows.resize(2);
  EXPECT_EQ(ErrorOf([&] { (void)RowValue(u"NOMBRE", 2); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)RowValue(u"NOMBRE", -1); }), 9);
}

TEST_F(RowLookup, FindsSingleFieldsAndLiteralsWithoutLookingAtTheRow) {
  AsignarCampo(job, u"EMPRESA", u"Talleres");
  EXPECT_EQ(RowValue(u"EMPRESA", 99), u"Talleres");
  EXPECT_EQ(RowValue(u"#Conforme", 99), u"Conforme");
}

TEST_F(LiteralTexts, PrintOnEveryCopyWithTheKindOfWrappedText) {
  for (const std::int16_t copy : {std::int16_t{1}, std::int16_t{2}, kNoCopyNumbering})
    EXPECT_EQ(Value(u"#Conforme", copy), u"Conforme");
  EXPECT_EQ(kind, kLiteralText);
}

TEST_F(LiteralTexts, KeepTheirBlanks) { EXPECT_EQ(Value(u"#  firma  "), u"  firma  "); }

TEST_F(LiteralTexts, AreNeverLookedUp) {
  AsignarCampo(job, u"#Conforme", u"campo");
  EXPECT_EQ(Value(u"#Conforme"), u"Conforme");
}

TEST_F(LiteralTexts, WithADigitPrintOnThatCopyOnly) {
  EXPECT_EQ(Value(u"#3Triplicado", 1), u"");
  EXPECT_EQ(kind, kLiteralText);
  EXPECT_EQ(Value(u"#3Triplicado", 2), u"");
  EXPECT_EQ(Value(u"#3 Triplicado ", 3), u"Triplicado");
  EXPECT_EQ(Value(u"#3Triplicado", kNoCopyNumbering), u"");
  EXPECT_EQ(Value(u"#0Nunca", 1), u"");
  EXPECT_EQ(Value(u"#12 copias", 1), u"2 copias");
  EXPECT_EQ(Value(u"#3", 3), u"");
}

TEST_F(LiteralTexts, FailForALoneHash) {
  EXPECT_EQ(ErrorOf([&] { (void)Value(u"#"); }), 5);
}

TEST_F(PromptedTexts, AskWithTheCopyTheRestOfTheNameAndItsLength) {
  user.answers = {u"P-77"};
  EXPECT_EQ(Value(u"#?Número de pedido", 2), u"P-77");
  EXPECT_EQ(kind, kLiteralText);
  ASSERT_EQ(user.asked.size(), 1U);
  EXPECT_EQ(user.asked[0].prompt, u"Copia 2: Número de pedido");
  EXPECT_EQ(user.asked[0].nameLength, 18);
  EXPECT_EQ(user.asked[0].defaultAnswer, u"");
}

TEST_F(PromptedTexts, AskWithAnEmptyTextForABareQuestionMark) {
  user.answers = {u"x"};
  EXPECT_EQ(Value(u"#?"), u"x");
  EXPECT_EQ(user.asked[0].prompt, u"Copia 1: ");
}

TEST_F(PromptedTexts, OfferThePreviousCopysAnswersAndArePreviewedWithoutAsking) {
  user.answers = {u"uno", u"dos", u"tres", u"cuatro"};
  for (const std::int16_t copy : {std::int16_t{1}, std::int16_t{2}}) {
    (void)Value(u"#?Pedido", copy);
    (void)Value(u"#?Albarán", copy);
  }
  ASSERT_EQ(user.asked.size(), 4U);
  EXPECT_EQ(user.asked[0].defaultAnswer, u"");
  EXPECT_EQ(user.asked[2].prompt, u"Copia 2: Pedido");
  EXPECT_EQ(user.asked[2].defaultAnswer, u"uno");
  EXPECT_EQ(user.asked[3].defaultAnswer, u"dos");

  EXPECT_EQ(Value(u"#?Pedido", kNoCopyNumbering), u"tres");
  EXPECT_EQ(Value(u"#?Albarán", kNoCopyNumbering), u"cuatro");
  EXPECT_EQ(user.asked.size(), 4U);
}

TEST_F(PromptedTexts, ForgetTheAnswerWhenTheUserCancels) {
  user.answers = {u"uno", u""};
  (void)Value(u"#?Pedido", 1);
  EXPECT_EQ(Value(u"#?Pedido", 2), u"");
  EXPECT_EQ(Value(u"#?Pedido", kNoCopyNumbering), u"");
}

TEST_F(PromptedTexts, RestartTheirCountWithAnyLookupOfAnotherCopy) {
  user.answers = {u"uno", u"dos"};
  (void)Value(u"#?Pedido", 1);
  (void)Value(u"EMPRESA", 2);
  (void)Value(u"EMPRESA", 1);
  (void)Value(u"#?Pedido", 1);
  EXPECT_EQ(user.asked[1].defaultAnswer, u"uno");
}

TEST_F(PromptedTexts, GoOnCountingInASecondPrintOfOneCopy) {
  user.answers = {u"uno", u"dos"};
  (void)Value(u"#?Pedido", 1);
  (void)Value(u"#?Pedido", 1);
  EXPECT_EQ(user.asked[1].defaultAnswer, u"");
  EXPECT_EQ(job.cellPrompts.answers[2], u"dos");
}

TEST_F(PromptedTexts, FailAtTheTwentyFirstOfACopyBeforeAsking) {
  for (int i = 0; i < 20; ++i) (void)Value(u"#?Dato");
  EXPECT_EQ(ErrorOf([&] { (void)Value(u"#?Dato"); }), 9);
  EXPECT_EQ(user.asked.size(), 20U);
  EXPECT_EQ(ErrorOf([&] { (void)Value(u"#?Dato"); }), 9);
  (void)Value(u"#?Dato", 2);
  EXPECT_EQ(user.asked.size(), 21U);
}

TEST_F(PromptedTexts, FailAtTheTwentyFirstOfSeveralPreviewsAsWell) {
  for (int i = 0; i < 20; ++i) (void)Value(u"#?Dato", kNoCopyNumbering);
  EXPECT_EQ(ErrorOf([&] { (void)Value(u"#?Dato", kNoCopyNumbering); }), 9);
}

TEST_F(PromptedTexts, OverflowTheirCounterPastItsSixteenBits) {
  (void)Value(u"EMPRESA", 1);
  job.cellPrompts.counter = 32766;
  EXPECT_EQ(ErrorOf([&] { (void)Value(u"#?Dato"); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)Value(u"#?Dato"); }), 6);
  EXPECT_EQ(job.cellPrompts.counter, 32767);
}

TEST_F(PromptedTexts, KeepAnswersOfCellsAndRowsApart) {
  job.rows.resize(1);
  user.answers = {u"lista", u"fila"};
  (void)Value(u"#?Dato", 1);
  (void)RowValue(u"#?Dato", 0, 1);
  EXPECT_EQ(user.asked[1].defaultAnswer, u"");
  EXPECT_EQ(Value(u"#?Dato", kNoCopyNumbering), u"lista");
  EXPECT_EQ(RowValue(u"#?Dato", 0, kNoCopyNumbering), u"fila");
}

TEST_F(PromptedTexts, KeepTheStoredAnswerWhenTheDialogCannotBeShown) {
  struct NoDialog : fakes::ScriptedPrompts {
    std::u16string AskValue(std::u16string_view, int, std::u16string_view) override {
      throw runtime::RuntimeError(runtime::ErrorNumber::OutOfMemory);
    }
  } broken;
  job.cellPrompts.answers[1] = u"antes";
  ValueLookup failing(job, broken, clock, spanish);
  EXPECT_EQ(ErrorOf([&] { (void)failing.ObtenerValor(u"#?Dato", 1, kind); }), 7);
  EXPECT_EQ(Value(u"#?Dato", kNoCopyNumbering), u"antes");
}

}  // namespace
}  // namespace qm::data
