#include <gtest/gtest.h>

#include <map>

#include "print/text/text_helpers.h"
#include "runtime/code_page.h"

namespace qm::text {
namespace {

TEST(DigitsInFontNames, AreFoundAnywhere) {
  EXPECT_TRUE(HasDigit(u"Draft 10cpi"));
  EXPECT_TRUE(HasDigit(u"0"));
  EXPECT_TRUE(HasDigit(u"OCR9"));
}

TEST(DigitsInFontNames, AreNotSeenInOtherCharacters) {
  EXPECT_FALSE(HasDigit(u""));
  EXPECT_FALSE(HasDigit(u"Courier New"));
  EXPECT_FALSE(HasDigit(u"/:"));     // the neighbours of 0 and 9
  EXPECT_FALSE(HasDigit(u"½ ª º"));  // letters of the code page that only look like numbers
}

TEST(OemLetters, GoToTheirPlacesOfTheDosCodePage) {
  EXPECT_EQ(runtime::ToBytes(ToOemLetters(u"Ñandú")),
            "\xA5"
            "and\xA3");
}

TEST(OemLetters, AreTheSeventeenOfTheTableAndNoOthers) {
  const std::map<int, int> table = {{170, 166}, {186, 167}, {199, 128}, {201, 144}, {205, 214}, {209, 165},
                                    {211, 224}, {218, 233}, {220, 154}, {225, 160}, {231, 135}, {233, 130},
                                    {237, 161}, {241, 164}, {243, 162}, {250, 163}, {252, 129}};
  for (int code = 0; code < 256; ++code) {
    const char16_t letter = runtime::Chr(code);
    const auto found = table.find(code);
    const char16_t expected = found == table.end() ? letter : runtime::Chr(found->second);
    EXPECT_EQ(ToOemLetters(std::u16string(1, letter)), std::u16string(1, expected)) << code;
  }
}

TEST(OemLetters, LeaveCapitalAAcuteAsItIs) { EXPECT_EQ(ToOemLetters(u"Á"), u"Á"); }

TEST(OemLetters, AreReplacedOnceOnly) {
  EXPECT_EQ(runtime::ToBytes(ToOemLetters(u"Í")), "\xD6");  // and not what a second pass would make of it
  EXPECT_EQ(runtime::ToBytes(ToOemLetters(u"Ú")), "\xE9");  // é of the Windows code page, itself in the table
}

}  // namespace
}  // namespace qm::text
