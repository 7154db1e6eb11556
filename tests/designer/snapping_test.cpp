#include "designer/snapping.h"

#include <gmock/gmock.h>

#include "tests/designer/canvas_fixture.h"

namespace qm::designer {

void PrintTo(const Guide& guide, std::ostream* out) {
  *out << (guide.vertical ? "vertical at " : "horizontal at ") << guide.position;
}

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using ::testing::UnorderedElementsAre;

constexpr Modifiers kCtrl{.control = true};
constexpr Modifiers kShift{.shift = true};
constexpr Modifiers kBoth{.shift = true, .control = true};

TEST(SnapLines, AreTheEdgesOfTheOtherFieldsOfTheLogoAndOfThePage) {
  Layout layout = tests::PageWith({{1000, 2000, 600, 300}, {3000, 4000, 800, 240}});
  layout.logo = tests::LogoAt({5000, 6000, 100, 50});
  layout.men.push_back(nullptr);
  const SnapLines lines(layout, 1);
  for (const float x : {0.0F, 11906.0F, 3000.0F, 3800.0F, 5000.0F, 5100.0F})
    EXPECT_TRUE(lines.Has(true, x)) << x;
  for (const float y : {0.0F, 16838.0F, 4000.0F, 4240.0F, 6000.0F, 6050.0F})
    EXPECT_TRUE(lines.Has(false, y)) << y;
  EXPECT_FALSE(lines.Has(true, 1000)) << "the dragged field's own edge";
  EXPECT_FALSE(lines.Has(true, 4000)) << "a line of the other direction";
  EXPECT_FALSE(SnapLines(layout, 0).Has(true, 5000)) << "the dragged logo's own edge";
}

TEST(SnapLines, TheNearestOneWithinTheToleranceIsFound) {
  const SnapLines lines(tests::PageWith({{1000, 0, 100, 100}}), 0);
  EXPECT_THAT(lines.Nearest(true, 1040, 60), Optional(1000.0F));
  EXPECT_THAT(lines.Nearest(true, 1060, 60), Optional(1100.0F));
  EXPECT_THAT(lines.Nearest(true, 1160, 60), Optional(1100.0F));
  EXPECT_EQ(lines.Nearest(true, 1161, 60), std::nullopt);
  EXPECT_EQ(lines.Nearest(true, 939, 60), std::nullopt);
  EXPECT_THAT(lines.Nearest(true, -60, 60), Optional(0.0F));
  EXPECT_THAT(lines.Nearest(true, 11950, 60), Optional(11906.0F));
}

TEST(SnapLines, TheNearerEndOfASpanDecides) {
  const SnapLines lines(tests::PageWith({{1000, 0, 1000, 100}}), 0);
  EXPECT_EQ(lines.Shift(true, 1030, 2010, 60), -10) << "the end is nearer";
  EXPECT_EQ(lines.Shift(true, 1010, 2030, 60), -10) << "the start is nearer";
  EXPECT_EQ(lines.Shift(true, 970, 1500, 60), 30);
  EXPECT_EQ(lines.Shift(true, 1500, 1970, 60), 30);
  EXPECT_EQ(lines.Shift(true, 1400, 1500, 60), 0);
}

using SnappingDrags = tests::OnTheCanvas;

TEST_F(SnappingDrags, APlainDragNeverSnaps) {
  Press({1100, 2100});
  DragTo({3101, 4101});
  EXPECT_EQ(BoxOf(1), (Box{3001, 4001, 600, 300}));
  EXPECT_THAT(canvas.Guides(), IsEmpty());
}

TEST_F(SnappingDrags, WithCtrlAnEdgeNearAnotherFieldsEdgeLiesUponItAndAGuideShowsThat) {
  Press({1100, 2100});
  DragTo({3145, 3000}, kCtrl);  // the left edge would lie at 3045
  EXPECT_EQ(BoxOf(1), (Box{3000, 2900, 600, 300}));
  EXPECT_THAT(canvas.Guides(), ElementsAre(Guide{true, 3000}));
  DragTo({3161, 3000}, kCtrl);
  EXPECT_EQ(BoxOf(1).left, 3061) << "too far away";
  EXPECT_THAT(canvas.Guides(), IsEmpty());
}

TEST_F(SnappingDrags, WithCtrlTheRightEdgeSnapsAsWell) {
  Press({1100, 2100});
  DragTo({3330, 3000}, kCtrl);  // the right edge would lie at 3830
  EXPECT_EQ(BoxOf(1), (Box{3200, 2900, 600, 300}));
  EXPECT_THAT(canvas.Guides(), ElementsAre(Guide{true, 3800}));
}

TEST_F(SnappingDrags, WithCtrlBothDirectionsSnapIndependently) {
  Press({1100, 2100});
  DragTo({90, 4120}, kCtrl);  // to the page's left edge and the other field's top
  EXPECT_EQ(BoxOf(1), (Box{0, 4000, 600, 300}));
  EXPECT_THAT(canvas.Guides(), UnorderedElementsAre(Guide{true, 0}, Guide{false, 4000}));
}

TEST_F(SnappingDrags, WithCtrlTheBottomSnapsToTheEdgeOfThePage) {
  Press({1100, 2100});
  DragTo({1100, 16650}, kCtrl);
  EXPECT_EQ(BoxOf(1), (Box{1000, 16538, 600, 300}));
  EXPECT_THAT(canvas.Guides(), ElementsAre(Guide{false, 16838}));
}

TEST_F(SnappingDrags, GuidesShowEveryEdgeThatLiesUponALine) {
  document.Start(tests::PageWith({{1000, 2000, 600, 300}, {3000, 4000, 600, 240}}));
  Press({1100, 2100});
  DragTo({3110, 3000}, kCtrl);
  EXPECT_THAT(canvas.Guides(), UnorderedElementsAre(Guide{true, 3000}, Guide{true, 3600}));
}

TEST_F(SnappingDrags, TheDistanceIsTheSameOnTheScreenAtAnyZoom) {
  canvas.ZoomBy(99, {0, 0});  // 400 percent
  Press({1100, 2100});
  DragTo({3116, 3000}, kCtrl);
  EXPECT_EQ(BoxOf(1).left, 3016);
  DragTo({3115, 3000}, kCtrl);
  EXPECT_EQ(BoxOf(1).left, 3000);
  canvas.ZoomBy(-99, {0, 0});  // 25 percent
  DragTo({3340, 3000}, kCtrl);
  EXPECT_EQ(BoxOf(1).left, 3200) << "its right edge at 3800, 40 away, rather than the left at 3000";
}

TEST_F(SnappingDrags, AHandlesEdgeSnapsToo) {
  Click({1100, 2100});
  Press({1620, 2150});
  DragTo({2990, 2150}, kCtrl);
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 2000, 300}));
  EXPECT_THAT(canvas.Guides(), ElementsAre(Guide{true, 3000}));
  DragTo({2990, 2150}, {});
  EXPECT_EQ(BoxOf(1).Right(), 2970);
}

