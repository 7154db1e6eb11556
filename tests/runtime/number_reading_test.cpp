#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "runtime/code_page.h"
#include "tests/error_of.h"

using namespace qm::runtime;
using qm::tests::ErrorOf;

namespace {

const Locale kSpanish = Locale::Spanish();
const Locale kEnglish = Locale::English();

constexpr double kMismatch = -13.125;  // stands for error 13 in the tables below

double DoubleOf(std::u16string_view text, const Locale& locale) {
  try {
    return CDbl(text, locale);
  } catch (const RuntimeError& error) {
    EXPECT_TRUE(error.Is(ErrorNumber::TypeMismatch)) << ToUtf8(text);
    return kMismatch;
  }
}

}  // namespace

TEST(LeadingNumber, IsReadWithADotInEveryLocale) {
  struct Row {
    const char* why;
    std::u16string_view text;
    double value;
  };
  constexpr Row kRows[] = {
      {"empty", u"", 0},
      {"blanks anywhere are dropped", u" 1 2", 12},
      {"and between sign and digits", u"- 5", -5},
      {"tab and line feed too", u"1\t2\n3", 123},
      {"carriage return is not", u"1\r2", 1},
      {"no-break space is not", u"1\u00A02", 1},
      {"no number", u"abc", 0},
      {"stops at a letter", u"24 and 57", 24},
      {"no whole part", u".5", 0.5},
      {"no fraction", u"5.", 5},
      {"a dot alone", u".", 0},
      {"a comma is never part of a number", u"1,5", 1},
      {"second dot stops", u"1.5.2", 1.5},
      {"thousands dot is a decimal sign", u"1.234,5", 1.234},
      {"sign", u"-5", -5},
      {"plus", u"+5", 5},
      {"two signs", u"--5", 0},
      {"trailing sign is not read", u"5-", 5},
      {"exponent", u"1e3", 1000},
      {"exponent with D", u"1D-3", 0.001},
      {"blank in an exponent", u"1 e 3", 1000},
      {"exponent without digits", u"1e", 1},
      {"exponent with a sign only", u"1e+", 1},
      {"fraction in the exponent", u"1e2.5", 100},
      {"too small", u"1e-400", 0},
      {"no text of a zero is too large", u"0e999999999999", 0},
      {"parenthesis", u"(5)", 0},
      {"currency", u"$5", 0},
      {"Boolean word", u"True", 0},
      {"percent", u"50%", 50},
      {"percent after a fraction", u"50.5%", 50.5},
      {"full-width digits are none", u"５", 0},
      {"hexadecimal", u"&H10", 16},
      {"octal", u"&O17", 15},
      {"small letters", u"&hff", 255},
      {"a 16-bit literal", u"&HFFFF", -1},
      {"the same, asked as 32 bits", u"&HFFFF&", 65535},
      {"above 16 bits", u"&H10000", 65536},
      {"a 32-bit literal", u"&HFFFFFFFF", -1},
      {"no digits", u"&H", 0},
      {"other letter", u"&X1", 0},
      {"stops at a digit of another radix", u"&O178", 15},
  };
  for (const Row& row : kRows) EXPECT_EQ(Val(row.text), row.value) << row.why;
}

TEST(LeadingNumber, ANumberTooLargeIsErrorSix) {
  EXPECT_EQ(ErrorOf([] { return Val(u"1e400"); }), 6);
  EXPECT_EQ(ErrorOf([] { return Val(u"1e99999999999999999999"); }), 6);
  EXPECT_EQ(ErrorOf([] { return Val(u"&H123456789"); }), 6);
  EXPECT_EQ(ErrorOf([] { return Val(std::u16string(400, u'9')); }), 6);
}

