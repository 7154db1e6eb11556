// How a field is read, and how its value is put on the page.

#include <gmock/gmock.h>

#include "data/value_lookup.h"
#include "print/field_printer.h"
#include "print/field_reader.h"
#include "runtime/code_page.h"
#include "tests/print/printing_world.h"

namespace qm::print {
namespace {

using model::FieldElement;
using runtime::Locale;

struct FieldTexts : testing::Test {
  FieldState field;
  void Read(FieldElement element, std::u16string text, const Locale& locale = Locale::Spanish()) {
    ReadField({{element, std::move(text)}}, locale, field);
  }
  int ErrorOfReading(FieldElement element, std::u16string text) {
    return ErrorOf([&] { Read(element, std::move(text)); });
  }
};

TEST_F(FieldTexts, PositionsAreTheLeadingNumberRoundedHalfToEven) {
  const std::pair<const char16_t*, int> cases[] = {
      {u"1440", 1440}, {u"1440.5", 1440}, {u"1441.5", 1442},  {u"1441,5", 1441},  {u"-20", -20},
      {u"", 0},        {u"arriba", 0},    {u"1 4 4 0", 1440}, {u"300 twips", 300}};
  for (const auto& [text, expected] : cases) {
    Read(FieldElement::Top, text);
    Read(FieldElement::Left, text);
    Read(FieldElement::Width, text);
    Read(FieldElement::Alignment, text);
    EXPECT_EQ(field.top, expected);
    EXPECT_EQ(field.left, expected);
    EXPECT_EQ(field.width, expected);
    EXPECT_EQ(field.alignment, expected);
  }
}

TEST_F(FieldTexts, APositionBeyond16BitsIsAnOverflow) {
  for (const auto element : {FieldElement::Top, FieldElement::Left, FieldElement::Width, FieldElement::Height,
                             FieldElement::Alignment})
    EXPECT_EQ(ErrorOfReading(element, u"40000"), 6);
}

TEST_F(FieldTexts, HeightIsTheWholeTextInTheUsersLocale) {
  Read(FieldElement::Height, u"1440,5");
  EXPECT_EQ(field.height, 1440);
  Read(FieldElement::Height, u"1441,5");
  EXPECT_EQ(field.height, 1442);
  Read(FieldElement::Height, u"1441.5", Locale::English());
  EXPECT_EQ(field.height, 1442);
  EXPECT_EQ(ErrorOfReading(FieldElement::Height, u"alto"), 13);
  EXPECT_EQ(ErrorOfReading(FieldElement::Height, u""), 13);
  EXPECT_EQ(ErrorOfReading(FieldElement::Height, u"300 twips"), 13);
}

TEST_F(FieldTexts, AColourIsAWholeNumberOrAnError) {
  Read(FieldElement::ForeColor, u"255");
  EXPECT_EQ(field.foreColor, 255);
  Read(FieldElement::ForeColor, u"-2147483640");
  EXPECT_EQ(field.foreColor, -2147483640);
  EXPECT_EQ(ErrorOfReading(FieldElement::ForeColor, u"rojo"), 13);
  EXPECT_EQ(ErrorOfReading(FieldElement::ForeColor, u"4294967295"), 6);
}

TEST_F(FieldTexts, AFontSizeAbove600IsInHundredthsOfAPoint) {
  const std::pair<const char16_t*, double> cases[] = {{u"825", 8.25},  {u"72", 72},         {u"8,25", 8.25},
                                                      {u"8.25", 8.25}, {u"600", 600},       {u"601", 6.01},
                                                      {u"65000", 650}, {u"999999999", 2160}};
  for (const auto& [text, expected] : cases) {
    Read(FieldElement::FontSize, text);
    EXPECT_EQ(field.font.sizePoints, expected);
  }
}

TEST_F(FieldTexts, ATextThatIsNoFontSizeLeavesTheFontAsLargeAsItWas) {
  Read(FieldElement::FontSize, u"12");
  for (const char16_t* text : {u"", u"grande", u"0", u"-8"}) {
    Read(FieldElement::FontSize, text);
    EXPECT_EQ(field.font.sizePoints, 12);
  }
}

TEST_F(FieldTexts, StylesAreWordsOfTheUsersLocaleOrOfTheOtherOne) {
  const std::pair<const char16_t*, bool> cases[] = {
      {u"Verdadero", true}, {u"Falso", false}, {u"TRUE", true}, {u"-1", true},
      {u"0", false},        {u"SI", false},    {u"", false},    {u"verdadero", true}};
  for (const Locale& locale : {Locale::Spanish(), Locale::English()}) {
    for (const auto& [text, expected] : cases) {
      Read(FieldElement::Bold, text, locale);
      Read(FieldElement::FontItalic, text, locale);
      Read(FieldElement::Underline, text, locale);
      EXPECT_EQ(field.font.bold, expected);
      EXPECT_EQ(field.font.italic, expected);
      EXPECT_EQ(field.font.underline, expected);
    }
  }
}

TEST_F(FieldTexts, TheLastOfARepeatedElementCounts) {
  ReadField({{FieldElement::Top, u"1"}, {FieldElement::Top, u"2"}, {FieldElement::FontName, u"Arial 9"}},
            Locale::Spanish(), field);
  EXPECT_EQ(field.top, 2);
  EXPECT_EQ(field.font.name, u"Arial 9");
}

// A field printed alone, on the recording surface: characters 100 twips wide, lines 240 high.
struct FieldOnAPage : testing::Test {
  std::string ignored;
  fakes::MemoryFiles files;
  fakes::FakePictures pictures{files, ignored};
  fakes::RecordingSurface surface;
  FieldPrinter printer{surface, files, pictures};
  FieldState field;

