#include "designer/property_store.h"

#include <gmock/gmock.h>

#include "tests/designer/layouts.h"
#include "tests/error_of.h"
#include "tests/fakes/scripted_dialogs.h"

namespace qm::designer {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct CopyingProperties : testing::Test {
  Document document;
  fakes::ScriptedDialogs dialogs;
  PropertyStore store;

  CopyingProperties() {
    document.Start(tests::PageWith(
        {{1000, 2000, 600, 300}, {3000, 4000, 800, 240}, {5000, 6000, 900, 350}, {7000, 8000, 950, 400}}));
    document.Adjust([](Layout& layout) {
      ChangeField(layout, 1, [](Field& field) {
        field.font = {.name = u"Courier New", .size = 8.25F, .bold = true, .foreColor = 255};
        field.tag = u"3";
        field.alignment = 1;
      });
    });
  }
  void Copy(int index, int kind) {
    document.Select(index);
    store.Copy(document, kind, dialogs);
  }
  void Paste(int index) {
    document.Select(index);
    store.Paste(document);
  }
  Box BoxOf(int index) const { return document.Current().At(index)->box; }
};

TEST_F(CopyingProperties, TheTopPastedOnThreeFieldsLinesFourUpOnOneRow) {
  Copy(1, 0);
  for (const int index : {2, 3, 4}) Paste(index);
  EXPECT_EQ(BoxOf(2), (Box{3000, 2000, 800, 240}));
  EXPECT_EQ(BoxOf(3), (Box{5000, 2000, 900, 350}));
  EXPECT_EQ(BoxOf(4), (Box{7000, 2000, 950, 400}));
}

TEST_F(CopyingProperties, LeftWidthAndHeightAreOneEach) {
  Copy(1, 1);
  Paste(2);
  EXPECT_EQ(BoxOf(2), (Box{1000, 4000, 800, 240}));
  Copy(1, 2);
  Paste(3);
  EXPECT_EQ(BoxOf(3), (Box{5000, 6000, 600, 350}));
  Copy(1, 3);
  Paste(4);
  EXPECT_EQ(BoxOf(4), (Box{7000, 8000, 950, 300}));
}

TEST_F(CopyingProperties, TheFontComesWithItsSizeAndTheFormatAndNothingElse) {
  Copy(1, 4);
  Paste(2);
  const Field& pasted = *document.Current().At(2);
  EXPECT_EQ(pasted.font, (FieldFont{.name = u"Courier New", .size = 8.25F}));
  EXPECT_EQ(pasted.tag, u"3");
  EXPECT_EQ(pasted.alignment, 0);
  EXPECT_EQ(pasted.box, (Box{3000, 4000, 800, 240}));
}

TEST_F(CopyingProperties, TheFormatOfAPlainTextReplacesANumericOne) {
  Copy(2, 4);
  Paste(1);
  EXPECT_EQ(document.Current().At(1)->tag, u"");
  EXPECT_TRUE(document.Current().At(1)->font.bold);
}

TEST_F(CopyingProperties, AChosenSetIsAskedForWithTheDialogsOwnNames) {
  Copy(1, 5);
  EXPECT_THAT(dialogs.askedChecks,
              ElementsAre(fakes::ScriptedDialogs::AskedChecks{
                  u"Propiedad a Copiar", {u"Alto", u"Izquierda", u"Largo", u"Ancho", u"Fuente"}}));
}

TEST_F(CopyingProperties, WithOnlyLargoTickedPastingChangesOnlyTheWidth) {
  dialogs.checks = {std::vector<bool>{false, false, true, false, false}};
  Copy(1, 5);
  const Field before = *document.Current().At(2);
  Paste(2);
  Field expected = before;
  expected.box.width = 600;
  EXPECT_EQ(*document.Current().At(2), expected);
}

TEST_F(CopyingProperties, EachTickIsOfItsProperty) {
  const std::vector<Box> boxes = {{3000, 2000, 800, 240},
                                  {1000, 4000, 800, 240},
                                  {3000, 4000, 600, 240},
                                  {3000, 4000, 800, 300},
                                  {3000, 4000, 800, 240}};
  for (std::size_t option = 0; option < 5; ++option) {
    std::vector<bool> ticks(5);
    ticks[option] = true;
    dialogs.checks = {ticks};
    Copy(1, 5);
    Paste(2);
    EXPECT_EQ(BoxOf(2), boxes[option]) << option;
    EXPECT_EQ(document.Current().At(2)->tag, option == 4 ? u"3" : u"") << option;
    document.Undo();
  }
}

TEST_F(CopyingProperties, AllTicksTogetherPasteAllFive) {
  dialogs.checks = {std::vector<bool>(5, true)};
  Copy(1, 5);
  Paste(2);
  EXPECT_EQ(BoxOf(2), (Box{1000, 2000, 600, 300}));
  EXPECT_EQ(document.Current().At(2)->font.name, u"Courier New");
}

TEST_F(CopyingProperties, ACancelledChoiceLeavesTheEarlierCopy) {
  Copy(1, 0);
  Copy(2, 5);
  Paste(3);
  EXPECT_EQ(BoxOf(3), (Box{5000, 2000, 900, 350}));
}

TEST_F(CopyingProperties, ACopyHoldsUntilTheNextAlsoWhenItsFieldIsGone) {
  Copy(1, 1);
  document.Edit([](Layout& layout) { layout.men[1] = nullptr; });
  Paste(2);
  EXPECT_EQ(BoxOf(2).left, 1000);
  Copy(3, 2);
  Paste(2);
  EXPECT_EQ(BoxOf(2), (Box{1000, 4000, 900, 240}));
}

TEST_F(CopyingProperties, WithNothingCopiedPastesNothing) {
  const Layout before = document.Current();
  Paste(2);
  EXPECT_EQ(document.Current(), before);
  EXPECT_FALSE(document.Modified());
}

TEST_F(CopyingProperties, WithNothingSelectedNothingIsAskedCopiedOrPasted) {
  Copy(0, 5);
  EXPECT_THAT(dialogs.askedChecks, IsEmpty());
  Copy(1, 0);
  Copy(0, 1);
  const Layout before = document.Current();
  Paste(0);
  EXPECT_EQ(document.Current(), before);
  Paste(2);
  EXPECT_EQ(BoxOf(2), (Box{3000, 2000, 800, 240})) << "the top copied first";
}

TEST_F(CopyingProperties, APasteMarksTheModelModifiedAndIsOneStepOfUndo) {
  dialogs.checks = {std::vector<bool>(5, true)};
  Copy(1, 5);
  EXPECT_FALSE(document.Modified());
  Paste(2);
  EXPECT_TRUE(document.Modified());
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(BoxOf(2), (Box{3000, 4000, 800, 240}));
  EXPECT_EQ(document.Current().At(2)->font.name, u"Arial");
  EXPECT_FALSE(document.Undo());
}

TEST_F(CopyingProperties, PastedOnTheFieldItselfMarksTheModelAsWell) {
  Copy(1, 0);
  Paste(1);
  EXPECT_TRUE(document.Modified());
}

TEST_F(CopyingProperties, PositionsAreWholeTwipsRoundedToEven) {
  document.Adjust(
      [](Layout& layout) { ChangeField(layout, 1, [](Field& field) { field.box.left = 1000.5F; }); });
  Copy(1, 1);
  Paste(2);
  EXPECT_EQ(BoxOf(2).left, 1000);
}

TEST_F(CopyingProperties, PositionsBeyond16BitsCannotBeCopiedAndTheEarlierCopyStays) {
  document.Adjust([](Layout& layout) {
    ChangeField(layout, 3, [](Field& field) { field.box.left = 32768; });
    ChangeField(layout, 4, [](Field& field) { field.box.left = 32767; });
  });
  Copy(1, 0);
  EXPECT_EQ(tests::ErrorOf([&] { Copy(3, 1); }), 6);
  Paste(2);
  EXPECT_EQ(BoxOf(2).top, 2000);
  Copy(3, 0);  // the top is within them
  Copy(4, 1);
  Paste(2);
  EXPECT_EQ(BoxOf(2).left, 32767);
}

}  // namespace
}  // namespace qm::designer
