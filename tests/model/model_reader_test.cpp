#include "model/model_reader.h"

#include <gtest/gtest.h>

#include <random>

#include "model/well_formed.h"
#include "tests/model/library_reader.h"

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

// Markup at random, most of it well-formed by construction.
class RandomModel {
 public:
  explicit RandomModel(unsigned seed) : random_(seed) {}

  std::string Next() { return "<M><Modelo" + Attributes() + ">" + Content(0) + "</Modelo></M>"; }

 private:
  template <std::size_t n>
  const char* OneOf(const char* const (&texts)[n]) {
    return texts[random_() % n];
  }

  std::string Attributes() {
    static constexpr const char* kTexts[] = {"",   " A='\t\r\n'", " p:B = \"a&amp;\n'b\"", " Numero='&#49;'",
                                             "\n", " C='&#13;x'"};
    return OneOf(kTexts);
  }

  std::string Content(int depth) {
    static constexpr const char* kNames[] = {"Campo", "Campo", "p:Campo", "Top", "Descripcion", "Otro"};
    static constexpr const char* kTexts[] = {
        " ",     "\r\n",       "texto",          "a\r\nb\rc",
        "\xD1>", "&lt;&#x80;", "<!-- <Top> -->", "<![CDATA[ <&amp;]] ]]>",
        "<?p?>", "&#x1F600;",  "&#32;",          "<Left/>"};
    std::string text;
    for (auto parts = random_() % 5; parts > 0; --parts) {
      if (depth >= 5 || random_() % 2 == 0) {
        text += OneOf(kTexts);
      } else {
        const std::string name = OneOf(kNames);
        text += "<" + name + Attributes() + ">" + Content(depth + 1) + "</" + name + " >";
      }
    }
    return text;
  }

  std::mt19937 random_;
};

TEST(ReadingAModel, GivesTheSameTextsAsTheXmlLibrary) {
  RandomModel models(2015);
  int fields = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string bytes = models.Next();
    const XmlOutline outline = Outline(bytes);
    ASSERT_EQ(outline.shape, XmlShape::RootComesFirst) << bytes;
    const ModelTexts read = ReadModel(outline.children.at(0).whole);
    ASSERT_TRUE(SameTexts(read, ReadByLibrary(outline.children.at(0).whole))) << bytes;
    fields += static_cast<int>(read.fields.size());
  }
  EXPECT_GT(fields, 1000);
}

}  // namespace
}  // namespace qm::model
