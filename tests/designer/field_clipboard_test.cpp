#include "designer/field_clipboard.h"

#include <gmock/gmock.h>

#include "tests/designer/layouts.h"

namespace qm::designer {
namespace {

struct CopyingFields : testing::Test {
  Document document;
  FieldClipboard clipboard;

  CopyingFields() {
    document.Start(tests::PageWith({{1000, 2000, 600, 300}, {3000, 4000, 800, 240}}));
    document.Adjust([](Layout& layout) {
      ChangeField(layout, 1, [](Field& field) {
        field.caption = u"#Total";
        field.font = {.name = u"Courier New", .size = 8.25F, .bold = true, .foreColor = 255};
        field.tag = u"3";
        field.alignment = 1;
      });
    });
  }
  void Copy(int index) {
    document.Select(index);
    clipboard.Copy(document);
  }
  Box BoxOf(int index) const { return document.Current().At(index)->box; }
};

TEST_F(CopyingFields, APastedFieldHasAllOfTheOriginalAndLiesBesideItSelected) {
  Copy(1);
  clipboard.Paste(document);
  EXPECT_EQ(document.Selected(), 3);
  Field expected = *document.Current().At(1);
  expected.box = {1015, 2015, 600, 300};
  EXPECT_EQ(*document.Current().At(3), expected);
}

TEST_F(CopyingFields, EachPasteLiesAStepFarther) {
  Copy(1);
  for (int i = 0; i < 3; ++i) clipboard.Paste(document);
  EXPECT_EQ(BoxOf(3), (Box{1015, 2015, 600, 300}));
  EXPECT_EQ(BoxOf(4), (Box{1030, 2030, 600, 300}));
  EXPECT_EQ(BoxOf(5), (Box{1045, 2045, 600, 300}));
}

TEST_F(CopyingFields, AnUndonePasteGivesItsPlaceBack) {
  Copy(1);
  clipboard.Paste(document);
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(document.Current().At(3), nullptr);
  EXPECT_FALSE(document.Undo()) << "one step";
  clipboard.Paste(document);
  EXPECT_EQ(BoxOf(3), (Box{1015, 2015, 600, 300}));
}

TEST_F(CopyingFields, AFieldThatWasDeletedComesBackWhereItStood) {
  Copy(2);
  document.Edit([](Layout& layout) { layout.men[2] = nullptr; });
  clipboard.Paste(document);
  EXPECT_EQ(document.Selected(), 2) << "behind the highest index that is in use";
  EXPECT_EQ(BoxOf(2), (Box{3000, 4000, 800, 240}));
}

TEST_F(CopyingFields, GapsBeforeTheHighestIndexStay) {
  Copy(1);
  document.Edit([](Layout& layout) { layout.men[1] = nullptr; });
  clipboard.Paste(document);
  EXPECT_EQ(document.Selected(), 3);
  EXPECT_EQ(document.Current().At(1), nullptr);
}

TEST_F(CopyingFields, WhatWasCopiedIsAsItWasThen) {
  Copy(1);
  document.Edit(
      [](Layout& layout) { ChangeField(layout, 1, [](Field& field) { field.caption = u"OTRO"; }); });
  clipboard.Paste(document);
  EXPECT_EQ(document.Current().At(3)->caption, u"#Total");
}

TEST_F(CopyingFields, APasteIntoAnotherModelStandsAtTheSamePlace) {
  Copy(1);
  document.Start(tests::PageWith({}));
  clipboard.Paste(document);
  EXPECT_EQ(document.Selected(), 1);
  EXPECT_EQ(BoxOf(1), (Box{1000, 2000, 600, 300}));
  EXPECT_TRUE(document.Modified());
}

TEST_F(CopyingFields, WithNothingSelectedTheEarlierCopyStays) {
  clipboard.Paste(document);
  EXPECT_FALSE(document.Modified());
  Copy(1);
  Copy(0);
  document.SelectLogo();
  clipboard.Copy(document);
  clipboard.Paste(document);
  EXPECT_EQ(document.Current().At(3)->caption, u"#Total");
}

TEST_F(CopyingFields, FieldsTooFarAwayForASmallStepEndTheSearchForAFreePlace) {
  document.Start(tests::PageWith({{4e9F, 4e9F, 600, 300}}));
  Copy(1);
  clipboard.Paste(document);
  EXPECT_EQ(document.Selected(), 2);
}

}  // namespace
}  // namespace qm::designer
