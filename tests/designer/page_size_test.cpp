#include "designer/page_size.h"

#include <gtest/gtest.h>

#include "runtime/format.h"

namespace qm::designer {
namespace {

using runtime::Locale;

TEST(PageSizeBoxes, ShowTwipsAsCentimetresOfSevenDigitsInTheUsersLocale) {
  EXPECT_EQ(BoxText(11907, Locale::Spanish()), u"21");
  EXPECT_EQ(BoxText(11906, Locale::Spanish()), u"20,99824");
  EXPECT_EQ(BoxText(11906, Locale::English()), u"20.99824");
}

TEST(PageSizeBoxes, ReadALoneCommaAndAPointAsDecimalSignsEverywhere) {
  for (const Locale& locale : {Locale::Spanish(), Locale::English()}) {
    EXPECT_FLOAT_EQ(CentimetresOf(u"10,15873", locale), 10.15873F);
    EXPECT_FLOAT_EQ(CentimetresOf(u"49.9", locale), 49.9F);
  }
  EXPECT_EQ(CentimetresOf(u"ancho", Locale::Spanish()), 0);
  EXPECT_EQ(CentimetresOf(u"", Locale::Spanish()), 0);
}

TEST(PageSizeBoxes, GiveBackTheVeryTwipsThatTheyShow) {
  for (const Locale& locale : {Locale::Spanish(), Locale::English()})
    for (int twips = 1; twips < 28350; ++twips) {
      const auto side = static_cast<float>(twips);
      ASSERT_EQ(TwipsOf(CentimetresOf(BoxText(side, locale), locale)), side);
    }
}

TEST(PageSizeBoxes, KeepHalfTwipsInTheDigitsOfTheModelFile) {
  const Locale locale = Locale::Spanish();
  const float twips = TwipsOf(CentimetresOf(BoxText(11905.5, locale), locale));
  EXPECT_EQ(runtime::ToText(twips, locale), u"11905,5");
}

TEST(PageSizeBoxes, ACentimetreIs567Twips) {
  EXPECT_EQ(TwipsOf(1), 567.0F);
  EXPECT_EQ(TwipsOf(12.345F), 6999.615F);
  EXPECT_EQ(TwipsOf(10.15873F), 5760.0F);
}

TEST(PageSize, BelowFiftyCentimetresIsAccepted) {
  Layout layout;
  const TooLarge tooLarge = SetPageSize(layout, 49.9F, 49.9F);
  EXPECT_FALSE(tooLarge.width || tooLarge.height);
  EXPECT_EQ(layout.pageWidthCm, 49.9F);
  EXPECT_FLOAT_EQ(layout.canvasWidth, 28293.3F);
  EXPECT_TRUE(layout.pageSizeSet);
}

TEST(PageSize, OfFiftyFallsBackToTwentyWideAndTenHigh) {
  Layout layout;
  const TooLarge tooLarge = SetPageSize(layout, 50, 1e30F);
  EXPECT_TRUE(tooLarge.width && tooLarge.height);
  EXPECT_EQ(layout.pageWidthCm, 20);
  EXPECT_EQ(layout.pageHeightCm, 10);
  EXPECT_EQ(layout.canvasWidth, 11340);
  EXPECT_EQ(layout.canvasHeight, 5670);
}

TEST(PageSize, ZeroOnOneSideLeavesTheCanvassOtherSideAndSetsNoFlag) {
  Layout layout;
  layout.canvasWidth = 11340;
  layout.canvasHeight = 5670;
  SetPageSize(layout, 0, 10);
  EXPECT_EQ(layout.pageWidthCm, 0);
  EXPECT_EQ(layout.canvasWidth, 11340);
  EXPECT_EQ(layout.canvasHeight, 5670);
  EXPECT_FALSE(layout.pageSizeSet);
}

}  // namespace
}  // namespace qm::designer
