#include "platform/win32/user_settings.h"

#include <gtest/gtest.h>

#include "platform/win32/wide.h"

namespace qm::platform::win32 {
namespace {

// The tests' Wine prefix has Spanish settings; elsewhere there is nothing to compare with.
TEST(UserSettings, OfASpanishUserHaveSpanishSeparatorsAndWords) {
  if (PRIMARYLANGID(GetUserDefaultLangID()) != LANG_SPANISH) GTEST_SKIP() << "the user is not Spanish";
  const runtime::Locale locale = UserLocale();
  EXPECT_EQ(locale.decimal, u',');
  EXPECT_EQ(locale.grouping, u'.');
  EXPECT_EQ(locale.trueWord, u"Verdadero");
  EXPECT_EQ(locale.falseWord, u"Falso");
  EXPECT_EQ(locale.currency, u"€");
}

TEST(UserSettings, TheClockShowsTheLocalTime) {
  SYSTEMTIME before;
  GetLocalTime(&before);
  const runtime::DateTime now = Win32Clock().Now();
  SYSTEMTIME after;
  GetLocalTime(&after);
  const auto minutes = [](int hour, int minute) { return hour * 60 + minute; };
  if (before.wDay != after.wDay) GTEST_SKIP() << "midnight came between";
  EXPECT_EQ(now.year, before.wYear);
  EXPECT_EQ(now.month, before.wMonth);
  EXPECT_EQ(now.day, before.wDay);
  EXPECT_GE(minutes(now.hour, now.minute), minutes(before.wHour, before.wMinute));
  EXPECT_LE(minutes(now.hour, now.minute), minutes(after.wHour, after.wMinute));
}

}  // namespace
}  // namespace qm::platform::win32
