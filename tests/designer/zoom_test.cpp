#include <gmock/gmock.h>

#include "tests/designer/canvas_fixture.h"

namespace qm::designer {
namespace {

using ScrollingThePage = tests::OnTheCanvas;
using ZoomingThePage = tests::OnTheCanvas;

TEST_F(ScrollingThePage, GoesAsFarAsThePageIsLarge) {
  EXPECT_EQ(canvas.HorizontalMax(), 11906);
  EXPECT_EQ(canvas.VerticalMax(), 16838);
  canvas.ScrollTo(300, 400);
  EXPECT_EQ(canvas.Horizontal(), 300);
  EXPECT_EQ(canvas.Vertical(), 400);
  canvas.ScrollTo(99999, 99999);
  EXPECT_EQ(canvas.Horizontal(), 11906);
  EXPECT_EQ(canvas.Vertical(), 16838);
  canvas.ScrollTo(-1, -1);
  EXPECT_EQ(canvas.Horizontal(), 0);
  EXPECT_EQ(canvas.Vertical(), 0);
  EXPECT_EQ(view.placeChanges, 3);
}

TEST_F(ScrollingThePage, StaysWithinAPageThatBecomesSmaller) {
  canvas.ScrollTo(11000, 16000);
  document.Adjust([](Layout& layout) { layout.canvasWidth = layout.canvasHeight = 5670; });
  EXPECT_EQ(canvas.Horizontal(), 5670);
  EXPECT_EQ(canvas.Vertical(), 5670);
}

TEST_F(ScrollingThePage, LimitsAre16BitValues) {
  document.Adjust([](Layout& layout) {
    layout.canvasWidth = 40000;
    layout.canvasHeight = 28349.4F;
  });
  EXPECT_EQ(canvas.HorizontalMax(), 32767);
  EXPECT_EQ(canvas.VerticalMax(), 28349);
}

TEST_F(ZoomingThePage, GoesInStepsFromAQuarterToFourTimes) {
  EXPECT_EQ(canvas.Zoom(), 1);
  std::vector<double> zooms;
  canvas.ZoomBy(-99, {0, 0});
  for (int step = 0; step < 12; ++step) {
    zooms.push_back(canvas.Zoom());
    canvas.ZoomBy(1, {0, 0});
  }
  EXPECT_THAT(zooms, testing::ElementsAre(0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 2.5, 3, 4, 4, 4));
  canvas.ZoomToActualSize();
  EXPECT_EQ(canvas.Zoom(), 1);
}

TEST_F(ZoomingThePage, KeepsThePointUnderTheMouse) {
  canvas.ScrollTo(1000, 3000);
  const platform::Point mouse{2500, 4200};
  const auto onScreen = [&] {
    return platform::Point{(mouse.x - canvas.Horizontal()) * canvas.Zoom(),
                           (mouse.y - canvas.Vertical()) * canvas.Zoom()};
  };
  const platform::Point before = onScreen();
  for (int step = 0; step < 6; ++step) {
    canvas.ZoomBy(1, mouse);
    EXPECT_NEAR(onScreen().x, before.x, 4 * 0.5 * (step + 1)) << "scroll values are whole twips";
    EXPECT_NEAR(onScreen().y, before.y, 4 * 0.5 * (step + 1));
  }
  EXPECT_EQ(canvas.Zoom(), 4);
}

TEST_F(ZoomingThePage, SmallerThanThePointAllowsLeavesThePageAtTheTopLeft) {
  canvas.ScrollTo(100, 100);
  canvas.ZoomBy(-2, {3000, 3000});
  EXPECT_EQ(canvas.Horizontal(), 0);
  EXPECT_EQ(canvas.Vertical(), 0);
}

TEST_F(ZoomingThePage, LeavesWhatIsStoredAlone) {
  document.ClearModified();
  const Layout before = document.Current();
  canvas.ZoomBy(3, {500, 500});
  canvas.ZoomBy(-6, {500, 500});
  EXPECT_EQ(document.Current(), before);
  EXPECT_FALSE(document.Modified());
  EXPECT_FALSE(document.Undo());
}

TEST_F(ZoomingThePage, HandlesAreSixPixelsWideAtAnyZoom) {
  canvas.ZoomBy(-99, {0, 0});
  EXPECT_EQ(canvas.HandleSize(), 360);
  canvas.ZoomToActualSize();
  EXPECT_EQ(canvas.HandleSize(), 90);
  canvas.ZoomBy(3, {0, 0});
  EXPECT_EQ(canvas.HandleSize(), 45);
  canvas.ZoomBy(99, {0, 0});
  EXPECT_EQ(canvas.HandleSize(), 22) << "whole twips, 22.5 rounded to even";
}

TEST_F(ZoomingThePage, DragsAndEdgesStayExactAtEveryZoom) {
  canvas.ZoomBy(-99, {0, 0});
  for (int step = 0; step < 10; ++step, canvas.ZoomBy(1, {0, 0})) {
    document.Start(tests::PageWith({{1000, 2000, 600, 300}}));
    Click({1100, 2100});
    const Box handle = (*canvas.Handles())[8];
    const platform::Point grip{handle.left + 5.0, handle.top + 5.0};
    Drag(grip, {grip.x - 100, grip.y});
    EXPECT_EQ(BoxOf(1), (Box{900, 2000, 700, 300})) << canvas.Zoom();
    Drag({1100, 2100}, {1200, 2150});
    EXPECT_EQ(BoxOf(1), (Box{1000, 2050, 700, 300})) << canvas.Zoom();
  }
}

TEST_F(ZoomingThePage, AmidADragMovesNothingOnThePage) {
  Click({1100, 2100});
  Press({1620, 2150});
  DragTo({1720, 2150});
  canvas.ZoomBy(2, {1720, 2150});
  DragTo({1721, 2150});
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 701, 300}));
}

}  // namespace
}  // namespace qm::designer
