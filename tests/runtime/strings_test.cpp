#include "runtime/strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/error_of.h"

using namespace qm::runtime;
using qm::tests::ErrorOf;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Trimming, TakesOnlyBlanksFromBothEnds) {
  EXPECT_EQ(Trim(u"  a b  "), u"a b");
  EXPECT_EQ(Trim(u"   "), u"");
  EXPECT_EQ(Trim(u""), u"");
  EXPECT_EQ(Trim(u" \ta\u00A0 "), u"\ta\u00A0");  // tab and no-break space are no blanks here
  EXPECT_EQ(Trim(u"a\r\n"), u"a\r\n");
}

TEST(Cutting, MoreThanThereIsGivesTheWholeText) {
  EXPECT_EQ(Left(u"abc", 2), u"ab");
  EXPECT_EQ(Left(u"abc", 9), u"abc");
  EXPECT_EQ(Left(u"abc", 0), u"");
  EXPECT_EQ(Right(u"abc", 2), u"bc");
  EXPECT_EQ(Right(u"abc", 9), u"abc");
  EXPECT_EQ(Right(u"abc", 0), u"");
  EXPECT_EQ(Mid(u"abc", 2), u"bc");
  EXPECT_EQ(Mid(u"abc", 2, 1), u"b");
  EXPECT_EQ(Mid(u"abc", 2, 9), u"bc");
  EXPECT_EQ(Mid(u"abc", 4), u"");
  EXPECT_EQ(Mid(u"abc", 99, 1), u"");
}

TEST(Cutting, NegativeCountsAndAStartOfZeroAreErrorFive) {
  EXPECT_EQ(ErrorOf([] { return Left(u"abc", -1); }), 5);
  EXPECT_EQ(ErrorOf([] { return Right(u"abc", -1); }), 5);
  EXPECT_EQ(ErrorOf([] { return Mid(u"abc", 0); }), 5);
  EXPECT_EQ(ErrorOf([] { return Mid(u"abc", 0, 1); }), 5);
  EXPECT_EQ(ErrorOf([] { return Mid(u"abc", 1, -1); }), 5);
}

TEST(Searching, PositionsCountFromOneAndZeroIsNotFound) {
  EXPECT_EQ(InStr(u"abcabc", u"c"), 3);
  EXPECT_EQ(InStr(u"abcabc", u"c", 4), 6);
  EXPECT_EQ(InStr(u"abcabc", u"x"), 0);
  EXPECT_EQ(InStr(u"abcabc", u"abcabcd"), 0);
  EXPECT_EQ(InStrRev(u"abcabc", u"b"), 5);
  EXPECT_EQ(InStrRev(u"abcabc", u"x"), 0);
}

TEST(Searching, AnEmptyPartIsFoundAtTheStartButNotInAnEmptyText) {
  EXPECT_EQ(InStr(u"abc", u""), 1);
  EXPECT_EQ(InStr(u"abc", u"", 3), 3);
  EXPECT_EQ(InStr(u"abc", u"", 4), 0);
  EXPECT_EQ(InStr(u"", u""), 0);
  EXPECT_EQ(InStr(u"", u"a"), 0);
  EXPECT_EQ(InStrRev(u"", u""), 0);
  EXPECT_EQ(InStrRev(u"abc", u""), 3);
}

TEST(Searching, AStartOfZeroIsErrorFiveEvenInAnEmptyText) {
  EXPECT_EQ(ErrorOf([] { return InStr(u"abc", u"a", 0); }), 5);
  EXPECT_EQ(ErrorOf([] { return InStr(u"", u"", 0); }), 5);
}

TEST(Searching, TextComparisonIsBlindToCaseButNotToAccents) {
  EXPECT_EQ(InStr(u"El AÑO", u"año", 1, Compare::Text), 4);
  EXPECT_EQ(InStr(u"El AÑO", u"año"), 0);
  EXPECT_EQ(InStr(u"ANO", u"año", 1, Compare::Text), 0);
  EXPECT_EQ(InStr(u"abcABC", u"b", 3, Compare::Text), 5);
  EXPECT_EQ(InStr(u"abc", u"", 2, Compare::Text), 2);
}

TEST(Replacing, GoesFromLeftToRightAndNeverRescans) {
  EXPECT_EQ(Replace(u"aaa", u"aa", u"b"), u"ba");
  EXPECT_EQ(Replace(u"aa", u"a", u"aa"), u"aaaa");
  EXPECT_EQ(Replace(u"a,b,", u",", u""), u"ab");
  EXPECT_EQ(Replace(u"abc", u"", u"x"), u"abc");
  EXPECT_EQ(Replace(u"", u"a", u"x"), u"");
  EXPECT_EQ(Replace(u"aAbÁ", u"a", u"x"), u"xAbÁ");
  EXPECT_EQ(Replace(u"aAbÁ", u"a", u"x", Compare::Text), u"xxbÁ");
}

TEST(Splitting, KeepsEmptyPiecesButAnEmptyTextHasNone) {
  EXPECT_THAT(Split(u"", u","), IsEmpty());
  EXPECT_THAT(Split(u"a,,b,", u","), ElementsAre(u"a", u"", u"b", u""));
  EXPECT_THAT(Split(u",", u","), ElementsAre(u"", u""));
  EXPECT_THAT(Split(u"abc", u","), ElementsAre(u"abc"));
  EXPECT_THAT(Split(u"a\r\nb", u"\r\n"), ElementsAre(u"a", u"b"));
  EXPECT_THAT(Split(u"abc", u""), ElementsAre(u"abc"));
}

TEST(Capitals, SpanishAndWesternLettersHaveThem) {
  EXPECT_EQ(UCase(u"abcxyz"), u"ABCXYZ");
  EXPECT_EQ(UCase(u"áéíóúüñç"), u"ÁÉÍÓÚÜÑÇ");
  EXPECT_EQ(UCase(u"àöøþ"), u"ÀÖØÞ");
  EXPECT_EQ(UCase(u"šœžÿ"), u"ŠŒŽŸ");
  EXPECT_EQ(UCase(u"ßµªº÷×"), u"ßµªº÷×");  // no single capital, or no letter
  EXPECT_EQ(UCase(u"@[`{·"), u"@[`{·");
}

TEST(Capitals, OtherEuropeanLettersHaveThemToo) {
  EXPECT_EQ(UCase(u"āĉőķłňŵźž"), u"ĀĈŐĶŁŇŴŹŽ");
  EXPECT_EQ(UCase(u"ĸŉſ"), u"ĸŉſ");
  EXPECT_EQ(UCase(u"αάέήίόύώσς"), u"ΑΆΈΉΊΌΎΏΣς");
  EXPECT_EQ(UCase(u"абвгдёяџ"), u"АБВГДЁЯЏ");
  EXPECT_EQ(UCase(u"ẽỹ"), u"ẼỸ");
}

TEST(Capitals, FoldedEqualityIsEqualityOfCapitals) {
  EXPECT_TRUE(EqualFolded(u"Verdadero", u"VERDADERO"));
  EXPECT_TRUE(EqualFolded(u"AÑO", u"año"));
  EXPECT_TRUE(EqualFolded(u"", u""));
  EXPECT_FALSE(EqualFolded(u"ano", u"año"));
  EXPECT_FALSE(EqualFolded(u"a", u"aa"));
}
