#include <gtest/gtest.h>

#include "model/document.h"
#include "print/text/text_helpers.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace qm::model {
namespace {

int ErrorOfFinding(std::string_view bytes, std::int32_t numero = 1) {
  const ModelDocument document = ModelDocument::Parse(bytes);
  try {
    (void)document.Find(numero);
  } catch (const runtime::RuntimeError& error) {
    return error.number();
  }
  return 0;
}

// The text of attribute "A" of the model with that number, "-" when there is no such model.
std::u16string AttributeA(std::string_view bytes, std::int32_t numero) {
  const auto model = ModelDocument::Parse(bytes).Find(numero);
  return model ? std::u16string(model->Attribute(u"A")) : u"-";
}

// The description of the only field, of model 1 with this content.
std::u16string OnlyText(std::string_view content) {
  const auto model = ModelDocument::Parse("<Modelos><Modelo Numero='1'><Campo><Descripcion>" +
                                          std::string(content) + "</Descripcion></Campo></Modelo></Modelos>")
                         .Find(1);
  return model->fields.at(0).at(0).text;
}

TEST(FindingAModel, GivesItsAttributesAndFieldsInDocumentOrder) {
  const auto model = ModelDocument::Parse(
                         "<Modelos>\r\n <Modelo Numero=\"2\" Width=\"11905,5\" Printer=\"HP L\xE1ser\">\r\n"
                         "  <Campo Key=\"1\"><Descripcion>NOMBRE</Descripcion><Top>1440</Top></Campo>\r\n"
                         "  <Otro><Top>1</Top></Otro>\r\n"
                         "  <Campo><Left>5</Left></Campo>\r\n"
                         " </Modelo>\r\n</Modelos>\r\n")
                         .Find(2);
  ASSERT_TRUE(model);
  ASSERT_EQ(model->attributes.size(), 3U);
  EXPECT_EQ(model->attributes[0].name, u"Numero");
  EXPECT_EQ(model->attributes[1].text, u"11905,5");
  EXPECT_EQ(model->Attribute(u"Printer"), u"HP Láser");
  EXPECT_EQ(model->Attribute(u"printer"), u"");
  ASSERT_EQ(model->fields.size(), 2U);
  ASSERT_EQ(model->fields[0].size(), 2U);
  EXPECT_EQ(model->fields[0][0].element, FieldElement::Descripcion);
  EXPECT_EQ(model->fields[0][0].text, u"NOMBRE");
  EXPECT_EQ(model->fields[0][1].text, u"1440");
  EXPECT_EQ(model->fields[1][0].element, FieldElement::Left);
}

TEST(FindingAModel, TakesTheFirstOfANumber) {
  EXPECT_EQ(AttributeA("<M><x Numero='1' A='uno'/><x Numero='3' A='tres'/><x Numero='3' A='otro'/></M>", 3),
            u"tres");
}

TEST(FindingAModel, TakesAnElementOfAnyNameUnderARootOfAnyName) {
  EXPECT_EQ(AttributeA("<Cosa><Algo Numero='3' A='ok'/></Cosa>", 3), u"ok");
}

TEST(FindingAModel, LooksAtChildrenOfTheRootOnly) {
  EXPECT_EQ(AttributeA("<M Numero='3' A='raíz'><g><x Numero='3' A='nieto'/></g></M>", 3), u"-");
}

TEST(FindingAModel, ComparesNumbersAndNotTexts) {
  const std::pair<const char*, bool> rows[] = {{"3", true},
                                               {" 3 ", true},
                                               {"03", true},
                                               {"3.0", true},
                                               {"3.", true},
                                               {"&#9;3&#10;", true},
                                               {"3,0", false},
                                               {"+3", false},
                                               {"3e0", false},
                                               {"3.1", false},
                                               {"", false},
                                               {"tres", false},
                                               {"3 3", false},
                                               {"0x3", false},
                                               {"-3", false},
                                               {"3-", false},
                                               {"3.0.0", false},
                                               {"\xA0"
                                                "3",
                                                false},
                                               {"33", false},
                                               {"30", false},
                                               {"inf", false},
                                               {".", false},
                                               {"-", false}};
  for (const auto& [text, found] : rows)
    EXPECT_EQ(AttributeA(std::string("<M><x Numero='") + text + "' A='ok'/></M>", 3), found ? u"ok" : u"-")
        << text;
}

TEST(FindingAModel, KnowsNegativeAndHugeNumbers) {
  EXPECT_EQ(AttributeA("<M><x Numero='-5' A='ok'/></M>", -5), u"ok");
  EXPECT_EQ(AttributeA("<M><x Numero='- 5' A='ok'/></M>", -5), u"-");
  EXPECT_EQ(AttributeA("<M><x Numero='2147483647' A='ok'/></M>", 2147483647), u"ok");
  EXPECT_EQ(AttributeA("<M><x Numero='.5' A='a'/><x Numero='-0' A='cero'/></M>", 0), u"cero");
  EXPECT_EQ(AttributeA("<M><x Numero='" + std::string(400, '9') + "' A='a'/></M>", 9), u"-");
}

TEST(FindingAModel, TellsNumeroByItsExactName) {
  EXPECT_EQ(AttributeA("<M><x numero='3' A='a'/><x NUMERO='3' A='a'/></M>", 3), u"-");
}

TEST(FindingAModel, FindsNothingInAnEmptyFile) { EXPECT_FALSE(ModelDocument::Parse("").Find(1)); }

TEST(FindingAModel, FindsNothingWhenSomethingStandsBeforeTheRoot) {
  const std::string model = "<Modelos><Modelo Numero='1'/></Modelos>";
  for (const char* before : {"<?xml version='1.0'?>", "<!-- modelos -->", "<?x?>", "<!DOCTYPE Modelos>"})
    EXPECT_FALSE(ModelDocument::Parse(before + model).Find(1)) << before;
  EXPECT_TRUE(ModelDocument::Parse("\r\n " + model).Find(1));
}

TEST(FindingAModel, FailsInATextThatIsNoXml) {
  EXPECT_EQ(ErrorOfFinding("hola"), 91);
  EXPECT_EQ(ErrorOfFinding(" "), 91);
  EXPECT_EQ(ErrorOfFinding("<Modelos><Modelo Numero='1'>"), 91);
  EXPECT_EQ(ErrorOfFinding("<Modelos><Modelo Numero='1'/></Modelos>x"), 91);
  EXPECT_EQ(ErrorOfFinding("<Modelos><Modelo Numero='1' Printer='&nbsp;'/></Modelos>"), 91);
  EXPECT_EQ(ErrorOfFinding("<?xml version='1.0'?><Modelos>"), 91);
}

TEST(FindingAModel, FailsInADeeplyNestedTextInsteadOfExhaustingTheStack) {
  std::string deep;
  while (deep.size() < 1 << 20) deep += "<a>";
  EXPECT_EQ(ErrorOfFinding(deep), 91);
}

TEST(ElementTexts, AreKeptAsTheyAre) {
  EXPECT_EQ(OnlyText("  dos  "), u"  dos  ");
  EXPECT_EQ(OnlyText("   "), u"   ");
  EXPECT_EQ(OnlyText(""), u"");
  EXPECT_EQ(OnlyText("a\tb"), u"a\tb");
  EXPECT_EQ(OnlyText("\x80\x81\xD1"), u"€\u0081Ñ");
  EXPECT_EQ(OnlyText("&lt;&#241;&#x20AC;&#x1F600;&amp;amp;"), u"<ñ€\U0001F600&amp;");
}

TEST(ElementTexts, HaveLineFeedsForLineEnds) { EXPECT_EQ(OnlyText("a\r\nb\rc\nd&#13;e"), u"a\nb\nc\nd\re"); }

TEST(ElementTexts, JoinTextCharacterDataAndInnerElementsWithoutComments) {
  EXPECT_EQ(OnlyText("a<![CDATA[<&b]]>c<!-- no --><?no?><i>d<i>e</i></i>"), u"a<&bcde");
}

TEST(AttributeTexts, HaveBlanksForLineEndsAndTabs) {
  EXPECT_EQ(AttributeA("<M><x Numero='1' A='a\tb\r\nc&#10;d  e'/></M>", 1), u"a b c\nd  e");
}

TEST(Names, AreGivenWithoutTheirPrefix) {
  const auto model =
      ModelDocument::Parse(
          "<p:M xmlns:p='urn:p'><p:x Numero='1' p:A='ok'><p:Campo><p:Top>7</p:Top></p:Campo></p:x></p:M>")
          .Find(1);
  ASSERT_TRUE(model);
  EXPECT_FALSE(model->Attribute(u"A").empty());
  EXPECT_EQ(model->fields.at(0).at(0).element, FieldElement::Top);
}

TEST(WidthsOfModels, ReadTheSameWithCommaAndPoint) {
  for (const char* width : {"11905,5", "11905.5"}) {
    const auto model =
        ModelDocument::Parse("<Modelos><Modelo Numero='1' Width='" + std::string(width) + "'/></Modelos>")
            .Find(1);
    EXPECT_EQ(text::ParseNumber(model->Attribute(u"Width"), runtime::Locale::Spanish()), 11905.5);
  }
}

TEST(BoldOfFields, IsTrueForTheWordsOfBothLanguages) {
  const std::pair<const char*, bool> rows[] = {{"VERDADERO", true}, {"TRUE", true},   {"verdadero", true},
                                               {"-1", true},        {"Falso", false}, {"SI", false},
                                               {"negrita", false}};
  for (const auto& [word, bold] : rows)
    EXPECT_EQ(text::ParseBoolean(OnlyText(word), runtime::Locale::Spanish()), bold) << word;
}

}  // namespace
}  // namespace qm::model
