#include "model/model_reader.h"

#include <gtest/gtest.h>

namespace qm::model {
namespace {

TEST(ReadingAField, LeavesOutElementsThatTheFormatDoesNotKnow) {
  const ModelTexts model = ReadModel(
      "<Modelo><Campo>suelto<Top>1</Top><Nota>n<Top>2</Top></Nota><top>3</top><Left/>"
      "</Campo><Otro><Top>4</Top></Otro><Campo/></Modelo>");
  ASSERT_EQ(model.fields.size(), 2U);
  ASSERT_EQ(model.fields[0].size(), 2U);
  EXPECT_EQ(model.fields[0][0].element, FieldElement::Top);
  EXPECT_EQ(model.fields[0][0].text, u"1");
  EXPECT_EQ(model.fields[0][1].element, FieldElement::Left);
  EXPECT_EQ(model.fields[0][1].text, u"");
  EXPECT_TRUE(model.fields[1].empty());
}

TEST(ReadingAField, KeepsElementsInTheirOrderAlsoWhenOneComesTwice) {
  const ModelTexts model =
      ReadModel("<Modelo><Campo><Left>1</Left><Top>2</Top><Left>3</Left></Campo></Modelo>");
  ASSERT_EQ(model.fields[0].size(), 3U);
  EXPECT_EQ(model.fields[0][0].text, u"1");
  EXPECT_EQ(model.fields[0][1].text, u"2");
  EXPECT_EQ(model.fields[0][2].text, u"3");
}

}  // namespace
}  // namespace qm::model
