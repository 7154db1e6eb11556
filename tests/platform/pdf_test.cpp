#include "platform/pdf_writer.h"

#include <gmock/gmock.h>
#include <zlib.h>

#include <cstring>

#include "platform/pdf_text.h"
#include "tests/error_of.h"

namespace qm::platform {
namespace {

using testing::HasSubstr;
using testing::Not;

struct Page {
  Page(int width, int height)
      : pixels(static_cast<std::size_t>(width * height) * 3, 0xFF),
        image{width, height, width * 3, pixels.data()} {}
  void Set(int x, int y, std::uint32_t rgb) {
    std::uint8_t* pixel = pixels.data() + (y * image.width + x) * 3;
    for (int i = 0; i < 3; ++i) pixel[i] = static_cast<std::uint8_t>(rgb >> 8 * i);
  }

  std::vector<std::uint8_t> pixels;
  PageImage image;
};

PageText TextAt(Point topLeft, std::u16string_view text, double letterWidth = 100) {
  PageText result{topLeft, {{}, 240}, std::u16string(text)};
  for (std::size_t i = 1; i <= text.size(); ++i)
    result.extent.ends.push_back(letterWidth * static_cast<double>(i));
  return result;
}

std::string Inflated(std::string_view data, std::size_t size) {
  std::string bytes(size, '\0');
  auto length = static_cast<uLongf>(size);
  const int status = uncompress(reinterpret_cast<Bytef*>(bytes.data()), &length,
                                reinterpret_cast<const Bytef*>(data.data()), static_cast<uLong>(data.size()));
  if (status != Z_OK) return "damaged";
  bytes.resize(length);
  return bytes;
}

// The content of the first stream whose dictionary has that entry.
std::string StreamWith(const std::string& pdf, const std::string& entry, std::size_t size = 1 << 20) {
  const std::size_t dictionary = pdf.find(entry);
  const std::size_t length = pdf.find("/Length ", dictionary) + 8;
  const std::size_t begin = pdf.find("stream\n", length) + 7;
  return Inflated(std::string_view(pdf).substr(begin, std::stoul(pdf.substr(length, 12))), size);
}

std::string ContentOf(const std::string& pdf) {
  const std::size_t reference = pdf.find("/Contents ") + 10;
  const std::string object = "\n" + pdf.substr(reference, pdf.find(' ', reference) - reference) + " 0 obj\n";
  return StreamWith(pdf.substr(pdf.find(object)), "obj");
}

std::string PdfOf(const Page& page, const std::vector<PageText>& texts = {}) {
  return PdfOfPage(page.image, texts, {.title = u"Factura"});
}

TEST(PdfPages, APixelIsThreeQuartersOfAPoint) {
  EXPECT_THAT(PdfOf(Page(794, 1123)), HasSubstr("/MediaBox[0 0 595.5 842.25]"));
}

TEST(PdfPages, APageOfFewColoursHasAPaletteThatBeginsWithWhite) {
  Page page(3, 2);
  page.Set(1, 0, 0xC00000);
  page.Set(2, 1, 0x0000FF);
  const std::string pdf = PdfOf(page);
  EXPECT_THAT(pdf, HasSubstr("/ColorSpace[/Indexed/DeviceRGB 2<FFFFFFC000000000FF>]"));
  // "0 1", three of 0, "2": by counts less one for what differs and 257 less the count for what does not.
  EXPECT_EQ(StreamWith(pdf, "/Indexed"), std::string("\1\0\1\xFE\0\0\2\x80", 8));
}

TEST(PdfPages, TwoHundredAndFiftySixColoursStillHaveAPalette) {
  Page page(256, 1);
  for (int x = 1; x < 256; ++x) page.Set(x, 0, static_cast<std::uint32_t>(x) * 1024);
  EXPECT_THAT(PdfOf(page), HasSubstr("/DeviceRGB 255<"));
}

TEST(PdfPages, APageOfManyColoursKeepsThreeBytesAPixelAsDifferences) {
  Page page(257, 1);
  for (int x = 1; x < 257; ++x) page.Set(x, 0, static_cast<std::uint32_t>(x) * 3);
  const std::string pdf = PdfOf(page);
  ASSERT_THAT(pdf, HasSubstr("/DeviceRGB/DecodeParms<</Predictor 15/Colors 3/Columns 257>>"));
  const std::string line = StreamWith(pdf, "/DecodeParms");
  ASSERT_EQ(line.size(), 1U + 257 * 3);
  EXPECT_EQ(line[0], 1);
  for (int x = 1, blue = 255; x < 257; ++x) {
    blue = (blue + line[static_cast<std::size_t>(1 + x * 3 + 2)]) & 0xFF;
    EXPECT_EQ(blue, x * 3 & 0xFF) << x;
  }
}

TEST(PdfPages, APictureKeptBottomUpIsTheSameFile) {
  Page down(5, 4);
  down.Set(1, 0, 0x123456);
  down.Set(3, 2, 0xABCDEF);
  Page up(5, 4);
  for (int y = 0; y < 4; ++y)
    std::memcpy(&up.pixels[static_cast<std::size_t>(y * 15)],
                &down.pixels[static_cast<std::size_t>((3 - y) * 15)], 15);
  up.image.topRow = up.pixels.data() + 3 * 15;
  up.image.stride = -15;
  EXPECT_EQ(PdfOf(up), PdfOf(down));
}

TEST(PdfPages, TheSamePageGivesTheSameBytes) {
  const Page page(10, 10);
  EXPECT_EQ(PdfOf(page, {TextAt({15, 15}, u"Señor")}), PdfOf(page, {TextAt({15, 15}, u"Señor")}));
}

TEST(PdfPages, TitleAndLanguageAreSaid) {
  const std::string pdf = PdfOfPage(Page(2, 2).image, {}, {.title = u"Peña €", .language = u"es-ES"});
  EXPECT_THAT(pdf, HasSubstr("/Title<FEFF0050006500F10061002020AC>"));
  EXPECT_THAT(pdf, HasSubstr("/Lang(es-ES)"));
  EXPECT_THAT(pdf, HasSubstr("/DisplayDocTitle true"));
}

TEST(PdfPages, WithoutTextsThereIsOnlyThePicture) {
  const std::string pdf = PdfOf(Page(2, 2), {TextAt({0, 0}, u"   "), TextAt({0, 0}, u"")});
  EXPECT_THAT(pdf, Not(HasSubstr("/Font")));
  EXPECT_THAT(pdf, Not(HasSubstr("StructTreeRoot")));
}

TEST(PdfPages, AnEmptyPictureIsError481) {
  EXPECT_EQ(tests::ErrorOf([] { (void)PdfOfPage({}, {}, {}); }), 481);
}

TEST(PdfTexts, AreInvisibleAtTheirPlace) {
  // 1123 pixels are 842.25 points; a line of 240 twips has its letters' base 9.6 points below its top.
  const std::string content = ContentOf(PdfOf(Page(794, 1123), {TextAt({1000, 2000}, u"123")}));
  EXPECT_THAT(content, HasSubstr("BT 3 Tr 1 0 0 1 50 732.65 Tm\n"));
}

TEST(PdfTexts, EveryWordAndEveryBlankIsStretchedToItsWidth) {
  PageText text = TextAt({0, 0}, u"ii MM");
  text.extent.ends = {50, 100, 160, 400, 640};
  // A letter of a 10.44 point font is 6.264 points, 125.28 twips.
  const std::string content = ContentOf(PdfOf(Page(100, 100), {text}));
  EXPECT_THAT(content, HasSubstr("39.91 Tz/F0 10.44 Tf(ii)Tj\n47.89 Tz( )Tj\n191.57 Tz(MM)Tj\n"));
}

TEST(PdfTexts, BracketsAndBackslashesAreEscaped) {
  const std::string content = ContentOf(PdfOf(Page(100, 100), {TextAt({0, 0}, u"(a\\b)")}));
  EXPECT_THAT(content, HasSubstr("(\\(a\\\\b\\))Tj"));
}

TEST(PdfTexts, LettersOfTheCodePageAreWrittenInIt) {
  const std::string content = ContentOf(PdfOf(Page(100, 100), {TextAt({0, 0}, u"ñ€")}));
  EXPECT_THAT(content, HasSubstr("(\xF1\x80)Tj"));
}

TEST(PdfTexts, OtherLettersGetFontsThatSayWhatTheyAre) {
  const std::string pdf = PdfOf(Page(100, 100), {TextAt({0, 0}, u"aΩ\xD83D\xDE00")});
  EXPECT_THAT(ContentOf(pdf), HasSubstr("(a)Tj/F1 10.44 Tf(\x01\x02)Tj"));
  EXPECT_THAT(pdf, HasSubstr("/Differences[1/uni03A9/u1F600]"));
  PdfFonts fonts;
  (void)fonts.PlaceOf(U'Ω');
  (void)fonts.PlaceOf(U'\x1F600');
  EXPECT_THAT(fonts.MapToLetters(1), HasSubstr("2 beginbfchar\n<01><03A9>\n<02><D83DDE00>\nendbfchar"));
}

TEST(PdfTexts, AFontHoldsTwoHundredAndFiftyFiveOtherLetters) {
  PdfFonts fonts;
  for (char32_t letter = 0x4E00; letter < 0x4E00 + 256; ++letter) (void)fonts.PlaceOf(letter);
  EXPECT_EQ(fonts.Count(), 3U);
  EXPECT_EQ(fonts.PlaceOf(0x4E00 + 254).code, 255);
  EXPECT_EQ(fonts.PlaceOf(0x4E00 + 255).font, 2U);
  EXPECT_THAT(fonts.MapToLetters(1), HasSubstr("100 beginbfchar"));
  EXPECT_THAT(fonts.MapToLetters(1), HasSubstr("55 beginbfchar"));
}

TEST(PdfTexts, ControlCharactersAndHalfPairsDoNoHarm) {
  const std::string content = ContentOf(PdfOf(Page(100, 100), {TextAt({0, 0}, u"a\tb\r\x0085\xD800")}));
  EXPECT_THAT(content, HasSubstr("(ab)Tj/F1"));
}

TEST(PdfTexts, AreReadAloudInTheirOrder) {
  const std::string pdf = PdfOf(Page(100, 100), {TextAt({0, 900}, u"uno"), TextAt({0, 0}, u"dos")});
  EXPECT_THAT(pdf, HasSubstr("/Marked true"));
  EXPECT_THAT(pdf, HasSubstr("/S/P/P 8 0 R/Pg 3 0 R/K 0>>"));
  EXPECT_THAT(pdf, HasSubstr("/K[9 0 R 10 0 R ]"));
  const std::string content = ContentOf(pdf);
  EXPECT_LT(content.find("(uno)"), content.find("(dos)"));
  EXPECT_THAT(content, HasSubstr("/P<</MCID 1>>BDC"));
}

TEST(PdfNumbers, HaveTwoDecimalsAtMostAndAPoint) {
  EXPECT_EQ(PdfNumber(0), "0");
  EXPECT_EQ(PdfNumber(842.25), "842.25");
  EXPECT_EQ(PdfNumber(595.5), "595.5");
  EXPECT_EQ(PdfNumber(-0.05), "-0.05");
  EXPECT_EQ(PdfNumber(1e30), "1048576");
}

}  // namespace
}  // namespace qm::platform
