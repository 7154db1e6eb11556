#include "designer/box_marks.h"

#include <gmock/gmock.h>

#include "tests/designer/layouts.h"
#include "tests/fakes/recording_surface.h"

namespace qm::designer {
namespace {

// A surface on which a line is as high as twenty times its font's points, bold or italic a little higher.
class GrowingLines : public fakes::RecordingSurface {
 public:
  [[nodiscard]] platform::TextExtent Measure(std::u16string_view text) override {
    platform::TextExtent extent = fakes::RecordingSurface::Measure(text);
    const platform::Font font = CurrentFont();
    extent.height = font.sizePoints * 20 + (font.bold ? 5 : 0) + (font.italic ? 3 : 0);
    return extent;
  }
};

struct MarkedBoxes : testing::Test {
  GrowingLines surface;
  BoxMarks marks{surface};
  Layout page = tests::PageWith({});

  BoxMark Of(const Box& box, const FieldFont& font = {}) {
    Field field;
    field.box = box;
    field.font = font;
    return marks.Of(page, field);
  }
};

TEST_F(MarkedBoxes, ABoxOnThePageWithRoomForALineHasNoMark) {
  EXPECT_EQ(Of({0, 0, 11906, 16838}), BoxMark::None);
  EXPECT_EQ(Of({1000, 1000, 600, 200}), BoxMark::None);
}

TEST_F(MarkedBoxes, ABoxThatReachesOverAnyEdgeIsOffThePage) {
  EXPECT_EQ(Of({-1, 1000, 600, 300}), BoxMark::OffThePage);
  EXPECT_EQ(Of({1000, -1, 600, 300}), BoxMark::OffThePage);
  EXPECT_EQ(Of({11307, 1000, 600, 300}), BoxMark::OffThePage);
  EXPECT_EQ(Of({1000, 16539, 600, 300}), BoxMark::OffThePage);
  EXPECT_EQ(Of({20000, 1000, 600, 300}), BoxMark::OffThePage);
}

TEST_F(MarkedBoxes, ABoxLowerThanALineOfItsFontIsTooLow) {
  EXPECT_EQ(Of({1000, 1000, 600, 199}), BoxMark::TooLow);
  EXPECT_EQ(Of({1000, 1000, 600, 239}, {.size = 12}), BoxMark::TooLow);
  EXPECT_EQ(Of({1000, 1000, 600, 240}, {.size = 12}), BoxMark::None);
  EXPECT_EQ(Of({1000, 1000, 600, 244}, {.size = 12, .bold = true}), BoxMark::TooLow);
  EXPECT_EQ(Of({1000, 1000, 600, 242}, {.size = 12, .italic = true}), BoxMark::TooLow);
}

TEST_F(MarkedBoxes, EachFontIsMeasuredOnceAndTheSurfacesOwnFontStays) {
  surface.SetFont({.name = u"Times New Roman"});
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(Of({1000, 1000, 600, 300}), BoxMark::None);
    EXPECT_EQ(Of({1000, 1000, 600, 300}, {.size = 12, .foreColor = i}), BoxMark::None);
  }
  EXPECT_EQ(surface.Measurements(), 2);
  EXPECT_EQ(surface.CurrentFont().name, u"Times New Roman");
}

}  // namespace
}  // namespace qm::designer
