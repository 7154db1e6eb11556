#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "runtime/code_page.h"
#include "runtime/format.h"

using namespace qm::runtime;

namespace {

const Locale kSpanish = Locale::Spanish();
const Locale kEnglish = Locale::English();

constexpr std::u16string_view kAmount = u"###,###,##0.00";
constexpr std::u16string_view kBare = u"###,###.00";

}  // namespace

TEST(PlainText, OfAFloatHasSevenSignificantDigits) {
  struct Row {
    float value;
    std::u16string_view text;
  };
  constexpr Row kRows[] = {
      {11905.5F, u"11905,5"},
      {283.5F, u"283,5"},
      {11906.002F, u"11906"},
      {654322.25F, u"654322,3"},  // a tie goes away from zero
      {21045.125F, u"21045,13"},  // also where the digit before is even
      {-21045.125F, u"-21045,13"},
      {1.0F / 3, u"0,3333333"},
      {9999999.0F, u"9999999"},
      {1E7F, u"1E+07"},
      {12345678.0F, u"1,234568E+07"},
      {9999999.5F, u"1E+07"},
      {0.0001F, u"0,0001"},
      {0.00001F, u"1E-05"},
      {0.0F, u"0"},
      {-0.0F, u"0"},
      {0.99999999F, u"1"},
  };
  for (const Row& row : kRows) EXPECT_EQ(ToText(row.value, kSpanish), row.text) << row.value;
}

TEST(PlainText, OfADoubleHasFifteenSignificantDigits) {
  struct Row {
    double value;
    std::u16string_view text;
  };
  constexpr Row kRows[] = {
      {1.0 / 3, u"0,333333333333333"},
      {2.0 / 3, u"0,666666666666667"},
      {0.1 + 0.2, u"0,3"},
      {11906.0 / 567, u"20,9982363315697"},
      {999999999999999, u"999999999999999"},
      {1E15, u"1E+15"},
      {999999999999999.9, u"1E+15"},  // rounded before the form is chosen
      {1234567890123456, u"1,23456789012346E+15"},
      {1234567890123.125, u"1234567890123,13"},  // a tie goes away from zero
      {-1.5, u"-1,5"},
      {0.0001, u"0,0001"},
      {0.00001, u"1E-05"},
      {1E300, u"1E+300"},
      {5E-324, u"4,94065645841247E-324"},
      {-0.0, u"0"},
  };
  for (const Row& row : kRows) EXPECT_EQ(ToText(row.value, kSpanish), row.text) << row.value;
  EXPECT_EQ(ToText(1234.5, kEnglish), u"1234.5");
}

TEST(PlainText, OfIntegersHasNoGroupingAndNoLeadingBlank) {
  EXPECT_EQ(ToText(0), u"0");
  EXPECT_EQ(ToText(1234567), u"1234567");
  EXPECT_EQ(ToText(std::numeric_limits<std::int32_t>::min()), u"-2147483648");
}

TEST(PlainText, OfBooleansIsTheLocalesWord) {
  EXPECT_EQ(ToText(true, kSpanish), u"Verdadero");
  EXPECT_EQ(ToText(false, kSpanish), u"Falso");
  EXPECT_EQ(ToText(true, kEnglish), u"True");
  EXPECT_EQ(ToText(false, kEnglish), u"False");
}

