#include "runtime/code_page.h"

#include <gtest/gtest.h>

#include "tests/error_of.h"

using namespace qm::runtime;
using qm::tests::ErrorOf;

TEST(CodePage, AllTwoHundredAndFiftySixBytesSurviveTheWayToTextAndBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  const std::u16string text = FromBytes(bytes);
  EXPECT_EQ(text.size(), 256U);
  EXPECT_EQ(ToBytes(text), bytes);
}

TEST(CodePage, TheFiveUnassignedBytesAreTheControlsOfTheSameNumber) {
  EXPECT_EQ(FromBytes("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
  EXPECT_EQ(FromBytes("\x80\x9C\xF1\xB7"), u"€œñ·");
}

TEST(CodePage, ALetterItLacksBecomesItsBestFit) {
  struct Row {
    std::u16string_view text;
    std::string_view bytes;
  };
  constexpr Row kRows[] = {
      {u"Āāőŷźż", "Aaoyzz"},  // without their marks
      {u"ΩΣα", "OSa"},        // Greek by looks
      {u"−±×∞",
       "-\xB1\xD7"
       "8"},                    // signs
      {u"Ａ１（", "A1("},       // full width
      {u"\u2003\u2010", " -"},  // typographic blank and hyphen
      {u"☺жש漢ĸ", "?????"},     // nothing near
      {u"\U0001F600", "??"},    // one "?" for each half of a pair
      {u"\u0080", "?"},         // U+0080 itself is no letter of the code page: 0x80 is the euro
  };
  for (const Row& row : kRows) EXPECT_EQ(ToBytes(row.text), row.bytes) << ToUtf8(row.text);
}

TEST(CodePage, RepresentableIsWhatComesBackUnchanged) {
  for (unsigned letter = 0; letter <= 0xFFFF; ++letter) {
    const auto unit = static_cast<char16_t>(letter);
    ASSERT_EQ(IsRepresentable(unit), FromByte(ToByte(unit)) == unit) << letter;
  }
}

TEST(CodePage, AscIsTheByteOfTheFirstCharacter) {
  EXPECT_EQ(Asc(u"Ñandú"), 209);
  EXPECT_EQ(Asc(u"ñ"), 241);
  EXPECT_EQ(Asc(u"€"), 128);
  EXPECT_EQ(Asc(u"·"), 183);
  EXPECT_EQ(Asc(u"漢"), 63);
  EXPECT_EQ(Asc(u"Ω"), 79);
  EXPECT_EQ(ErrorOf([] { return Asc(u""); }), 5);
}

TEST(CodePage, ChrTakesZeroToTwoHundredAndFiftyFive) {
  EXPECT_EQ(Chr(0), u'\0');
  EXPECT_EQ(Chr(128), u'€');
  EXPECT_EQ(Chr(255), u'ÿ');
  EXPECT_EQ(ErrorOf([] { return Chr(256); }), 5);
  EXPECT_EQ(ErrorOf([] { return Chr(-1); }), 5);
}

TEST(Utf8, EveryPlaneGoesThereAndBack) {
  const std::u16string text = u"a ñ € 漢 \U0001F600 \U0010FFFF \uFFFF";
  EXPECT_EQ(ToUtf8(text),
            "a \xC3\xB1 \xE2\x82\xAC \xE6\xBC\xA2 \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF \xEF\xBF\xBF");
  EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
}

TEST(Utf8, UnpairedSurrogatesBecomeTheReplacementCharacter) {
  EXPECT_EQ(ToUtf8(std::u16string{u'a', 0xD800}), "a\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(std::u16string{0xDC00, u'a'}),
            "\xEF\xBF\xBD"
            "a");
  EXPECT_EQ(ToUtf8(std::u16string{0xD800, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

TEST(Utf8, MalformedBytesBecomeTheReplacementCharacter) {
  struct Row {
    const char* what;
    std::string_view bytes;
    std::u16string_view text;
  };
  constexpr Row kRows[] = {
      {"a lone continuation", "a\x80z", u"a\uFFFDz"},
      {"cut short at the end", "a\xE2\x82", u"a\uFFFD"},
      {"cut short by a letter, which stays", "\xE2\x82z", u"\uFFFDz"},
      {"overlong", "\xC0\xAF", u"\uFFFD\uFFFD"},
      {"overlong in three bytes", "\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},
      {"a surrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
      {"beyond the last plane", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"bytes of the 8-bit code page",
       "Espa\xF1"
       "a",
       u"Espa\uFFFDa"},
  };
  for (const Row& row : kRows) EXPECT_EQ(FromUtf8(row.bytes), row.text) << row.what;
}
