#include "designer/canvas.h"

#include <gmock/gmock.h>

#include "tests/designer/canvas_fixture.h"

namespace qm::designer {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using PressingFields = tests::OnTheCanvas;
using DraggingFields = tests::OnTheCanvas;
using DraggingHandles = tests::OnTheCanvas;
using TheLogo = tests::OnTheCanvas;
using CancellingADrag = tests::OnTheCanvas;

TEST_F(PressingFields, SelectsTheFieldAndMarksTheModelModifiedWithEitherButton) {
  for (const Button button : {Button::Left, Button::Right}) {
    document.ClearModified();
    document.Select(0);
    canvas.Press({1100, 2100}, button);
    canvas.Release({1100, 2100});
    EXPECT_EQ(document.Selected(), 1);
    EXPECT_TRUE(document.Modified());
    EXPECT_FALSE(document.Undo()) << "nothing was changed that could be undone";
  }
}

TEST_F(PressingFields, WithTheRightButtonOpensTheEditMenu) {
  RightPress({3100, 4100});
  EXPECT_EQ(document.Selected(), 2);
  EXPECT_TRUE(document.Modified());
  EXPECT_THAT(view.popUps, ElementsAre(PopUp::Editar));
}

TEST_F(PressingFields, WithTheRightButtonShowsWhichFieldTheMenuIsAbout) {
  Click({1100, 2100});
  view.whilePopUp = [this] { EXPECT_EQ((*canvas.Handles())[4].left, 3800); };
  RightPress({3100, 4100});
  DragTo({9000, 9000});
  EXPECT_EQ(BoxOf(2), (Box{3000, 4000, 800, 240})) << "the left button drags";
}

TEST_F(PressingFields, WithTheLeftButtonOpensNoMenu) {
  Click({3100, 4100});
  Click({9000, 9000});
  EXPECT_THAT(view.popUps, IsEmpty());
}

TEST_F(PressingFields, OfTwoFieldsThatOverlapTheLaterOneIsPressed) {
  document.Start(tests::PageWith({{1000, 1000, 500, 500}, {1200, 1200, 500, 500}}));
  Press({1300, 1300});
  EXPECT_EQ(document.Selected(), 2);
  Press({1100, 1100});
  EXPECT_EQ(document.Selected(), 1);
}

TEST_F(PressingFields, ThePlacesOfDeletedFieldsAreEmpty) {
  Delete(1);
  Click({1100, 2100});
  EXPECT_EQ(document.Selected(), 0);
  EXPECT_EQ(canvas.FieldAt({1100, 2100}), 0);
  EXPECT_EQ(canvas.FieldAt({3100, 4100}), 2);
}

TEST_F(PressingFields, AFieldReachesToItsRightAndBottomEdgeButNotOnto) {
  EXPECT_EQ(canvas.FieldAt({1000, 2000}), 1);
  EXPECT_EQ(canvas.FieldAt({1599, 2299}), 1);
  EXPECT_EQ(canvas.FieldAt({1600, 2000}), 0);
  EXPECT_EQ(canvas.FieldAt({1000, 2300}), 0);
}

TEST_F(PressingFields, AClickShowsTheHandlesAndThePosition) {
  Press({1100, 2100});
  EXPECT_FALSE(HandlesShown());
  canvas.Release({1100, 2100});
  ASSERT_TRUE(HandlesShown());
  EXPECT_EQ((*canvas.Handles())[1], (Box{910, 1910, 90, 90}));
  EXPECT_THAT(view.readouts, ElementsAre(u"Posicion Ancho:1,76; Posición Alto:3,53"));
}

TEST_F(PressingFields, ReleasingElsewhereIsNoClick) {
  Press({1100, 2100});
  canvas.Release({2000, 2100});
  EXPECT_FALSE(HandlesShown());
}

TEST_F(PressingFields, TheHandlesOfOneFieldGoWhenAnotherIsPressed) {
  Click({1100, 2100});
  Press({3100, 4100});
  EXPECT_FALSE(HandlesShown());
  canvas.Release({3100, 4100});
  EXPECT_EQ((*canvas.Handles())[1].left, 2910);
}

TEST_F(PressingFields, TheEmptyPageHidesTheHandlesAndKeepsTheFieldSelected) {
  Click({1100, 2100});
  document.ClearModified();
  Click({9000, 9000});
  EXPECT_FALSE(HandlesShown());
  EXPECT_EQ(document.Selected(), 1);
  EXPECT_FALSE(document.Modified());
}

TEST_F(PressingFields, TheEmptyPageWithTheRightButtonHidesTheHandlesAndOpensTheInsertMenu) {
  Click({1100, 2100});
  view.whilePopUp = [this] { EXPECT_FALSE(HandlesShown()); };
  RightPress({9000, 9000});
  EXPECT_THAT(view.popUps, ElementsAre(PopUp::Insertar));
}

TEST_F(PressingFields, MovingTheMouseAloneDoesNothing) {
  Click({1100, 2100});
  canvas.Move({5000, 5000}, true, {});
  canvas.Move({1100, 2100}, false, {});
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
  EXPECT_TRUE(HandlesShown());
}

TEST_F(DraggingFields, TheFieldMovesWithTheMouse) {
  Press({1100, 2150});
  DragTo({1115, 2150});
  EXPECT_EQ(BoxOf(1), (Box{1015, 2000, 600, 300}));
  DragTo({1085, 2195});
  EXPECT_EQ(BoxOf(1), (Box{985, 2045, 600, 300}));
  DragTo({5101, 7152});
  EXPECT_EQ(BoxOf(1), (Box{5001, 7002, 600, 300}));
}

TEST_F(DraggingFields, AFieldMayBeDraggedOffThePage) {
  Drag({1100, 2100}, {-400, 20000});
  EXPECT_EQ(BoxOf(1), (Box{-500, 19900, 600, 300}));
}

TEST_F(DraggingFields, ThePositionIsReadInCentimetres) {
  Press({1100, 2100});
  DragTo({1234, 2951});
  EXPECT_EQ(BoxOf(1), (Box{1134, 2851, 600, 300}));
  EXPECT_THAT(view.readouts, ElementsAre(u"Posicion Ancho:2,00; Posición Alto:5,03"));
}

TEST_F(DraggingFields, ThePositionIsReadWithTheUsersDecimalSign) {
  Canvas english(document, view, runtime::Locale::English());
  english.Press({1100, 2100}, Button::Left);
  english.Move({1234, 383.5}, true, {});
  EXPECT_THAT(view.readouts, ElementsAre(u"Posicion Ancho:2.00; Posición Alto:.50"));
}

TEST_F(DraggingFields, HandlesStayHiddenUntilTheFieldIsClickedAgain) {
  Click({1100, 2100});
  Press({1100, 2100});
  EXPECT_TRUE(HandlesShown());
  DragTo({1115, 2100});
  EXPECT_FALSE(HandlesShown());
  canvas.Release({1115, 2100});
  EXPECT_FALSE(HandlesShown());
  EXPECT_EQ(document.Selected(), 1);
  Click({1115, 2100});
  EXPECT_TRUE(HandlesShown());
}

TEST_F(DraggingFields, AMouseThatIsMovedBackHasDraggedAllTheSame) {
  Press({1100, 2100});
  DragTo({1115, 2100});
  DragTo({1100, 2100});
  canvas.Release({1100, 2100});
  EXPECT_FALSE(HandlesShown());
  EXPECT_FALSE(document.Undo()) << "nothing to undo: the field is where it was";
}

TEST_F(DraggingFields, AMouseReportedWhereItWasPressedDragsNothing) {
  Press({1100, 2100});
  DragTo({1100, 2100}, {.shift = true, .control = true});
  canvas.Release({1100, 2100});
  EXPECT_TRUE(HandlesShown());
}

TEST_F(DraggingFields, OneDragIsOneStepOfUndo) {
  Press({1100, 2100});
  for (int x = 1115; x < 3000; x += 15) DragTo({static_cast<double>(x), 2200});
  canvas.Release({2990, 2200});
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
  EXPECT_FALSE(document.Undo());
  ASSERT_TRUE(document.Redo());
  EXPECT_EQ(BoxOf(1).left, 2890);
}

TEST_F(DraggingFields, TheStartPointIsRoundedToTheEvenTwip) {
  document.Adjust([](Layout& layout) {
    ChangeField(layout, 1, [](Field& field) { field.box = {1000.5F, 1999.5F, 600, 300}; });
  });
  Press({1101, 2100});  // 100.5 within the field in both directions
  DragTo({1201, 2200});
  EXPECT_EQ(BoxOf(1), (Box{1101, 2100, 600, 300}));
  canvas.Release({1201, 2200});

  document.Adjust([](Layout& layout) {
    ChangeField(layout, 1, [](Field& field) { field.box = {1000.5F, 1998.5F, 600, 300}; });
  });
  Press({1102, 2100});  // 101.5 is rounded to 102
  DragTo({1202, 2200});
  EXPECT_EQ(BoxOf(1), (Box{1100, 2098, 600, 300}));
}

TEST_F(DraggingFields, StoresWholeTwipsWhateverTheMouseCanPointAt) {
  Press({1100.5, 2100.25});
  DragTo({1207.4, 2203.7});
  EXPECT_EQ(BoxOf(1), (Box{1107, 2104, 600, 300}));
}

TEST_F(DraggingFields, EndsWhenTheButtonIsFoundReleased) {
  Press({1100, 2100});
  DragTo({1200, 2100});
  canvas.Move({5000, 5000}, false, {});
  EXPECT_FALSE(canvas.Dragging());
  EXPECT_EQ(BoxOf(1).left, 1100);
  EXPECT_TRUE(document.Undo());
}

TEST_F(DraggingFields, EndsWhereItIsWhenTheRightButtonComesBetween) {
  Press({1100, 2100});
  DragTo({1200, 2100});
  RightPress({1200, 2100});
  EXPECT_FALSE(canvas.Dragging());
  EXPECT_THAT(view.popUps, ElementsAre(PopUp::Editar));
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(BoxOf(1).left, 1000);
}

TEST_F(DraggingHandles, TheEdgeFollowsItsHandleAndTheOthersStay) {
  Click({1100, 2100});
  Drag({1300, 1950}, {1400, 1850});  // 2, at the top
  EXPECT_EQ(BoxOf(1), (Box{1000, 1900, 600, 400}));
  Drag({1620, 2100}, {1720, 2500});  // 4, at the right
  EXPECT_EQ(BoxOf(1), (Box{1000, 1900, 700, 400}));
  Drag({1350, 2310}, {900, 2410});  // 6, at the bottom
  EXPECT_EQ(BoxOf(1), (Box{1000, 1900, 700, 500}));
  Drag({950, 2150}, {1050, 9000});  // 8, at the left
  EXPECT_EQ(BoxOf(1), (Box{1100, 1900, 600, 500}));
}

TEST_F(DraggingHandles, TheHandlesStayAroundTheField) {
  Click({1100, 2100});
  Press({1620, 2150});
  DragTo({1720, 2150});
  ASSERT_TRUE(HandlesShown());
  EXPECT_EQ((*canvas.Handles())[3], (Box{1700, 1910, 90, 90}));
  EXPECT_EQ((*canvas.Handles())[2], (Box{1305, 1910, 90, 90}));
  canvas.Release({1720, 2150});
  EXPECT_TRUE(HandlesShown());
}

TEST_F(DraggingHandles, CornersDoNotReact) {
  Click({1100, 2100});
  document.ClearModified();
  for (const platform::Point corner : {platform::Point{950, 1950}, {1650, 1950}, {1650, 2350}, {950, 2350}}) {
    Drag(corner, {corner.x + 300, corner.y + 300});
    EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
  }
  EXPECT_FALSE(document.Modified());
  EXPECT_TRUE(HandlesShown());
}

TEST_F(DraggingHandles, TheRightButtonDoesNothingOnThem) {
  Click({1100, 2100});
  RightPress({1620, 2150});
  DragTo({1920, 2150});
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
  EXPECT_THAT(view.popUps, IsEmpty());
  EXPECT_TRUE(HandlesShown());
}

TEST_F(DraggingHandles, PressingOneIsNoChangeAndDraggingItIs) {
  Click({1100, 2100});
  document.ClearModified();
  Click({1620, 2150});
  EXPECT_FALSE(document.Modified());
  Drag({1620, 2150}, {1720, 2150});
  EXPECT_TRUE(document.Modified());
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
}

TEST_F(DraggingHandles, TheyLieAboveTheFields) {
  document.Start(tests::PageWith({{1000, 1000, 500, 500}, {1500, 1000, 500, 500}}));
  Click({1100, 1100});
  Drag({1520, 1250}, {1420, 1250});
  EXPECT_EQ(BoxOf(1), (Box{1000, 1000, 400, 500}));
  EXPECT_EQ(document.Selected(), 1);
}

TEST_F(DraggingHandles, APullBeyondTheOppositeEdgeComesBackWithTheMouse) {
  Click({1100, 2100});
  Press({950, 2150});
  DragTo({3000, 2150});
  EXPECT_EQ(BoxOf(1), (Box{1600, 2000, 0, 300}));
  DragTo({1050, 2150});
  EXPECT_EQ(BoxOf(1), (Box{1100, 2000, 500, 300}));
}

TEST_F(DraggingHandles, TheMousePointerTellsWhatADragWouldDo) {
  Click({1100, 2100});
  EXPECT_EQ(canvas.PointerAt({1300, 1950}), Pointer::SizeNorthSouth);
  EXPECT_EQ(canvas.PointerAt({950, 2150}), Pointer::SizeWestEast);
  EXPECT_EQ(canvas.PointerAt({950, 1950}), Pointer::Corner);
  EXPECT_EQ(canvas.PointerAt({1300, 2150}), Pointer::Arrow);
  Press({950, 2150});
  EXPECT_EQ(canvas.PointerAt({5000, 5000}), Pointer::SizeWestEast) << "as long as the button is held";
  canvas.Release({950, 2150});
  canvas.HideHandles();
  EXPECT_EQ(canvas.PointerAt({950, 2150}), Pointer::Arrow);
}

TEST_F(DraggingHandles, TheyGoWithTheirField) {
  Click({1100, 2100});
  Delete(1);
  EXPECT_FALSE(HandlesShown());
  ASSERT_TRUE(document.Undo());
  EXPECT_FALSE(HandlesShown()) << "the field is back, yet not selected";
}

TEST_F(TheLogo, IsSelectedAndDraggedLikeAFieldWithTheSameReadout) {
  PutLogo({5000, 5000, 1000, 500});
  Click({1100, 2100});
  Press({5100, 5100});
  EXPECT_TRUE(document.LogoSelected());
  EXPECT_EQ(document.Selected(), 0);
  EXPECT_FALSE(HandlesShown());
  view.readouts.clear();
  DragTo({1234, 5100});
  canvas.Release({1234, 5100});
  EXPECT_EQ(document.Current().logo->box, (Box{1134, 5000, 1000, 500}));
  EXPECT_THAT(view.readouts, ElementsAre(u"Posicion Ancho:2,00; Posición Alto:8,82"));
  EXPECT_FALSE(HandlesShown());
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(document.Current().logo->box.left, 5000);
}

TEST_F(TheLogo, IsForTheLeftButtonOnly) {
  PutLogo({5000, 5000, 1000, 500});
  Click({1100, 2100});
  RightPress({5100, 5100});
  DragTo({6000, 6000});
  EXPECT_FALSE(document.LogoSelected());
  EXPECT_EQ(document.Selected(), 1);
  EXPECT_TRUE(HandlesShown());
  EXPECT_THAT(view.popUps, IsEmpty());
  EXPECT_EQ(document.Current().logo->box.left, 5000);
}

TEST_F(TheLogo, LiesBelowTheFields) {
  PutLogo({500, 500, 5000, 5000});
  Press({1100, 2100});
  EXPECT_EQ(document.Selected(), 1);
  EXPECT_FALSE(document.LogoSelected());
}

TEST_F(TheLogo, PressedAndNotDraggedLeavesTheModelUnmodified) {
  PutLogo({5000, 5000, 1000, 500});
  Click({5100, 5100});
  EXPECT_FALSE(document.Modified());
  Drag({5100, 5100}, {5200, 5100});
  EXPECT_TRUE(document.Modified());
}

TEST_F(CancellingADrag, PutsTheFieldBack) {
  Click({1100, 2100});
  Drag({3100, 4100}, {3200, 4100});
  document.Undo();
  Click({1100, 2100});
  Press({1100, 2100});
  DragTo({5000, 5000}, {.control = true});
  canvas.CancelDrag();
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
  EXPECT_TRUE(HandlesShown());
  EXPECT_THAT(canvas.Guides(), IsEmpty());
  EXPECT_EQ(view.readouts.back(), u"Posicion Ancho:1,76; Posición Alto:3,53");
  DragTo({7000, 7000});
  canvas.Release({7000, 7000});
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300})) << "the button still held drags nothing any more";
  EXPECT_TRUE(document.Redo()) << "what could be redone before can be redone still";
}

TEST_F(CancellingADrag, OfAHandleLeavesTheModelAsUnmodifiedAsItWas) {
  Click({1100, 2100});
  document.ClearModified();
  Press({1620, 2150});
  DragTo({1720, 2150});
  EXPECT_TRUE(document.Modified());
  canvas.CancelDrag();
  EXPECT_FALSE(document.Modified());
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
  EXPECT_FALSE(document.Undo());
}

}  // namespace
}  // namespace qm::designer