TEST(Masks, RoundHalfAwayFromZeroOnFifteenDecimalDigits) {
  struct Row {
    double value;
    std::u16string_view amount, bare;
  };
  constexpr Row kRows[] = {
      {0, u"0,00", u",00"},
      {-0.0, u"0,00", u",00"},
      {0.5, u"0,50", u",50"},
      {-0.5, u"-0,50", u"-,50"},
      {0.005, u"0,01", u",01"},
      {0.004, u"0,00", u",00"},
      {-0.004, u"-0,00", u"-,00"},  // the sign is put before rounding
      {0.015, u"0,02", u",02"},
      {0.025, u"0,03", u",03"},
      {0.285, u"0,29", u",29"},
      {0.0949999999, u"0,09", u",09"},  // not rounded twice
      {1.005, u"1,01", u"1,01"},        // below the tie in binary, on it in 15 digits
      {2.675, u"2,68", u"2,68"},
      {1.115, u"1,12", u"1,12"},
      {0.095, u"0,10", u",10"},
      {0.995, u"1,00", u"1,00"},
      {999.995, u"1.000,00", u"1.000,00"},
      {-1234.5, u"-1.234,50", u"-1.234,50"},
      {1234567.891, u"1.234.567,89", u"1.234.567,89"},
      {1234567890.12, u"1.234.567.890,12", u"1.234.567.890,12"},  // more digits than the mask has places
      {1E12, u"1.000.000.000.000,00", u"1.000.000.000.000,00"},
      {1E20, u"100.000.000.000.000.000.000,00", u"100.000.000.000.000.000.000,00"},
      {123456789012345.67, u"123.456.789.012.346,00", u"123.456.789.012.346,00"},
      {1234567890123456, u"1.234.567.890.123.460,00", u"1.234.567.890.123.460,00"},
      {1E-320, u"0,00", u",00"},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(Format(row.value, kAmount, kSpanish), row.amount) << row.value;
    EXPECT_EQ(Format(row.value, kBare, kSpanish), row.bare) << row.value;
  }
  EXPECT_EQ(Format(1234.5, kAmount, kEnglish), u"1,234.50");
  EXPECT_EQ(Format(0.5, kBare, kEnglish), u".50");
}

TEST(Masks, ZerosForceDigitsAndNumberSignsDoNot) {
  struct Row {
    std::u16string_view mask;
    double value;
    std::u16string_view text;
  };
  constexpr Row kRows[] = {
      {u"0", 0.5, u"1"},
      {u"0", 1234.4, u"1234"},
      {u"#", 0, u""},
      {u"000000", 123, u"000123"},
      {u"000,000", 12, u"000.012"},
      {u"#,##0", 1234567, u"1.234.567"},
      {u"#,##0", 5, u"5"},
      {u",##0", 1234567, u",1234567"},  // in front of the places it is text
      {u"0.0#", 1, u"1,0"},
      {u"0.0#", 1.25, u"1,25"},
      {u"0.##", 1, u"1,"},  // the decimal sign stays
      {u"#.##", 0.25, u",25"},
      {u"0.000", 0.0005, u"0,001"},
      {u"0.00 cm", 2.5, u"2,50 cm"},  // text around the places
      {u"", 1234.5, u"1234,5"},       // no mask: plain text
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(Format(row.value, row.mask, kSpanish), row.text) << ToUtf8(row.mask) << " " << row.value;
  }
}

TEST(Masks, ANumericTextIsConvertedFirstAndAnyOtherComesBack) {
  EXPECT_EQ(Format(u"1234,5", kAmount, kSpanish), u"1.234,50");
  EXPECT_EQ(Format(u"1234.5", kAmount, kSpanish), u"12.345,00");
  EXPECT_EQ(Format(u"abc", kAmount, kSpanish), u"abc");
  EXPECT_EQ(Format(u"", kAmount, kSpanish), u"");
  EXPECT_EQ(Format(u"1e400", kAmount, kSpanish), u"1e400");
}

TEST(Masks, OfDatesAreReadWithoutCase) {
  const DateTime moment{2015, 12, 31, 15, 7, 9};
  EXPECT_EQ(Format(moment, u"yyyy-MM-dd·HH mm"), u"2015-12-31·15 07");
  EXPECT_EQ(Format(moment, u"DD/MM/YY"), u"31/12/15");
  EXPECT_EQ(Format(moment, u"hh:mm:ss"), u"15:07:09");
  EXPECT_EQ(Format(moment, u"hh nn mm"), u"15 07 12");  // only straight after an hour is m a minute
  EXPECT_EQ(Format(DateTime{2005, 1, 5, 0, 0, 0}, u"d/m/yy h:m"), u"5/1/05 0:0");
  EXPECT_EQ(Format(DateTime{987, 1, 5, 0, 0, 0}, u"yyyymmdd"), u"09870105");
}