  FieldOnAPage() {
    field.left = 1000;
    field.top = 500;
    field.width = 2000;
    field.height = 600;
    field.font = printer.SurfaceFont();
  }
  void Print(std::u16string_view value, std::int16_t kind) {
    printer.Print(field, {static_cast<double>(field.left), static_cast<double>(field.top)}, value, kind);
  }
};

constexpr std::int16_t kAmount = 3;
constexpr std::int16_t kText = 0;

using AlignedPrinting = FieldOnAPage;

TEST_F(AlignedPrinting, RightAlignmentPutsTheTextsRightEdgeAtLeftPlusWidth) {
  field.alignment = kAlignRight;
  Print(u"123", kAmount);
  EXPECT_EQ(surface.Log(), "2700,500 123\n");
}

TEST_F(AlignedPrinting, CentredTextsAreTrimmedAndHaveTheSameRoomOnBothSides) {
  field.alignment = kAlignCentre;
  Print(u"  123 ", kAmount);
  EXPECT_EQ(surface.Log(), "1850,500 123\n");
}

TEST_F(AlignedPrinting, OtherCodesAreLeftAndKeepBlanks) {
  for (const int code : {0, 3, -1}) {
    field.alignment = static_cast<std::int16_t>(code);
    Print(u" 123 ", kAmount);
  }
  EXPECT_EQ(surface.Log(), "1000,500  123 \n1000,500  123 \n1000,500  123 \n");
}

TEST_F(AlignedPrinting, EveryLineOfAWrappedTextIsAlignedByItself) {
  field.alignment = kAlignRight;
  Print(u"Calle Mayor número 3", kText);
  EXPECT_EQ(surface.Log(), "1000,500 Calle Mayor número 3\n");
  field.width = 1200;
  Print(u"Calle Mayor número 3", kText);
  EXPECT_EQ(surface.Log(), "1000,500 Calle Mayor número 3\n1100,500 Calle Mayor\n1400,750 número 3\n");
}

TEST_F(AlignedPrinting, ABoxAtTheFarEndOfTheRangeIsNoOverflow) {
  surface.SetScaleWidth(70000);
  field.left = 32000;
  field.width = 32000;
  field.alignment = kAlignRight;
  Print(u"123", kAmount);
  EXPECT_EQ(surface.Log(), "63700,500 123\n");
}

TEST_F(AlignedPrinting, ALineIsMeasuredOnceAndAgainOnlyWhenItsTextChanges) {
  field.alignment = kAlignRight;
  Print(u"123", kAmount);
  EXPECT_EQ(surface.Measurements(), 1);
  field.alignment = kAlignCentre;
  Print(u"una dos", kText);
  EXPECT_EQ(surface.Measurements(), 2);
  Print(u"una ", kAmount);
  EXPECT_EQ(surface.Measurements(), 4);
}

using SingleLines = FieldOnAPage;

TEST_F(SingleLines, ALineLongerThanItsBoxIsCutAndNotFilledUp) {
  Print(u"12345678901234567890123", kAmount);
  Print(u"1", kAmount);
  EXPECT_EQ(surface.Log(), "1000,500 12345678901234567890\n1000,500 1\n");
}

TEST_F(SingleLines, ALineIsCutAtThePagesRightEdge) {
  surface.SetScaleWidth(1450);
  Print(u"12345678", kAmount);
  EXPECT_EQ(surface.Log(), "1000,500 1234\n");
}

TEST_F(SingleLines, EveryKindThatIsNeitherTextNorPictureIsOneLine) {
  std::string expected;
  for (const int kind : {1, 2, 5, 61, 63, 74, 76, 80, -1}) {
    Print(u"una dos tres cuatro cinco", static_cast<std::int16_t>(kind));
    expected += "1000,500 una dos tres cuatro \n";
  }
  EXPECT_EQ(surface.Log(), expected);
}

TEST_F(SingleLines, AnEmptyValuePrintsNothingButLeavesItsFontOnTheSurface) {
  field.font.bold = true;
  field.foreColor = 255;
  Print(u"", kAmount);
  Print(u"", kText);
  EXPECT_EQ(surface.Log(), "");
  EXPECT_TRUE(surface.CurrentFont().bold);
}

using WrappedText = FieldOnAPage;

TEST_F(WrappedText, ABox600HighHoldsTwoLinesOf240SinceTheThirdWouldEndBelowIt) {
  field.width = 300;
  Print(u"uno dos mil", kText);
  EXPECT_EQ(surface.Log(), "1000,500 uno\n1000,750 dos\n");
}

TEST_F(WrappedText, ALineThatEndsExactlyAtTheBottomIsPrinted) {
  field.width = 300;
  field.height = 490;
  Print(u"uno dos mil", kText);
  EXPECT_EQ(surface.Log(), "1000,500 uno\n1000,750 dos\n");
}

TEST_F(WrappedText, TheFirstLineIsPrintedInABoxThatIsTooLow) {
  field.height = 0;
  Print(u"uno", kText);
  EXPECT_EQ(surface.Log(), "1000,500 uno\n");
}

TEST_F(WrappedText, PrintingLeavesTheFieldsOwnTopWhereItWas) {
  field.width = 300;
  Print(u"uno dos", data::kLiteralText);
  EXPECT_EQ(field.top, 500);
}

using FontsWithDosLetters = FieldOnAPage;

TEST_F(FontsWithDosLetters, ADigitInTheFontsNameMovesTheSpanishLetters) {
  field.font.name = u"Courier 10cpi";
  Print(u"Ñandú", kAmount);
  Print(u"Ñandú", kText);
  std::u16string moved;
  for (const int code : {165, 97, 110, 100, 163}) moved += runtime::Chr(code);
  const std::string line = "1000,500 " + runtime::ToUtf8(moved) + "\n";
  EXPECT_EQ(surface.Log(), "font Courier 10cpi 10\n" + line + line);
}

TEST_F(FontsWithDosLetters, AFontWithoutDigitsPrintsTheSameValueUnchanged) {
  field.font.name = u"Courier";
  Print(u"Ñandú", kAmount);
  EXPECT_EQ(surface.Log(), "font Courier 10\n1000,500 Ñandú\n");
}

TEST_F(FontsWithDosLetters, TheSurfacesOwnFontCountsWhereTheModelNamesNone) {
  fakes::RecordingSurface other;
  other.SetFont({.name = u"Roman 12"});
  FieldPrinter otherPrinter(other, files, pictures);
  field.font = otherPrinter.SurfaceFont();
  otherPrinter.Print(field, {0, 0}, u"é", kAmount);
  EXPECT_EQ(other.Log(), "font Roman 12 10\n0,0 \xE2\x80\x9A\n");  // code 130
}

struct PictureFields : FieldOnAPage {
  static constexpr std::u16string_view kScratch = u"fotosocio.jpg";
  std::u16string ScratchPath() { return files.ScratchFolder() + std::u16string(kScratch); }
};

TEST_F(PictureFields, TheDataGoThroughTheScratchFileAndTheClipboardScaledToTheBox) {
  field.width = 1500;
  field.height = 760;
  Print(u"PICTURE 40x30", data::kPictureData);
  EXPECT_EQ(surface.Log(), "picture 100x51 px 1000,500\n");
  EXPECT_EQ(pictures.Log(), "decode\nscale 40x30 to 100x51\nclipboard 100x51\n");
  EXPECT_EQ(files.Read(ScratchPath()), "PICTURE 40x30");
  ASSERT_NE(pictures.Clipboard(), nullptr);
}

// Another host of the same user writes its own picture to the same file.
class FilesOfTwoHosts : public fakes::MemoryFiles {
 public:
  void Replace(std::u16string_view path, std::string_view) override {
    MemoryFiles::Replace(path, "PICTURE 999x999");
  }
};

TEST_F(PictureFields, TheFieldsOwnPictureIsPrintedWhoeverWritesTheScratchFileToo) {
  FilesOfTwoHosts shared;
  fakes::FakePictures itsPictures(shared);
  FieldPrinter printer(surface, shared, itsPictures);
  printer.Print(field, {0, 0}, u"PICTURE 40x30", data::kPictureData);
  EXPECT_THAT(itsPictures.Log(), testing::HasSubstr("scale 40x30"));
}

TEST_F(PictureFields, BytesOfEveryCodeReachTheFileUnchanged) {
  std::string bytes = "PICTURE 4x3 ";
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  Print(runtime::FromBytes(bytes), data::kPictureData);
  EXPECT_EQ(files.Read(ScratchPath()), bytes);
}

TEST_F(PictureFields, SidesAreRoundedToWholePixels) {
  field.width = 22;
  field.height = 23;
  Print(u"PICTURE 40x30", data::kPictureData);
  EXPECT_EQ(surface.Log(), "picture 1x2 px 1000,500\n");
}

TEST_F(PictureFields, ABoxWithoutExtentLeavesThePicturesOwnSize) {
  field.width = 0;
  field.height = -15;
  Print(u"PICTURE 40x30", data::kPictureData);
  EXPECT_EQ(surface.Log(), "picture 40x30 px 1000,500\n");
}

TEST_F(PictureFields, NoDataPrintNothingAndTouchNoFile) {
  Print(u"", data::kPictureData);
  EXPECT_EQ(surface.Log(), "");
  EXPECT_FALSE(files.Exists(ScratchPath()));
  EXPECT_EQ(pictures.Clipboard(), nullptr);
}

TEST_F(PictureFields, DataThatAreNoPictureAreError481) {
  EXPECT_EQ(ErrorOf([&] { Print(u"texto", data::kPictureData); }), 481);
}

struct FieldsOfAModel : testing::Test, PrintingWorld {};

TEST_F(FieldsOfAModel, AFieldWithoutTopIsPrintedAtThePreviousFieldsOwnTop) {
  SetModel("",
           "<Campo><Descripcion>#uno dos mil</Descripcion><Top>700</Top><Left>100</Left><Width>300</Width>"
           "<Height>1000</Height></Campo>"
           "<Campo><Descripcion>#fin</Descripcion><Left>2000</Left></Campo>");
  EXPECT_EQ(Drawn(), "page 0x0\n100,700 uno\n100,950 dos\n100,1200 mil\n2000,700 fin\n");
}

TEST_F(FieldsOfAModel, APlainFieldAfterANumericCellStillWraps) {
  data::AñadirCampoTabla(job, {u"F", u"TOTAL", u"12.5", 3});
  data::AsignarCampo(job, u"NOTA", u"uno dos");
  SetModel("Width=\"9000\"",
           "<Campo><Descripcion>TOTAL</Descripcion><Width>500</Width><Height>1000</Height></Campo>"
           "<Campo><Descripcion>NOTA</Descripcion></Campo>");
  EXPECT_EQ(Drawn(), "page 9000x0\n0,0 12,50\n0,0 uno\n0,250 dos\n");
}

TEST_F(FieldsOfAModel, AModelThatNamesNoFontIsDrawnInTheSurfacesOwn) {
  SetModel("", "<Campo><Descripcion>#a</Descripcion><Width>500</Width><Bold>1</Bold></Campo>");
  fakes::RecordingSurface surface;
  surface.SetFont({.name = u"Verdana", .sizePoints = 7});
  EXPECT_TRUE(Draw(surface));
  EXPECT_EQ(surface.Log(), "page 0x0\nfont Verdana 7 bold\n0,0 a\n");
}

TEST_F(FieldsOfAModel, AFieldFoundNowherePrintsNothing) {
  SetModel("", "<Campo><Descripcion>NADA</Descripcion><Width>500</Width></Campo>");
  EXPECT_EQ(Drawn(), "page 0x0\n");
}

TEST_F(FieldsOfAModel, ElementsThatAreNoFieldsAreSkipped) {
  SetModel("",
           "<!-- nota --><Otro><Descripcion>#x</Descripcion><Height>x</Height></Otro>texto"
           "<Campo Key=\"9\"><Descripcion>#a</Descripcion><Width>500</Width><Nuevo>x</Nuevo></Campo>");
  EXPECT_EQ(Drawn(), "page 0x0\n0,0 a\n");
}

}  // namespace
}  // namespace qm::print
