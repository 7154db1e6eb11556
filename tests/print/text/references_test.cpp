#include "print/text/references.h"

#include <gtest/gtest.h>

namespace qm::text {
namespace {

constexpr std::u16string_view kFolder = u"C:\\html\\";

std::u16string Files(std::u16string_view html) { return ReferencedFiles(html, kFolder); }

TEST(ReferencedFiles, AreListedUnderTheFolderInCapitals) {
  EXPECT_EQ(Files(u"<img src=\"logo.gif\">"), u"C:\\html\\LOGO.GIF");
}

TEST(ReferencedFiles, ComeFromSrcFirstAndThenFromBackground) {
  EXPECT_EQ(Files(u"<body background=\"fondo.jpg\"><img src=\"a.gif\"><img src=\"b.gif\">"),
            u"C:\\html\\A.GIF;C:\\html\\B.GIF;C:\\html\\FONDO.JPG");
}

TEST(ReferencedFiles, OfAnotherMachineAreSkippedInAnyCase) {
  EXPECT_EQ(Files(u"<img src=\"http://host/a.gif\"><img src=\"Https://host/b.gif\"><img src=\"c.gif\">"),
            u"C:\\html\\C.GIF");
}

TEST(ReferencedFiles, LoseEveryFilePrefixButGetTheFolderEvenWhenAbsolute) {
  EXPECT_EQ(Files(u"<img src=\"file:file:a.gif\">"), u"C:\\html\\A.GIF");
  EXPECT_EQ(Files(u"<img src=\"file:///D:/fotos/a.gif\">"), u"C:\\html\\\\\\\\D:\\FOTOS\\A.GIF");
}

TEST(ReferencedFiles, AreDecodedOnceFromLeftToRight) {
  EXPECT_EQ(Files(u"<img src=\"mi%20logo%2Egif\">"), u"C:\\html\\MI LOGO.GIF");
  EXPECT_EQ(Files(u"<img src=\"a%2520b.gif\">"), u"C:\\html\\A%20B.GIF");  // the result is not decoded again
  EXPECT_EQ(Files(u"<img src=\"Espa%f1a.gif\">"), u"C:\\html\\ESPAñA.GIF");  // capitals come first
  EXPECT_EQ(Files(u"<img src=\"100%.gif\">"), u"C:\\html\\100%.GIF");
  EXPECT_EQ(Files(u"<img src=\"a%2\">"), u"C:\\html\\A%2");
  EXPECT_EQ(Files(u"<img src=\"a%41\">"), u"C:\\html\\AA");
}

TEST(ReferencedFiles, TurnSlashesAndKeepFoldersBelowAndAbove) {
  EXPECT_EQ(Files(u"<img src=\"img/logo.gif\"><img src=\"../a.gif\">"),
            u"C:\\html\\IMG\\LOGO.GIF;C:\\html\\..\\A.GIF");
}

TEST(ReferencedFiles, AreListedOnceAlsoWhenOneIsPartOfAnother) {
  EXPECT_EQ(Files(u"<img src=\"a.gif\"><img src=\"A.GIF\">"), u"C:\\html\\A.GIF");
  EXPECT_EQ(Files(u"<img src=\"casa.gif\"><img src=\"a.gif\">"), u"C:\\html\\CASA.GIF");
  // Compared as written, with the list of decoded names: the same file comes twice.
  EXPECT_EQ(Files(u"<img src=\"a%20b.gif\"><img src=\"a%20b.gif\">"), u"C:\\html\\A B.GIF;C:\\html\\A B.GIF");
}

TEST(ReferencedFiles, EndAtAValueWithoutItsClosingQuote) {
  EXPECT_EQ(Files(u"<img src=\"a.gif\"><img src=\"b.gif>"), u"C:\\html\\A.GIF");
  EXPECT_EQ(Files(u"<img src=a.gif>"), u"");
}

TEST(ReferencedFiles, TakeTheNextQuotedValueForAnUnquotedOne) {
  EXPECT_EQ(Files(u"<img src=a.gif><img src=\"b.gif\"><img src=\"c.gif\">"),
            u"C:\\html\\B.GIF;C:\\html\\C.GIF");
}

TEST(ReferencedFiles, NamedLikeTheAttributeAreFilesAllTheSame) {
  EXPECT_EQ(Files(u"<img src=\"a?src=b\" class=\"c\"><img src=\"d.gif\">"),
            u"C:\\html\\A?SRC=B;C:\\html\\D.GIF");
}

TEST(ReferencedFiles, OfAnEmptyValueAreTheFolderUnlessSomethingIsListed) {
  EXPECT_EQ(Files(u"<img src=\"\">"), u"C:\\html\\");
  EXPECT_EQ(Files(u"<img src=\"a.gif\"><img src=\"\">"), u"C:\\html\\A.GIF");
}

struct Shortening {
  const char* reason;
  std::u16string_view html;
  std::u16string_view expected;
};

class ShortenedReferences : public testing::TestWithParam<Shortening> {};

TEST_P(ShortenedReferences, NameFilesBesideTheText) {
  EXPECT_EQ(ShortenImageReferences(GetParam().html), GetParam().expected);
}

const Shortening kShortenings[] = {
    {"a folder in front", u"<img src=\"img/logo.gif\">", u"<img src=\"logo.gif\">"},
    {"one separator only", u"<img src=\"C:\\dir\\logo.gif\">", u"<img src=\"dir\\logo.gif\">"},
    {"a slash before any backslash", u"<img src=\"a\\b/c\\d.gif\">", u"<img src=\"c\\d.gif\">"},
    {"a bare name", u"<img src=\"logo.gif\">", u"<img src=\"logo.gif\">"},
    {"another machine's", u"<img src=\"HTTP://h/a.gif\">", u"<img src=\"HTTP://h/a.gif\">"},
    {"background", u"<body BACKGROUND=\"img/f.jpg\">", u"<body BACKGROUND=\"f.jpg\">"},
    {"every occurrence of the value", u"<a href=\"img/a.gif\"><img src=\"img/a.gif\">",
     u"<a href=\"a.gif\"><img src=\"a.gif\">"},
    {"a value used twice is shortened twice", u"<img src=\"i/j/a.gif\"><img src=\"i/j/a.gif\">",
     u"<img src=\"a.gif\"><img src=\"a.gif\">"},
    {"names inside values are none", u"<img src=\"x/y/src.gif\"></p><p id=\"a/b\">",
     u"<img src=\"y/src.gif\"></p><p id=\"a/b\">"},
    {"the rest is still found after shortening what stood before",
     u"<a href=\"i/a\"><img src=\"i/a\"><img src=\"i/b\">", u"<a href=\"a\"><img src=\"a\"><img src=\"b\">"},
    {"no closing quote", u"<img src=\"i/a.gif>", u"<img src=\"i/a.gif>"},
    {"only separators", u"<img src=\"/\">", u"<img src=\"\">"},
    {"both attributes share a value", u"<td background=\"i/j/a\"><img src=\"i/j/a\">",
     u"<td background=\"a\"><img src=\"a\">"},
};
INSTANTIATE_TEST_SUITE_P(All, ShortenedReferences, testing::ValuesIn(kShortenings));

TEST(ShortenedReferences, OfTextsWithManyFilesAreAllShortened) {
  std::u16string html, expected;
  for (int i = 0; i < 300; ++i) {
    const std::u16string name(static_cast<std::size_t>(i % 17) + 1, static_cast<char16_t>(u'a' + i % 26));
    html += u"<img src=\"img/" + name + u"\">";
    expected += u"<img src=\"" + name + u"\">";
  }
  EXPECT_EQ(ShortenImageReferences(html), expected);
}

}  // namespace
}  // namespace qm::text
