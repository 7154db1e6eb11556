#include <gtest/gtest.h>

#include "print/text/text_helpers.h"
#include "runtime/code_page.h"

namespace qm::text {
namespace {

using runtime::Locale;

struct NumberRow {
  const char* why;
  std::u16string_view text;
  double spanish;
  double english;
};

TEST(LenientNumbers, AreReadWhateverLocaleWroteThem) {
  const NumberRow rows[] = {
      {"empty", u"", 0, 0},
      {"blanks only", u"   ", 0, 0},
      {"no digits", u"abc", 0, 0},
      {"no digits but a point", u"abc.", 0, 0},
      {"a lone point", u".", 0, 0},
      {"comma for decimals; English takes it for thousands", u"8,25", 8.25, 825},
      {"point for decimals in every locale", u"8.25", 8.25, 8.25},
      {"plain", u"825", 825, 825},
      {"blanks around", u"  8.25  ", 8.25, 8.25},
      {"6 and 2 is 2: the locale decides", u"1.234,5", 1234.5, 1.2345},
      {"2 and 6 is 2: the locale decides", u"1,234.5", 1.2345, 1234.5},
      {"2 and 4 is 0: read up to the comma", u"1,5.0", 1, 1},
      {"positions count from the first character that is not blank", u"  1,5.0", 1, 1},
      {"7 and 3 is 3", u"12.345,6", 12345.6, 12.3456},
      {"3 and 7 is 3", u"12,345.6", 12.3456, 12345.6},
      {"8 and 4 is 0: read up to the comma", u"123.456,7", 123.456, 123.456},
      {"no comma: the point is decimal", u"1.234", 1.234, 1.234},
      {"no comma: read up to the second point", u"1.234.567", 1.234, 1.234},
      {"a page width as saved in Spain", u"11905,5", 11905.5, 119055},
      {"a page width as saved elsewhere", u"11905.5", 11905.5, 11905.5},
      {"a whole page width", u"11906", 11906, 11906},
      {"two commas are no number in Spain", u"1,5,2", 0, 152},
      {"letters behind a comma number", u"8,25 pt", 0, 0},
      {"letters behind a point number", u"8.25 pt", 8.25, 8.25},
      {"too large for a number", u"1e400", 0, 0},
      {"too large for a number, with a point", u"1.0e400", 0, 0},
      {"negative", u"-3,5", -3.5, -35},
  };
  for (const NumberRow& row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_DOUBLE_EQ(ParseNumber(row.text, Locale::Spanish()), row.spanish);
    EXPECT_DOUBLE_EQ(ParseNumber(row.text, Locale::English()), row.english);
  }
}

TEST(Centimetres, ReadALoneCommaAsDecimalSignInEveryLocale) {
  const NumberRow rows[] = {
      {"the stored sheet height", u"29,50", 29.5, 29.5},
      {"a label page height", u"10,15873", 10.15873, 10.15873},
      {"blanks around", u" 21,0 ", 21, 21},
      {"a point", u"49.9", 49.9, 49.9},
      {"a whole number", u"21", 21, 21},
      {"both signs: as any other number", u"1.234,5", 1234.5, 1.2345},
      {"two commas: as any other number", u"1,234,5", 0, 12345},
      {"no number", u"ancho", 0, 0},
      {"no number with a comma", u"ancho, alto", 0, 0},
      {"empty", u"", 0, 0},
  };
  for (const NumberRow& row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_DOUBLE_EQ(ParseCentimetres(row.text, Locale::Spanish()), row.spanish);
    EXPECT_DOUBLE_EQ(ParseCentimetres(row.text, Locale::English()), row.english);
  }
}

struct BooleanRow {
  std::u16string_view text;
  bool spanish;
  bool english;
};

TEST(LenientBooleans, TakeTheLocalesWordsNumbersAndTrueOrVerdaderoInAnyCase) {
  const BooleanRow rows[] = {
      {u"Verdadero", true, true}, {u"verdadero", true, true}, {u"VERDADERO", true, true},
      {u"True", true, true},      {u"TRUE", true, true},      {u"true", true, true},
      {u"-1", true, true},        {u"1", true, true},         {u"0,4", true, true},
      {u"Falso", false, false},   {u"False", false, false},   {u"0", false, false},
      {u"0,0", false, false},     {u"SI", false, false},      {u"Sí", false, false},
      {u"", false, false},        {u"abc", false, false},     {u" Verdadero ", false, false},
      {u" True", false, false},   {u"#TRUE#", true, true},    {u"VERDADERA", false, false},
  };
  for (const BooleanRow& row : rows) {
    SCOPED_TRACE(runtime::ToUtf8(row.text));
    EXPECT_EQ(ParseBoolean(row.text, Locale::Spanish()), row.spanish);
    EXPECT_EQ(ParseBoolean(row.text, Locale::English()), row.english);
  }
}

TEST(AmountFormat, LeavesZeroBlankAndGroupsTheRest) {
  constexpr std::u16string_view kMask = u"###,###,##0.00";
  EXPECT_EQ(FormatNonZero(0, kMask, Locale::Spanish()), u"");
  EXPECT_EQ(FormatNonZero(-0.0, kMask, Locale::Spanish()), u"");
  EXPECT_EQ(FormatNonZero(1234.5, kMask, Locale::Spanish()), u"1.234,50");
  EXPECT_EQ(FormatNonZero(1234.5, kMask, Locale::English()), u"1,234.50");
  EXPECT_EQ(FormatNonZero(-1234.5, kMask, Locale::Spanish()), u"-1.234,50");
}

TEST(AmountFormat, PrintsAnAmountThatOnlyRoundsToZero) {
  EXPECT_EQ(FormatNonZero(0.004, u"###,###,##0.00", Locale::Spanish()), u"0,00");
}

}  // namespace
}  // namespace qm::text
