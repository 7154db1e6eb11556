#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "print/text/text_helpers.h"
#include "tests/fakes/recording_surface.h"

namespace qm::text {
namespace {

using fakes::RecordingSurface;  // every character is 100 twips wide, every line 240 high
using testing::ElementsAre;

std::vector<std::u16string> Texts(const std::vector<Line>& lines) {
  std::vector<std::u16string> texts;
  texts.reserve(lines.size());
  for (const Line& line : lines) texts.push_back(line.text);
  return texts;
}

// Every "W" is twice as wide as the others, and widths are no whole twips.
class ProportionalSurface : public RecordingSurface {
 public:
  [[nodiscard]] platform::TextExtent Measure(std::u16string_view text) override {
    platform::TextExtent extent = RecordingSurface::Measure(text);
    double end = 0;
    for (std::size_t i = 0; i < text.size(); ++i) extent.ends[i] = end += text[i] == u'W' ? 4.8 : 2.4;
    return extent;
  }
};

int Draw(std::mt19937& random, unsigned below) { return static_cast<int>(random() % below); }

TEST(FittingOneLine, KeepsATextThatFits) {
  RecordingSurface surface;
  const Line line = FitLine(surface, u"Total", 500, 0, false);
  EXPECT_EQ(line.text, u"Total");
  EXPECT_EQ(line.width, 500);
  EXPECT_EQ(line.height, 240);
}

TEST(FittingOneLine, DropsLastCharactersUntilTheTextFits) {
  RecordingSurface surface;
  const Line line = FitLine(surface, u"Descripción", 450, 0, false);
  EXPECT_EQ(line.text, u"Desc");
  EXPECT_EQ(line.width, 400);
}

TEST(FittingOneLine, LeavesNothingOfATextInABoxNarrowerThanItsFirstLetter) {
  RecordingSurface surface;
  EXPECT_EQ(FitLine(surface, u"Total", 99, 0, false).text, u"");
  EXPECT_EQ(FitLine(surface, u"Total", 0, 0, false).text, u"");
  EXPECT_EQ(FitLine(surface, u"Total", -5, 0, false).text, u"");
}

TEST(FittingOneLine, NeverRunsPastTheRightEdgeOfThePage) {
  RecordingSurface surface;
  surface.SetScaleWidth(1000);
  EXPECT_EQ(FitLine(surface, u"0123456789", 5000, 700, false).text, u"012");
  EXPECT_EQ(FitLine(surface, u"0123456789", 5000, 0, false).text, u"0123456789");
  EXPECT_EQ(FitLine(surface, u"0123456789", 5000, 1000, false).text, u"");
  EXPECT_EQ(FitLine(surface, u"0123456789", 5000, 2000, false).text, u"");
}

TEST(FittingOneLine, CutsForTheBoxFirstAndThenForThePage) {
  RecordingSurface surface;
  surface.SetScaleWidth(1000);
  EXPECT_EQ(FitLine(surface, u"0123456789", 400, 800, false).text, u"01");
  EXPECT_EQ(FitLine(surface, u"0123456789", 200, 500, false).text, u"01");
}

TEST(FittingOneLine, ReachesOutOfThePageOnTheLeftWithoutBeingCut) {
  RecordingSurface surface;
  surface.SetScaleWidth(1000);
  EXPECT_EQ(FitLine(surface, u"0123456789AB", 2000, -200, false).text, u"0123456789AB");
}

TEST(PaddingOneLine, FillsAShortTextWithXUpToTheBoxWidth) {
  RecordingSurface surface;
  const Line line = FitLine(surface, u"AB", 500, 0, true);
  EXPECT_EQ(line.text, u"ABXXX");
  EXPECT_EQ(line.width, 500);
}

TEST(PaddingOneLine, MayOvershootTheBoxByPartOfAnX) {
  RecordingSurface surface;
  const Line line = FitLine(surface, u"AB", 450, 0, true);
  EXPECT_EQ(line.text, u"ABXXX");
  EXPECT_EQ(line.width, 500);
}

TEST(PaddingOneLine, AddsNothingToATextThatFillsTheBox) {
  RecordingSurface surface;
  EXPECT_EQ(FitLine(surface, u"ABCDE", 500, 0, true).text, u"ABCDE");
}

TEST(PaddingOneLine, IsNotAppliedToATextThatWasCut) {
  RecordingSurface surface;
  EXPECT_EQ(FitLine(surface, u"ABCDEFG", 450, 0, true).text, u"ABCD");
}

TEST(PaddingOneLine, IsCutAtThePageEdgeLikeAnyText) {
  RecordingSurface surface;
  surface.SetScaleWidth(1000);
  EXPECT_EQ(FitLine(surface, u"AB", 2000, 650, true).text, u"ABX");
  EXPECT_EQ(FitLine(surface, u"ABCDE", 2000, 650, true).text, u"ABC");
}

TEST(PaddingOneLine, FillsAnEmptyText) {
  RecordingSurface surface;
  EXPECT_EQ(FitLine(surface, u"", 250, 0, true).text, u"XXX");
}

TEST(PaddingOneLine, EndsWithAFontWhoseXHasNoWidth) {
  class : public RecordingSurface {
   public:
    [[nodiscard]] platform::TextExtent Measure(std::u16string_view text) override {
      return {.ends = std::vector<double>(text.size(), 0.0), .height = 240};
    }
  } surface;
  EXPECT_EQ(FitLine(surface, u"AB", 500, 0, true).text, u"AB");
}

TEST(PaddingOneLine, StopsAtTheFirstXThatReachesTheWidthInSpiteOfRounding) {
  ProportionalSurface surface;
  EXPECT_EQ(FitLine(surface, u"", 2.4 * 70, 0, true).text, std::u16string(70, u'X'));
}

TEST(FittingOneLine, DoesNotSplitASurrogatePair) {
  RecordingSurface surface;
  EXPECT_EQ(FitLine(surface, u"AB\U0001F600C", 350, 0, false).text, u"AB");
  EXPECT_EQ(FitLine(surface, u"AB\U0001F600C", 400, 0, false).text, u"AB\U0001F600");
}

TEST(FittingOneLine, MeasuresOnceAndForPaddingOnceMore) {
  RecordingSurface cut;
  (void)FitLine(cut, std::u16string(5000, u'a'), 1000, 11000, false);
  EXPECT_EQ(cut.Measurements(), 1);
  RecordingSurface padded;
  (void)FitLine(padded, u"a", 9000, 5000, true);
  EXPECT_EQ(padded.Measurements(), 2);
}

TEST(FittingOneLine, ReturnsTheLongestBeginningThatFitsBoxAndPage) {
  std::mt19937 random(7);
  for (int round = 0; round < 2000; ++round) {
    ProportionalSurface surface;
    surface.SetScaleWidth(60);
    std::u16string text;
    for (int length = Draw(random, 40); length > 0; --length) text += Draw(random, 3) ? u'i' : u'W';
    const double width = Draw(random, 100);
    const double left = Draw(random, 80);
    const Line line = FitLine(surface, text, width, left, false);
    ASSERT_EQ(line.text, text.substr(0, line.text.size()));
    ASSERT_DOUBLE_EQ(line.width, surface.Measure(line.text).Width());
    if (!line.text.empty()) {
      ASSERT_LE(line.width, width + 1e-5);
      ASSERT_LE(left + line.width, 60 + 1e-5);
    }
    if (line.text.size() < text.size()) {
      const double longer = surface.Measure(text.substr(0, line.text.size() + 1)).Width();
      ASSERT_TRUE(longer > width || left + longer > 60);
    }
  }
}

TEST(SplittingIntoLines, GivesNoLinesForAnEmptyText) {
  RecordingSurface surface;
  EXPECT_TRUE(SplitLines(surface, u"", 1000).empty());
}

TEST(SplittingIntoLines, KeepsATextThatFitsAsOneLineWithItsBlanks) {
  RecordingSurface surface;
  const auto lines = SplitLines(surface, u" dos  tres ", 1100);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].text, u" dos  tres ");
  EXPECT_EQ(lines[0].width, 1100);
  EXPECT_EQ(lines[0].height, 240);
}