TEST(WholeTextNumber, FollowsTheLocalesSigns) {
  struct Row {
    const char* why;
    std::u16string_view text;
    double spanish, english;
  };
  constexpr Row kRows[] = {
      {"comma", u"1,5", 1.5, 15},
      {"dot", u"1.5", 15, 1.5},
      {"Spanish thousands", u"1.234,5", 1234.5, 1.2345},
      {"English thousands", u"1,234.5", 1.2345, 1234.5},
      {"two Spanish groups", u"1.234.567,89", 1234567.89, kMismatch},
      {"groups are not counted", u"12.34,5", 1234.5, 12.345},
      {"blanks around", u" 12 ", 12, 12},
      {"other white space around", u"\t\r\n\u00A012\u00A0", 12, 12},
      {"exponent after a comma", u"1,5e2", 150, 1500},
      {"dot with a fraction", u"8.25", 825, 8.25},
      {"comma alone in front", u",5", 0.5, kMismatch},
      {"dot alone in front", u".5", kMismatch, 0.5},
      {"comma behind", u"5,", 5, 5},
      {"dot behind", u"5.", 5, 5},
      {"two dots", u"1.5.2", 152, kMismatch},
      {"two commas", u"1,5,2", kMismatch, 152},
      {"two dots running", u"1..2", 12, kMismatch},
      {"two commas running", u"1,,2", kMismatch, 12},
      {"parentheses", u"(5)", -5, -5},
      {"parenthesis not closed", u"(5", kMismatch, kMismatch},
      {"parenthesis not opened", u"5)", kMismatch, kMismatch},
      {"minus behind", u"5-", -5, -5},
      {"minus on both sides", u"-5-", kMismatch, kMismatch},
      {"minus and a blank", u"- 5", -5, -5},
      {"euro", u"5 €", 5, kMismatch},
      {"dollar", u"$5", kMismatch, 5},
      {"two currency signs", u"€5€", kMismatch, kMismatch},
      {"hexadecimal with currency signs", u"$&H10 €", kMismatch, kMismatch},
      {"hexadecimal with the locale's", u"€&H10", kMismatch, kMismatch},
      {"hexadecimal", u"&H10", 16, 16},
      {"octal", u"&o17", 15, 15},
      {"hexadecimal without digits", u"&H", kMismatch, kMismatch},
      {"not an octal digit", u"&O18", kMismatch, kMismatch},
      {"exponent", u"1e3", 1000, 1000},
      {"exponent with D", u"1d3", 1000, 1000},
      {"exponent without digits", u"1e", kMismatch, kMismatch},
      {"exponent with a sign only", u"1e+", kMismatch, kMismatch},
      {"blank before the exponent", u"5 e3", kMismatch, kMismatch},
      {"leading zeros", u"007", 7, 7},
      {"too small", u"1e-400", 0, 0},
      {"empty", u"", kMismatch, kMismatch},
      {"blank", u" ", kMismatch, kMismatch},
      {"word", u"abc", kMismatch, kMismatch},
      {"number and word", u"12abc", kMismatch, kMismatch},
      {"blank inside", u"1 2", kMismatch, kMismatch},
      {"percent", u"5%", kMismatch, kMismatch},
      {"another language's hexadecimal", u"0x10", kMismatch, kMismatch},
      {"Boolean words", u"True", kMismatch, kMismatch},
      {"sign alone", u"-", kMismatch, kMismatch},
      {"separators alone", u".,", kMismatch, kMismatch},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(DoubleOf(row.text, kSpanish), row.spanish) << row.why << " (Spanish)";
    EXPECT_EQ(DoubleOf(row.text, kEnglish), row.english) << row.why << " (English)";
  }
}

TEST(WholeTextNumber, TooLargeIsErrorSixAndNotANumberIsErrorThirteen) {
  EXPECT_EQ(ErrorOf([] { return CDbl(u"1e400", kSpanish); }), 6);
  EXPECT_EQ(ErrorOf([] { return CDbl(u"-1e400", kSpanish); }), 6);
  EXPECT_EQ(ErrorOf([] { return CDbl(u"&H1FFFFFFFFFFFFFFFF", kSpanish); }), 6);  // beyond 64 bits
  EXPECT_EQ(CDbl(u"0e999", kSpanish), 0);
  EXPECT_EQ(CDbl(std::u16string(400, u'0') + u"5e-1", kSpanish), 0.5);
  EXPECT_EQ(CDbl(u"," + std::u16string(400, u'0') + u"5e401", kSpanish), 5);
  EXPECT_EQ(ErrorOf([] { return CDbl(u"abc", kSpanish); }), 13);
}

TEST(WholeTextNumber, TheTryingFormGivesNothingInsteadOfAnError) {
  EXPECT_EQ(TryCDbl(u"1,5", kSpanish), 1.5);
  EXPECT_EQ(TryCDbl(u"abc", kSpanish), std::nullopt);
  EXPECT_EQ(TryCDbl(u"1e400", kSpanish), std::nullopt);
}

TEST(WholeTextNumber, ACurrencySignMayHaveSeveralLetters) {
  Locale locale = kSpanish;
  locale.currency = u"Pts";
  EXPECT_EQ(DoubleOf(u"1.500 Pts", locale), 1500);
  EXPECT_EQ(DoubleOf(u"Pt 5", locale), kMismatch);
}

