#include "designer/document.h"

#include <gmock/gmock.h>

#include "tests/designer/layouts.h"

namespace qm::designer {
namespace {

struct Editing : testing::Test {
  Document document;

  Editing() { document.Start(tests::PageWith({{1000, 2000, 600, 300}})); }

  static auto Left(float left) {
    return
        [left](Layout& layout) { ChangeField(layout, 1, [left](Field& field) { field.box.left = left; }); };
  }
  float LeftOfField() const { return document.Current().At(1)->box.left; }
};

using Gestures = Editing;
using EditsInARun = Editing;

TEST_F(Editing, AChangeThatChangesNothingIsNoEdit) {
  document.Edit(Left(1000));
  EXPECT_FALSE(document.Modified());
  EXPECT_FALSE(document.Undo());
}

TEST_F(Editing, ReplacingAPartByAnEqualOneIsNoEdit) {
  document.Adjust([](Layout& layout) { layout.logo = tests::LogoAt({0, 0, 100, 100}); });
  document.Edit([](Layout& layout) {
    layout.logo = tests::LogoAt({0, 0, 100, 100});
    layout.men[1] = tests::FieldWith({1000, 2000, 600, 300});
  });
  EXPECT_FALSE(document.Modified());
  EXPECT_FALSE(document.Undo());
}

TEST_F(Editing, ANewEditEndsWhatCouldBeRedone) {
  document.Edit(Left(1));
  document.Undo();
  document.Edit(Left(2));
  EXPECT_FALSE(document.Redo());
  EXPECT_EQ(LeftOfField(), 2);
}

TEST_F(Editing, UndoAndRedoMarkTheModelModifiedAndNeverClearTheMark) {
  document.Edit(Left(1));
  document.ClearModified();
  document.Undo();
  EXPECT_TRUE(document.Modified());
  document.ClearModified();
  document.Redo();
  EXPECT_TRUE(document.Modified());
  document.Undo();
  EXPECT_TRUE(document.Modified()) << "although the first state is back";
}

TEST_F(Editing, TheLastFiveHundredEditsCanBeUndone) {
  for (int i = 1; i <= 600; ++i) document.Edit(Left(static_cast<float>(i)));
  int undone = 0;
  while (document.Undo()) ++undone;
  EXPECT_EQ(undone, 500);
  EXPECT_EQ(LeftOfField(), 100);
}

TEST_F(Editing, AFieldThatIsNoLongerThereIsNoLongerSelected) {
  document.Edit([](Layout& layout) { layout.men.push_back(tests::FieldWith({0, 0, 9, 9})); });
  document.Select(2);
  document.Undo();
  EXPECT_EQ(document.Selected(), 0);
}

TEST_F(Editing, TheListenerHearsOfEveryChangeWithTheLayoutsBeforeAndAfter) {
  std::vector<std::pair<float, float>> heard;
  document.Listen([&heard](const Layout& before, const Layout& after) {
    heard.emplace_back(before.At(1)->box.left, after.At(1)->box.left);
  });
  document.Edit(Left(1));
  document.Undo();
  document.Redo();
  document.BeginGesture();
  document.Edit(Left(2));
  document.CancelGesture();
  EXPECT_THAT(heard,
              testing::ElementsAre(std::pair{1000.0F, 1.0F}, std::pair{1.0F, 1000.0F},
                                   std::pair{1000.0F, 1.0F}, std::pair{1.0F, 2.0F}, std::pair{2.0F, 1.0F}));
}

TEST_F(Editing, AnotherLayoutHasNothingToUndoEvenAmidAGesture) {
  document.Edit(Left(1));
  document.BeginGesture();
  document.Edit(Left(2));
  document.Start(tests::PageWith({{5, 5, 5, 5}}));
  document.EndGesture();
  EXPECT_FALSE(document.Modified());
  EXPECT_FALSE(document.Undo());
  EXPECT_FALSE(document.Redo());
}

TEST_F(Editing, WhatChangedOutsideReachesAllThatUndoRedoAndCancelLeadTo) {
  document.Edit(Left(1));
  document.Edit(Left(2));
  document.Undo();
  document.BeginGesture();
  document.Edit(Left(3));
  document.AdjustThroughout([](Layout& layout) { layout.imagen = u"fondo.bmp"; });
  EXPECT_EQ(document.Current().imagen, u"fondo.bmp");
  document.CancelGesture();
  EXPECT_EQ(document.Current().imagen, u"fondo.bmp");
  document.Redo();
  EXPECT_EQ(document.Current().imagen, u"fondo.bmp");
  document.Undo();
  document.Undo();
  EXPECT_EQ(document.Current().imagen, u"fondo.bmp");
}

TEST_F(Gestures, AreOneStepOfUndo) {
  document.BeginGesture();
  for (int i = 1; i <= 5; ++i) document.Edit(Left(static_cast<float>(i)));
  EXPECT_FALSE(document.Undo()) << "not amid one";
  document.EndGesture();
  document.Undo();
  EXPECT_EQ(LeftOfField(), 1000);
  document.Redo();
  EXPECT_EQ(LeftOfField(), 5);
}

TEST_F(Gestures, ThatPlaceBoxesTellOfEachStepAndLeaveAllElseAsItIs) {
  document.Adjust([](Layout& layout) {
    layout.men.push_back(tests::FieldWith({5, 5, 5, 5}));
    layout.logo = tests::LogoAt({0, 0, 100, 100});
  });
  const FieldPointer other = document.Current().men[2];
  std::vector<std::pair<float, float>> heard;
  document.Listen([&heard](const Layout& before, const Layout& after) {
    heard.emplace_back(before.At(1)->box.left, after.At(1)->box.left);
  });
  document.BeginGesture();
  for (const float left : {1.0F, 2.0F, 3.0F, 3.0F}) document.EditBox(1, {left, 2000, 600, 300});
  document.Edit(Left(4));
  document.EditBox(1, {5, 2000, 600, 300});
  document.EditBox(0, {6, 0, 100, 100});
  document.EditBox(9, {7, 7, 7, 7});
  document.EndGesture();
  EXPECT_THAT(heard,
              testing::ElementsAre(std::pair{1000.0F, 1.0F}, std::pair{1.0F, 2.0F}, std::pair{2.0F, 3.0F},
                                   std::pair{3.0F, 4.0F}, std::pair{4.0F, 5.0F}, std::pair{5.0F, 5.0F}));
  EXPECT_EQ(document.Current().logo->box.left, 6);
  EXPECT_EQ(document.Current().men[2], other);
  document.Undo();
  EXPECT_EQ(LeftOfField(), 1000);
  EXPECT_EQ(document.Current().logo->box.left, 0);
}

TEST_F(Gestures, ThatEndWhereTheyBeganAreNoStepAndKeepWhatCouldBeRedone) {
  document.Edit(Left(1));
  document.Undo();
  document.BeginGesture();
  document.Edit(Left(2));
  document.Edit(Left(1000));
  document.EndGesture();
  EXPECT_FALSE(document.Undo());
  EXPECT_TRUE(document.Redo());
  EXPECT_EQ(LeftOfField(), 1);
}

TEST_F(Gestures, OfTheLogoThatEndWhereTheyBeganAreNoStepEither) {
  const auto put = [](float left) {
    return [left](Layout& layout) { layout.logo = tests::LogoAt({left, 0, 100, 100}); };
  };
  document.Adjust(put(0));
  document.BeginGesture();
  document.Edit(put(50));
  document.Edit(put(0));
  document.EndGesture();
  EXPECT_FALSE(document.Undo());
}

TEST_F(Gestures, CancelledLeaveNoTrace) {
  document.Edit(Left(1));
  document.Edit(Left(2));
  document.Undo();
  document.ClearModified();
  const Layout before = document.Current();
  document.BeginGesture();
  document.Edit(Left(3));
  document.CancelGesture();
  EXPECT_EQ(document.Current(), before);
  EXPECT_FALSE(document.Modified());
  EXPECT_TRUE(document.Redo());
  EXPECT_EQ(LeftOfField(), 2);
}

TEST_F(Gestures, CancelledKeepAnEarlierModifiedMark) {
  document.MarkModified();
  document.BeginGesture();
  document.Edit(Left(3));
  document.CancelGesture();
  EXPECT_TRUE(document.Modified());
}

TEST_F(EditsInARun, BelongToTheStepBefore) {
  document.EditInRun(Left(1), false);
  document.EditInRun(Left(2), true);
  document.EditInRun(Left(3), true);
  document.Undo();
  EXPECT_EQ(LeftOfField(), 1000);
  document.Redo();
  EXPECT_EQ(LeftOfField(), 3);
}

TEST_F(EditsInARun, MarkTheModelModifiedAlsoWhenItWasSavedBetween) {
  document.EditInRun(Left(1), false);
  document.ClearModified();
  document.EditInRun(Left(1), true);
  EXPECT_FALSE(document.Modified()) << "nothing changed";
  document.EditInRun(Left(2), true);
  EXPECT_TRUE(document.Modified());
}

TEST_F(EditsInARun, AreAStepOfTheirOwnAfterAnythingElse) {
  document.Edit(Left(1));
  document.EditInRun(Left(2), true);
  document.Undo();
  document.EditInRun(Left(3), true);
  document.Select(1);
  document.EditInRun(Left(4), true);
  document.BeginGesture();
  document.Edit(Left(5));
  document.EndGesture();
  document.EditInRun(Left(6), true);
  document.EditInRun(Left(6), false);  // changes nothing, so that it is no step to go on with
  document.EditInRun(Left(7), true);
  std::vector<float> lefts;
  while (document.Undo()) lefts.push_back(LeftOfField());
  EXPECT_THAT(lefts, testing::ElementsAre(6, 5, 4, 3, 1, 1000));
}

}  // namespace
}  // namespace qm::designer