TEST(SplittingIntoLines, BreaksAtTheLastBlankThatFits) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"uno dos tres", 900)), ElementsAre(u"uno dos", u"tres"));
}

TEST(SplittingIntoLines, GivesEachLineItsWidthAndHeight) {
  RecordingSurface surface;
  const auto lines = SplitLines(surface, u"uno dos tres", 900);
  EXPECT_EQ(lines[0].width, 700);
  EXPECT_EQ(lines[1].width, 400);
  EXPECT_EQ(lines[1].height, 240);
}

TEST(SplittingIntoLines, TakesARemainderThatFitsWhole) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"uno dos tres cuatro", 1100)),
              ElementsAre(u"uno dos", u"tres cuatro"));
}

// The blank must stand inside the part that fits; one right behind it does not count.
TEST(SplittingIntoLines, BreaksBeforeAWordThatEndsExactlyAtTheWidth) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"uno dos tres", 700)), ElementsAre(u"uno", u"dos", u"tres"));
}

TEST(SplittingIntoLines, LeavesOutOnlyTheBlankItBreaksAt) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"uno  dos", 600)), ElementsAre(u"uno ", u"dos"));
}

TEST(SplittingIntoLines, DropsBlanksAtBothEndsOfATextThatDoesNotFit) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"   uno dos   ", 500)), ElementsAre(u"uno", u"dos"));
}

