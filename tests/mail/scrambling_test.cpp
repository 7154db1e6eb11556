#include "mail/scrambling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "runtime/code_page.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/scripted_prompts.h"
#include "tests/mail/reversed_password.h"

namespace qm::mail {
namespace {

using tests::ReversedPassword;

class PasswordScrambling : public testing::Test {
 protected:
  std::u16string Scramble(std::u16string_view password) {
    return EscribirClave(password, random_, clock_, prompts_);
  }

  runtime::Random random_;
  fakes::FixedClock clock_;
  fakes::ScriptedPrompts prompts_;
};

TEST_F(PasswordScrambling, OfNothingIsNothing) {
  EXPECT_EQ(Scramble(u""), u"");
  EXPECT_EQ(Scramble(u"   "), u"");
}

TEST_F(PasswordScrambling, OfLettersAndDigitsGivesTwiceAsManyLettersAndDigits) {
  const std::u16string scrambled = Scramble(u"Abc123Xyz");
  EXPECT_EQ(scrambled.size(), 18u);
  EXPECT_TRUE(std::ranges::all_of(scrambled, [](char16_t letter) {
    return (letter >= u'0' && letter <= u'9') || (letter >= u'A' && letter <= u'Z') ||
           (letter >= u'a' && letter <= u'z');
  }));
  EXPECT_EQ(ReversedPassword(scrambled), u"Abc123Xyz");
}

TEST_F(PasswordScrambling, LetsOtherCharactersTravelAsThemselvesBesideAMarker) {
  // Odd positions have the marker in the first half, even ones in the second.
  EXPECT_EQ(Scramble(u"ñ"), u"&ñ");
  EXPECT_EQ(Scramble(u"-.,"), u"&.&-&,");
  EXPECT_EQ(Scramble(u"- !"), u"& &-&!");
}

TEST_F(PasswordScrambling, IsReversedAsItsFormatSays) { EXPECT_EQ(ReversedPassword(u"B-Am&G"), u"a-1"); }

TEST_F(PasswordScrambling, DropsOuterBlanks) {
  EXPECT_EQ(ReversedPassword(Scramble(u"  clave 1 ")), u"clave 1");
}

TEST_F(PasswordScrambling, GivesAnotherTextEachTimeAlsoWhileTheClockStandsStill) {
  std::set<std::u16string> texts;
  for (int i = 0; i < 200; ++i) texts.insert(Scramble(u"secreto"));
  EXPECT_EQ(texts.size(), 200u);
}

TEST_F(PasswordScrambling, DrawsAnotherKeyForEachPosition) {
  std::set<char16_t> keys;
  const std::u16string scrambled = Scramble(std::u16string(40, u'a'));
  for (std::size_t p = 1; p <= 40; ++p) keys.insert(p % 2 ? scrambled[40 - p] : scrambled[39 + p]);
  EXPECT_GT(keys.size(), 10u);
}

TEST_F(PasswordScrambling, IsReversibleForEveryPrintableCharacterAtEveryPositionUpToSixty) {
  for (int code = 32; code < 256; ++code) {
    const char16_t letter = runtime::FromByte(static_cast<std::uint8_t>(code));
    for (std::size_t length = 1; length <= 60; ++length) {
      std::u16string password(length, u'k');
      password.back() = letter;
      if (length > 1 && letter == u' ') password += u'.';
      if (password == u" ") continue;  // trimmed away
      ASSERT_EQ(ReversedPassword(Scramble(password)), password) << code << " at " << length;
    }
  }
  EXPECT_TRUE(prompts_.warnings.empty());
}

TEST_F(PasswordScrambling, IsReversibleForLongRunsOfTheLastLetter) {
  for (std::size_t length = 1; length <= 60; ++length) {
    const std::u16string password(length, u'z');
    ASSERT_EQ(ReversedPassword(Scramble(password)), password);
  }
}

TEST_F(PasswordScrambling, EndsAlsoWhereNoKeyKeepsTheSumInItsBounds) {
  const std::u16string password(1000, u'z');
  EXPECT_EQ(ReversedPassword(Scramble(password)), password);
  EXPECT_TRUE(prompts_.warnings.empty());
}

TEST_F(PasswordScrambling, EndsForEverySecondOfTheDay) {
  const std::u16string password(60, u'z');
  for (int second = 0; second < 86400; second += 61) {
    fakes::FixedClock clock({2024, 2, 29, second / 3600, second / 60 % 60, second % 60});
    ASSERT_EQ(ReversedPassword(EscribirClave(password, random_, clock, prompts_)), password);
  }
}

TEST_F(PasswordScrambling, KeepsKeysWithinTheAlphabet) {
  std::set<char16_t> keys;
  for (int i = 0; i < 5000; ++i) keys.insert(Scramble(u"0")[0]);
  EXPECT_EQ(keys.size(), 62u);  // each of them is drawn
}

TEST(CharacterIndices, CountDigitsCapitalsAndSmallLetters) {
  EXPECT_EQ(IndiceCaracter(u"0"), 1);
  EXPECT_EQ(IndiceCaracter(u"9"), 10);
  EXPECT_EQ(IndiceCaracter(u"A"), 11);
  EXPECT_EQ(IndiceCaracter(u"Z"), 36);
  EXPECT_EQ(IndiceCaracter(u"a"), 37);
  EXPECT_EQ(IndiceCaracter(u"z"), 62);
  EXPECT_EQ(IndiceCaracter(u"&"), 1038);
  EXPECT_EQ(IndiceCaracter(u"ñ"), 1241);
  EXPECT_EQ(IndiceCaracter(u"€"), 1128);
  EXPECT_EQ(IndiceCaracter(u""), 0);
}

TEST(CharacterIndices, AreUndoneFromOneToSixtyTwo) {
  fakes::ScriptedPrompts prompts;
  for (int index = 1; index <= 62; ++index) {
    const char16_t letter = CaracterIndice(index, prompts);
    EXPECT_EQ(IndiceCaracter(std::u16string_view(&letter, 1)), index);
  }
  EXPECT_TRUE(prompts.warnings.empty());
}

TEST(CharacterIndices, OutsideAreToldToTheUser) {
  fakes::ScriptedPrompts prompts;
  EXPECT_EQ(CaracterIndice(0, prompts), u'\0');
  EXPECT_EQ(CaracterIndice(63, prompts), u'\0');
  EXPECT_EQ(prompts.warnings, (std::vector<std::u16string>{u"0  not valid", u"0  not valid"}));
}

}  // namespace
}  // namespace qm::mail
