#include <gmock/gmock.h>

#include "tests/designer/canvas_fixture.h"

namespace qm::designer {
namespace {

using ArrowKeys = tests::OnTheCanvas;
using WalkingTheFields = tests::OnTheCanvas;

constexpr Modifiers kNone{};
constexpr Modifiers kCtrl{.control = true};
constexpr Modifiers kShift{.shift = true};
constexpr Modifiers kBoth{.shift = true, .control = true};

TEST_F(ArrowKeys, MoveTheSelectedFieldByAPixel) {
  document.Select(1);
  canvas.ArrowKey(Direction::Right, kNone);
  EXPECT_EQ(BoxOf(1), (Box{1015, 2000, 600, 300}));
  canvas.ArrowKey(Direction::Down, kNone);
  EXPECT_EQ(BoxOf(1), (Box{1015, 2015, 600, 300}));
  canvas.ArrowKey(Direction::Left, kNone);
  canvas.ArrowKey(Direction::Up, kNone);
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
  EXPECT_TRUE(document.Modified());
}

TEST_F(ArrowKeys, WithCtrlMoveItByATwip) {
  document.Select(1);
  canvas.ArrowKey(Direction::Left, kCtrl);
  canvas.ArrowKey(Direction::Up, kCtrl);
  EXPECT_EQ(BoxOf(1), (Box{999, 1999, 600, 300}));
}

TEST_F(ArrowKeys, WithShiftSizeItDownToNothing) {
  document.Select(1);
  canvas.ArrowKey(Direction::Right, kShift);
  canvas.ArrowKey(Direction::Up, kShift);
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 615, 285}));
  canvas.ArrowKey(Direction::Left, kBoth);
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 614, 285}));
  for (int i = 0; i < 100; ++i) {
    canvas.ArrowKey(Direction::Left, kShift);
    canvas.ArrowKey(Direction::Up, kShift);
  }
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 0, 0}));
}

TEST_F(ArrowKeys, ShowThePositionAndTheHandlesOfWhatTheyMove) {
  Drag({1100, 2100}, {1219, 2100});
  EXPECT_FALSE(HandlesShown());
  canvas.ArrowKey(Direction::Right, kNone);
  EXPECT_EQ(view.readouts.back(), u"Posicion Ancho:2,00; Posición Alto:3,53");
  EXPECT_TRUE(HandlesShown());
}

TEST_F(ArrowKeys, WithNothingSelectedDoNothing) {
  canvas.ArrowKey(Direction::Right, kNone);
  EXPECT_FALSE(document.Modified());
  EXPECT_TRUE(view.readouts.empty());
}

TEST_F(ArrowKeys, MoveTheSelectedLogoToo) {
  PutLogo({5000, 5000, 1000, 500});
  Click({5100, 5100});
  canvas.ArrowKey(Direction::Down, kNone);
  canvas.ArrowKey(Direction::Left, kShift);
  EXPECT_EQ(document.Current().logo->box, (Box{5000, 5015, 985, 500}));
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
}

TEST_F(ArrowKeys, EachKeyIsOneStepOfUndoAndSoIsOneHeldDown) {
  document.Select(1);
  canvas.ArrowKey(Direction::Right, kNone);
  canvas.ArrowKey(Direction::Right, kNone);
  for (int i = 0; i < 50; ++i) canvas.ArrowKey(Direction::Right, kNone, true);
  EXPECT_EQ(BoxOf(1).left, 1000 + 52 * 15);
  document.Undo();
  EXPECT_EQ(BoxOf(1).left, 1015);
  document.Undo();
  EXPECT_EQ(BoxOf(1).left, 1000);
}

TEST_F(ArrowKeys, WhileTheMouseDragsDoNothing) {
  Press({1100, 2100});
  DragTo({1200, 2100});
  canvas.ArrowKey(Direction::Down, kNone);
  canvas.NextField(false);
  EXPECT_EQ(BoxOf(1), (Box{1100, 2000, 600, 300}));
  EXPECT_EQ(document.Selected(), 1);
}

TEST_F(ArrowKeys, BringTheFieldIntoSight) {
  canvas.SetViewport(6000, 2200);
  document.Select(1);
  canvas.ArrowKey(Direction::Down, kNone);
  EXPECT_EQ(canvas.Vertical(), 2015 + 300 + 90 - 2200) << "with its handles";
  canvas.ScrollTo(3000, 2100);
  canvas.ArrowKey(Direction::Up, kNone);
  EXPECT_EQ(canvas.Vertical(), 1910);
  EXPECT_EQ(canvas.Horizontal(), 910);
}

TEST_F(WalkingTheFields, GoesByTheirIndexRoundAndRoundAndOverGaps) {
  document.Start(tests::PageWith({{0, 0, 9, 9}, {9, 9, 9, 9}, {20, 20, 9, 9}, {30, 30, 9, 9}}));
  Delete(2);
  std::vector<int> walked;
  for (int i = 0; i < 5; ++i) {
    canvas.NextField(false);
    walked.push_back(document.Selected());
  }
  EXPECT_THAT(walked, testing::ElementsAre(1, 3, 4, 1, 3));
  walked.clear();
  for (int i = 0; i < 4; ++i) {
    canvas.NextField(true);
    walked.push_back(document.Selected());
  }
  EXPECT_THAT(walked, testing::ElementsAre(1, 4, 3, 1));
}

TEST_F(WalkingTheFields, BackwardsBeginsWithTheLast) {
  canvas.NextField(true);
  EXPECT_EQ(document.Selected(), 2);
}

TEST_F(WalkingTheFields, ShowsHandlesAndPositionAndChangesNothing) {
  canvas.NextField(false);
  EXPECT_EQ((*canvas.Handles())[4].left, 1600);
  EXPECT_EQ(view.readouts.back(), u"Posicion Ancho:1,76; Posición Alto:3,53");
  EXPECT_FALSE(document.Modified());
}

TEST_F(WalkingTheFields, BringsEachIntoSight) {
  canvas.SetViewport(2000, 2000);
  canvas.ZoomBy(3, {0, 0});  // 200 percent: a viewport of 1000 by 1000 twips of the page
  canvas.NextField(false);
  EXPECT_EQ(canvas.Horizontal(), 1645 - 1000);
  EXPECT_EQ(canvas.Vertical(), 2345 - 1000);
  canvas.NextField(false);
  EXPECT_EQ(canvas.Horizontal(), 3845 - 1000);
  canvas.NextField(true);
  EXPECT_EQ(canvas.Horizontal(), 955);
}

TEST_F(WalkingTheFields, OnAnEmptyPageDoesNothing) {
  document.Start(tests::PageWith({}));
  canvas.NextField(false);
  canvas.NextField(true);
  EXPECT_EQ(document.Selected(), 0);
  EXPECT_FALSE(HandlesShown());
}

TEST_F(WalkingTheFields, LeavesTheLogo) {
  PutLogo({5000, 5000, 1000, 500});
  Click({5100, 5100});
  canvas.NextField(false);
  EXPECT_FALSE(document.LogoSelected());
  EXPECT_EQ(document.Selected(), 1);
}

}  // namespace
}  // namespace qm::designer
