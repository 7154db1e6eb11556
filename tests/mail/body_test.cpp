#include "mail/body.h"

#include <gtest/gtest.h>

namespace qm::mail {
namespace {

class MessageBody : public testing::Test {
 protected:
  std::u16string Compose(std::u16string_view plantilla, std::u16string_view texto) {
    texto_ = texto;
    return ComponerCuerpo(plantilla, texto_, plain_);
  }

  std::u16string texto_;
  bool plain_ = false;
};

TEST_F(MessageBody, WithoutATemplateIsTheTextAsItIs) {
  EXPECT_EQ(Compose(u"", u"uno\r\ndos"), u"uno\r\ndos");
  EXPECT_EQ(texto_, u"uno\r\ndos");
}

TEST_F(MessageBody, WithoutATemplateLeavesTheFlagOfAnEarlierMessage) {
  plain_ = true;
  static_cast<void>(Compose(u"", u"texto"));
  EXPECT_TRUE(plain_);
}

TEST_F(MessageBody, OfTwoLinesHasABreakBetweenThemAndTheTextKeepsIt) {
  EXPECT_EQ(Compose(u"<html><p><TEXTO></p></html>", u"línea 1\r\nlínea 2"),
            u"<html><p>línea 1<BR>línea 2</p></html>");
  EXPECT_EQ(texto_, u"línea 1<BR>línea 2");
  EXPECT_FALSE(plain_);
}

TEST_F(MessageBody, BreaksLinesAtCrLfOnly) {
  EXPECT_EQ(Compose(u"<TEXTO>", u"a\nb\rc\r\n\r\nd"), u"a\nb\rc<BR><BR>d");
}

TEST_F(MessageBody, FindsTheMarkerInAnyCaseAndAsHtmlEditorsWriteIt) {
  EXPECT_EQ(Compose(u"<texto>|<Texto>|&lt;TEXTO&gt;|&LT;texto&GT;", u"x"), u"x|x|x|x");
}

TEST_F(MessageBody, OfAnEmptyTextIsTheTemplateWithoutItsMarkers) {
  plain_ = true;
  EXPECT_EQ(Compose(u"<p><TEXTO></p>&lt;TEXTO&gt;", u""), u"<p></p>");
  EXPECT_FALSE(plain_);
}

TEST_F(MessageBody, OfAnEmptyTextInATemplateThatIsOnlyTheMarkerIsEmptyHtml) {
  plain_ = true;
  EXPECT_EQ(Compose(u"<TEXTO>", u""), u"");
  EXPECT_FALSE(plain_);
}

TEST_F(MessageBody, IsTheTemplateWhereThatHappensToContainTheText) {
  plain_ = true;
  EXPECT_EQ(Compose(u"<p>Buenos DÍAS</p>", u"buenos días"), u"<p>Buenos DÍAS</p>");
  EXPECT_FALSE(plain_);
}

TEST_F(MessageBody, FallsBackToTheTextWithBreaksWhereTheTemplateHasNoMarker) {
  EXPECT_EQ(Compose(u"<p>Hola</p>", u"uno\r\ndos"), u"uno<BR>dos");
  EXPECT_TRUE(plain_);
}

TEST_F(MessageBody, MayItselfContainTheMarkers) {
  EXPECT_EQ(Compose(u"[<TEXTO>]", u"a<TEXTO>b"), u"[a<TEXTO>b]");
  EXPECT_EQ(Compose(u"[<TEXTO>]", u"a&lt;TEXTO&gt;b"), u"[aa&lt;TEXTO&gt;bb]");  // the second pass finds it
}

}  // namespace
}  // namespace qm::mail
