#include "data/dates.h"

#include <gtest/gtest.h>

#include "runtime/code_page.h"
#include "runtime/error.h"

namespace qm::data {
namespace {

using namespace std::string_view_literals;

constexpr int kYear = 2026;

struct DateRow {
  const char* why;
  std::u16string_view date;
  std::u16string_view normalized;
};

TEST(NormalizingDates, GoesByLengthAndPositionOnly) {
  const DateRow rows[] = {
      {"empty", u"", u""},
      {"packed", u"151231", u"31/12/15"},
      {"packed with a letter decade", u"B51231", u"31/12/15"},
      {"A stands for 0", u"A51231", u"31/12/05"},
      {"J stands for 9", u"J51231", u"31/12/95"},
      {"a small letter goes on counting", u"a51231", u"31/12/P5"},
      {"blank fixed-width date", u"\0\0\0\0\0\0"sv, u"00/00/00"},
      {"blank by its first character alone", u"\0\u0031231x"sv, u"00/00/00"},
      {"the character before A", u"@51231", u"31/12/@5"},
      {"seven characters lose their separators", u"1234567", u"673401"},
      {"8 characters below 60: decade as a letter", u"31/12/15", u"B51231"},
      {"8 characters from 60: decade as a digit", u"31/12/75", u"751231"},
      {"59 is the last with a letter", u"31/12/59", u"F91231"},
      {"60 is the first with a digit", u"31/12/60", u"601231"},
      {"blanks are below 60", u"31/12/  ", u"1 1231"},
      {"letters are above 60", u"31/12/A0", u"A01231"},
      {"a colon is above 60", u"31/12/:0", u":01231"},
      {"6 and a slash are below 60", u"31/12/6/", u"G/1231"},
      {"9 characters: month first, century of today, the last is ignored", u"12/31/15x", u"31/12/2015"},
      {"10 characters: month first", u"12/31/2015", u"31/12/15"},
      {"10 characters with the day first go by position as well", u"31/12/2015", u"12/31/15"},
      {"5 characters", u"51231", u"ERROR"},
      {"1 character", u"5", u"ERROR"},
      {"11 characters", u"31/12/20155", u"ERROR"},
  };
  for (const DateRow& row : rows) {
    EXPECT_EQ(runtime::ToUtf8(NormalizeDate(row.date, kYear)), runtime::ToUtf8(row.normalized)) << row.why;
  }
}

TEST(NormalizingDates, PutsSevenCharactersInTheOrderSixSevenThreeFourZeroOne) {
  EXPECT_EQ(NormalizeDate(u"abcdefg", kYear), u"fgcd0a");
}

TEST(NormalizingDates, TakesTheCenturyOfTheCurrentYear) {
  EXPECT_EQ(NormalizeDate(u"12/31/99 ", 1999), u"31/12/1999");
  EXPECT_EQ(NormalizeDate(u"12/31/15 ", 2126), u"31/12/2115");
}

TEST(NormalizingDates, TwiceTurnsAPackedDateIntoItsLetterForm) {
  EXPECT_EQ(NormalizeDate(NormalizeDate(u"151231", kYear), kYear), u"B51231");
  EXPECT_EQ(NormalizeDate(NormalizeDate(u"751231", kYear), kYear), u"751231");
}

TEST(NormalizingDates, GoesBetweenPackedAndWrittenFormForEveryYear) {
  for (int year = 0; year < 100; ++year) {
    const std::u16string written = {u'3',
                                    u'1',
                                    u'/',
                                    u'1',
                                    u'2',
                                    u'/',
                                    static_cast<char16_t>(u'0' + year / 10),
                                    static_cast<char16_t>(u'0' + year % 10)};
    EXPECT_EQ(NormalizeDate(NormalizeDate(written, kYear), kYear), written);
  }
}

TEST(NormalizingDates, CountsCharactersOutsideTheCodePageByTheirByte) {
  EXPECT_EQ(NormalizeDate(u"\u65E5"
                          u"51231",
                          kYear),
            u"31/12/\u65E5"
            u"5");  // "?" lies below A
}

}  // namespace
}  // namespace qm::data