TEST(Integers, AreRoundedHalfToEvenAndTheRangeIsTestedAfterwards) {
  constexpr struct {
    double value;
    int rounded;
  } kRows[] = {{0.5, 0},       {1.5, 2},          {2.5, 2},         {3.5, 4},
               {-0.5, 0},      {-1.5, -2},        {-2.5, -2},       {1440.5, 1440},
               {1441.5, 1442}, {32767.49, 32767}, {-32768, -32768}, {-32768.5, -32768}};
  for (const auto& row : kRows) EXPECT_EQ(CInt(row.value), row.rounded) << row.value;
  for (const double value : {32767.5, 32768.0, -32768.51, 1e300, std::nan("")}) {
    EXPECT_EQ(ErrorOf([value] { return CInt(value); }), 6) << value;
  }
  EXPECT_EQ(CLng(2147483647.49), 2147483647);
  EXPECT_EQ(CLng(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ErrorOf([] { return CLng(2147483647.5); }), 6);
}

TEST(Integers, OfTextsFollowTheLocale) {
  EXPECT_EQ(CInt(u"2,5", kSpanish), 2);
  EXPECT_EQ(CInt(u"3,5", kSpanish), 4);
  EXPECT_EQ(CInt(u"2.5", kSpanish), 25);
  EXPECT_EQ(CInt(u"1440,5", kSpanish), 1440);
  EXPECT_EQ(CInt(u"2,5", kEnglish), 25);
  EXPECT_EQ(CInt(u"11905.5", kEnglish), 11906);
  EXPECT_EQ(CLng(u"11905.5", kSpanish), 119055);
  EXPECT_EQ(ErrorOf([] { return CInt(u"11905.5", kSpanish); }), 6);
  EXPECT_EQ(ErrorOf([] { return CInt(u"", kSpanish); }), 13);
}

TEST(Integers, ReadingOnlyTheLeadingNumberStopsAtTheComma) {
  EXPECT_EQ(CInt(Val(u"1441,5")), 1441);
  EXPECT_EQ(CInt(u"1441,5", kSpanish), 1442);
}

TEST(Integers, AHexadecimalTextOfTheirWidthIsTheirBitPattern) {
  EXPECT_EQ(CInt(u"&HFFFF", kSpanish), -1);
  EXPECT_EQ(CLng(u"&HFFFF", kSpanish), 65535);
  EXPECT_EQ(CLng(u"&HFFFFFFFF", kSpanish), -1);
  EXPECT_EQ(ErrorOf([] { return CInt(u"&H10000", kSpanish); }), 6);
}

TEST(Booleans, AreTheLocalesWordsTheEnglishOnesOrNumbers) {
  for (const auto* text :
       {u"Verdadero", u"VERDADERO", u"verdadero", u"True", u"#TRUE#", u"1", u"-1", u"0,4"}) {
    EXPECT_TRUE(CBool(text, kSpanish)) << ToUtf8(text);
  }
  for (const auto* text : {u"Falso", u"FALSO", u"False", u"#FALSE#", u"0", u"0,0", u"-0"}) {
    EXPECT_FALSE(CBool(text, kSpanish)) << ToUtf8(text);
  }
  for (const auto* text : {u"", u" True", u"True ", u"SI", u"Sí", u"On", u"abc", u"#True#"}) {
    EXPECT_EQ(ErrorOf([text] { return CBool(text, kSpanish); }), 13) << ToUtf8(text);
  }
  EXPECT_EQ(ErrorOf([] { return CBool(u"Verdadero", kEnglish); }), 13);
  EXPECT_EQ(ErrorOf([] { return CBool(u"Falso", kEnglish); }), 13);
  EXPECT_EQ(ErrorOf([] { return CBool(u"1e400", kEnglish); }), 6);
}

// Extended precision somewhere in a 32-bit program would show here.
TEST(WholeTextNumber, IsTheSameToTheLastBitOnEveryPlatform) {
  std::mt19937_64 engine(1);
  std::uint64_t sum = 0;
  for (int round = 0; round < 20'000; ++round) {
    std::u16string text;
    const auto digits = 1 + engine() % 19;
    const auto point = engine() % 19;
    for (std::uint64_t at = 0; at < digits; ++at) {
      text += static_cast<char16_t>(u'0' + engine() % 10);
      if (at == point) text += u'.';
    }
    text += u"e";
    for (const char letter : std::to_string(static_cast<int>(engine() % 60) - 30))
      text += static_cast<char16_t>(letter);
    const double value = CDbl(text, kEnglish);
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    sum = sum * 31 + bits;
  }
  EXPECT_EQ(sum, 17713407074278152755U);  // what a correctly rounding reader gives
}

TEST(Arithmetic, IsThatOfDoubles) {
  volatile double width = 29.7;  // not folded by the compiler
  EXPECT_EQ(std::floor(width * 10000), 297000);
  width = 20.99;
  EXPECT_EQ(std::floor(width * 10000), 209899);
}