TEST(SplittingIntoLines, GivesNoLinesForBlanksThatDoNotFit) {
  RecordingSurface surface;
  EXPECT_TRUE(SplitLines(surface, u"      ", 500).empty());
}

TEST(SplittingIntoLines, CutsAWordWiderThanTheBoxAtTheLastCharacterThatFits) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"electrodoméstico", 650)),
              ElementsAre(u"electr", u"odomés", u"tico"));
}

TEST(SplittingIntoLines, TakesAtLeastOneCharacterALine) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"ab c", 50)), ElementsAre(u"a", u"b", u"c"));
  EXPECT_THAT(Texts(SplitLines(surface, u"ab c", -50)), ElementsAre(u"a", u"b", u"c"));
}

TEST(SplittingIntoLines, DoesNotSplitASurrogatePair) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"AB\U0001F600C", 300)), ElementsAre(u"AB", u"\U0001F600C"));
  EXPECT_THAT(Texts(SplitLines(surface, u"\U0001F600\U0001F601", 100)),
              ElementsAre(u"\U0001F600", u"\U0001F601"));
}

TEST(SplittingIntoLines, BreaksOnlyAtBlanksAndNotAtTabsOrHardSpaces) {
  RecordingSurface surface;
  EXPECT_THAT(Texts(SplitLines(surface, u"uno\tdos\u00A0tres", 500)),
              ElementsAre(u"uno\td", u"os\u00A0tr", u"es"));
}

TEST(SplittingIntoLines, LosesNoLetterAndExceedsNoWidth) {
  std::mt19937 random(11);
  for (int round = 0; round < 2000; ++round) {
    ProportionalSurface surface;
    std::u16string text;
    for (int length = Draw(random, 120); length > 0; --length) text += u"iW x"[Draw(random, 4)];
    const double width = 4.8 + Draw(random, 60);
    std::u16string printed;
    for (const Line& line : SplitLines(surface, text, width)) {
      ASSERT_FALSE(line.text.empty());
      ASSERT_LE(line.width, width + 1e-5);
      ASSERT_NEAR(line.width, surface.Measure(line.text).Width(), 1e-9);
      printed += line.text;
    }
    std::erase(printed, u' ');
    std::erase(text, u' ');
    ASSERT_EQ(printed, text);
  }
}

class SplittingLongTexts : public testing::TestWithParam<std::u16string> {};

TEST_P(SplittingLongTexts, MeasuresOnceAndStaysLinear) {
  std::u16string text;
  while (text.size() < 100000) text += GetParam();
  for (const double width : {100.0, 5000.0, 9'990'000.0}) {
    RecordingSurface surface;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(SplitLines(surface, text, width).empty());
    EXPECT_EQ(surface.Measurements(), 1);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));  // far more if quadratic
  }
}

INSTANTIATE_TEST_SUITE_P(Texts, SplittingLongTexts,
                         testing::Values(u"palabra ", u"x", u" x", u"x                    ",
                                         std::u16string(u"a ") + std::u16string(3000, u'b')));

}  // namespace
}  // namespace qm::text
