#include "model/well_formed.h"

#include <gtest/gtest.h>

#include <string>

namespace qm::model {
namespace {

using namespace std::string_view_literals;

XmlShape Examine(std::string_view text) { return Outline(text).shape; }

std::string Nested(std::size_t depth) {
  std::string text;
  for (std::size_t i = 0; i < depth; ++i) text += "<a>";
  for (std::size_t i = 0; i < depth; ++i) text += "</a>";
  return text;
}

TEST(WellFormedXml, IsTakenWithItsRootFirst) {
  const std::string_view texts[] = {
      "<a/>",
      "<a></a>",
      "  \r\n<a/>\n\t",
      "<a b='1' c=\"2\"\n d = '>'/>",
      "<a b='\"' c=\"'\"/>",
      "<a.-_1:b xmlns:x='y'/>",
      "<A\xF1o \xC1rea='1'/>",  // letters of the code page in names
      "<a>text > ]] ]> &amp;&lt;&gt;&quot;&apos;&#65;&#x20aC;&#x10FFFF;</a>",
      "<a b='&#9;&#10;&#13;&amp;'/>",
      "<a><![CDATA[<b> & ]] > ]]></a>",
      "<a><!-- - <b> & --><?x?><?y z?><?xml-stylesheet a?></a>",
      "<a/><!-- after --><?x?>",
      "<a>\x81\x8D\x8F\x90\x9D\x7F</a>",
      "<a></a >",
  };
  for (const std::string_view text : texts) EXPECT_EQ(Examine(text), XmlShape::RootComesFirst) << text;
}

TEST(WellFormedXml, MayHaveSomethingBeforeItsRoot) {
  const std::string_view texts[] = {
      "<?xml version=\"1.0\"?><a/>",
      "<?xml version=\"1.0\" encoding=\"windows-1252\" standalone=\"yes\"?>\r\n<a/>",
      "<!-- c --><a/>",
      " <?x y?><a/>",
      "<!DOCTYPE a><a/>",
      "<!DOCTYPE a SYSTEM \"a'>.dtd\" [<!ENTITY e \"]>\"><!-- ]> ' --> <?p ]?>]><a/>",
  };
  for (const std::string_view text : texts) EXPECT_EQ(Examine(text), XmlShape::OtherNodeFirst) << text;
}

struct IllFormedRow {
  const char* why;
  std::string_view text;
};

TEST(IllFormedXml, IsRecognised) {
  const IllFormedRow rows[] = {
      {"empty", ""},
      {"blanks only", " \r\n"},
      {"no markup", "hola"},
      {"text before the root", "hola<a/>"},
      {"a UTF-8 mark before the root", "\xEF\xBB\xBF<a/>"},
      {"text behind the root", "<a/>hola"},
      {"a reference behind the root", "<a/>&amp;"},
      {"two roots", "<a/><b/>"},
      {"only a comment", "<!-- c -->"},
      {"only a declaration", "<?xml version='1.0'?>"},
      {"a declaration that is not at the very start", " <?xml version='1.0'?><a/>"},
      {"a declaration inside", "<a><?xml version='1.0'?></a>"},
      {"a declaration in capitals", "<?XML version='1.0'?><a/>"},
      {"never closed", "<a>"},
      {"cut in a tag", "<a"},
      {"cut in an attribute", "<a b='1"},
      {"cut in a closing tag", "<a></a"},
      {"closed by another name", "<a></b>"},
      {"closed by a longer name", "<a></ab>"},
      {"closed by a shorter name", "<ab></a>"},
      {"closed in another case", "<a></A>"},
      {"crossed", "<a><b></a></b>"},
      {"closed once too often", "<a></a></a>"},
      {"blank before the name", "< a/>"},
      {"name beginning with a digit", "<1a/>"},
      {"no name", "<>"},
      {"attribute twice", "<a b='1' b='2'/>"},
      {"attribute twice among many", "<a c='1' b='1' d='1' b='2'/>"},
      {"attribute without value", "<a b/>"},
      {"attribute without quotes", "<a b=1/>"},
      {"attributes without a blank between", "<a b='1'c='2'/>"},
      {"less-than in an attribute", "<a b='<'/>"},
      {"slash without end", "<a / >"},
      {"entity that XML does not know", "<a>&nbsp;</a>"},
      {"entity of a document type", "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>"},
      {"entity in an attribute", "<a b='&ntilde;'/>"},
      {"lone ampersand", "<a>Pérez & hijos</a>"},
      {"ampersand at the end of a name", "<a>&amp</a>"},
      {"reference without digits", "<a>&#;</a>"},
      {"reference with a capital X", "<a>&#X41;</a>"},
      {"hexadecimal digit in a decimal reference", "<a>&#4A;</a>"},
      {"reference to a forbidden character", "<a>&#11;</a>"},
      {"reference to half a pair", "<a>&#xD800;</a>"},
      {"reference to no character", "<a>&#xFFFE;</a>"},
      {"reference beyond Unicode", "<a>&#x110000;</a>"},
      {"reference whose number wraps around", "<a>&#4294967361;</a>"},
      {"control character in a text", "<a>\x01</a>"},
      {"null character in a text", "<a>\0</a>"sv},
      {"null character in a name", "<a\0/>"sv},
      {"null character behind the root", "<a/>\0"sv},
      {"control character in an attribute", "<a b='\x0B'/>"},
      {"control character in a comment", "<a><!-- \x02 --></a>"},
      {"control character in character data", "<a><![CDATA[\x02]]></a>"},
      {"end of character data in a text", "<a>]]></a>"},
      {"character data never closed", "<a><![CDATA[x]]</a>"},
      {"character data outside the root", "<![CDATA[x]]><a/>"},
      {"two hyphens in a comment", "<a><!-- -- --></a>"},
      {"comment with three closing hyphens", "<a><!-- ---></a>"},
      {"comment never closed", "<a><!-- </a>"},
      {"instruction without name", "<a><?\?></a>"},
      {"instruction never closed", "<a><?x </a>"},
      {"document type inside", "<a><!DOCTYPE a></a>"},
      {"two document types", "<!DOCTYPE a><!DOCTYPE a><a/>"},
      {"document type never closed", "<!DOCTYPE a [<a/>"},
      {"document type without name", "<!DOCTYPE><a/>"},
      {"document type behind the root", "<a/><!DOCTYPE a>"},
  };
  for (const IllFormedRow& row : rows) EXPECT_EQ(Examine(row.text), XmlShape::IllFormed) << row.why;
}

TEST(DeepXml, IsTakenDownToTwoHundredAndFiftySixElements) {
  EXPECT_EQ(Examine(Nested(256)), XmlShape::RootComesFirst);
  EXPECT_EQ(Examine(Nested(257)), XmlShape::IllFormed);
}

TEST(DeepXml, CountsNestingAndNotElements) {
  std::string text = "<a>";
  for (int i = 0; i < 1000; ++i) text += "<b><c/></b>";
  EXPECT_EQ(Examine(text + "</a>"), XmlShape::RootComesFirst);
}

TEST(DeepXml, IsRejectedWithoutExhaustingTheStack) {
  std::string text;
  while (text.size() < 1 << 20) text += "<a>";
  EXPECT_EQ(Examine(text), XmlShape::IllFormed);
  EXPECT_EQ(Examine(Nested(1 << 18)), XmlShape::IllFormed);
}

TEST(HugeXml, WithAHundredThousandAttributesInATagIsExaminedAtOnce) {
  std::string text = "<a";
  for (int i = 0; i < 100000; ++i) text += " b" + std::to_string(i) + "='1'";
  EXPECT_EQ(Examine(text + "/>"), XmlShape::RootComesFirst);
  EXPECT_EQ(Examine(text + " b7='2'/>"), XmlShape::IllFormed);
}

}  // namespace
}  // namespace qm::model