TEST_F(SnappingDrags, AnEdgeNeverSnapsBeyondTheOppositeOne) {
  document.Start(tests::PageWith({{1000, 2000, 600, 300}, {960, 4000, 800, 240}}));
  Click({1100, 2100});
  Press({1620, 2150});
  DragTo({1010, 2150}, kCtrl);  // the right edge would lie at 990, the line at 960
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 0, 300}));
  EXPECT_THAT(canvas.Guides(), IsEmpty());
}

TEST_F(SnappingDrags, GuidesGoWithTheEndOfTheDrag) {
  Drag({1100, 2100}, {3145, 3000}, kCtrl);
  EXPECT_EQ(BoxOf(1).left, 3000);
  EXPECT_THAT(canvas.Guides(), IsEmpty());
}

TEST_F(SnappingDrags, TheLogoSnapsToFieldsAndFieldsToTheLogo) {
  PutLogo({5000, 6000, 500, 500});
  Drag({5100, 6100}, {3120, 8000}, kCtrl);
  EXPECT_EQ(document.Current().logo->box, (Box{3000, 7900, 500, 500}));
  Drag({1100, 2100}, {5000, 8010}, kCtrl);
  EXPECT_EQ(BoxOf(1), (Box{4900, 7900, 600, 300}));
}

TEST_F(SnappingDrags, WithShiftTheAxisMovedLessStays) {
  Press({1100, 2100});
  DragTo({1300, 2180}, kShift);
  EXPECT_EQ(BoxOf(1), (Box{1200, 2000, 600, 300}));
  DragTo({1300, 2500}, kShift);
  EXPECT_EQ(BoxOf(1), (Box{1000, 2400, 600, 300}));
  DragTo({1300, 2500}, {});
  EXPECT_EQ(BoxOf(1), (Box{1200, 2400, 600, 300})) << "the key is up again";
}

TEST_F(SnappingDrags, WithShiftTheOtherAxisKeepsEvenAFractionOfATwip) {
  document.Adjust(
      [](Layout& layout) { ChangeField(layout, 1, [](Field& field) { field.box.top = 2000.5F; }); });
  Press({1100, 2100});
  DragTo({1300, 2180}, kShift);
  EXPECT_EQ(BoxOf(1), (Box{1200, 2000.5F, 600, 300}));
}

TEST_F(SnappingDrags, WithBothKeysOnlyTheAxisThatMovesSnaps) {
  document.Start(tests::PageWith({{1000, 2000, 600, 300}, {3000, 2030, 800, 240}}));
  Press({1100, 2100});
  DragTo({3120, 2110}, kBoth);
  EXPECT_EQ(BoxOf(1), (Box{3000, 2000, 600, 300}));
  EXPECT_THAT(canvas.Guides(), ElementsAre(Guide{true, 3000}));
}

}  // namespace
}  // namespace qm::designer
