#include <algorithm>

#include "platform/win32/pictures.h"
#include "platform/win32/printer_paper.h"
#include "platform/win32/printers.h"
#include "runtime/strings.h"
#include "tests/platform/win32/expect_error.h"
#include "tests/platform/win32/gdi_objects.h"

namespace qm::platform::win32 {
namespace {

using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::IsSupersetOf;
using ::testing::Not;

constexpr std::u16string_view kA4 = u"Impresora A4";
constexpr std::u16string_view kReceipts = u"Impresora Recibos";
constexpr std::u16string_view kBroken = u"Impresora Averiada";

double Twips(double centimetres) { return centimetres * 1440 / 2.54; }

TEST(PaperChoice, TakesThePaperOfThatNameAmongThoseOfThatSize) {
  const std::vector<PrinterPaper> papers = {
      {9, u"A4", 2100, 2970}, {256, u"Otro", 2003, 1014}, {257, u"PS", 1999, 1017}};
  EXPECT_EQ(CodeOfSize({0, u"PS", Twips(20), Twips(10.16)}, papers), 257);
}

TEST(PaperChoice, TakesThePaperOfThatSizeWhereTheNamedOneHasAnother) {
  const std::vector<PrinterPaper> papers = {{256, u"PS", 1000, 500}, {9, u"A4", 2100, 2970}};
  EXPECT_EQ(CodeOfSize({0, u"PS", 11906, 16848}, papers), 9);
}

TEST(PaperChoice, AllowsAMillimetre) {
  const std::vector<PrinterPaper> papers = {{9, u"A4", 2100, 2970}};
  EXPECT_EQ(CodeOfSize({0, u"PS", Twips(21.1), Twips(29.6)}, papers), 9);
  EXPECT_EQ(CodeOfSize({0, u"PS", Twips(21.12), Twips(29.7)}, papers), std::nullopt);
  EXPECT_EQ(CodeOfSize({0, u"PS", Twips(21), Twips(29.58)}, papers), std::nullopt);
}

TEST(PaperChoice, DoesNotTurnAPaper) {
  const std::vector<PrinterPaper> papers = {{9, u"A4", 2100, 2970}};
  EXPECT_EQ(CodeOfSize({0, u"PS", 16838, 11906}, papers), std::nullopt);
}

TEST(PaperSizes, AreTenthsOfAMillimetre) {
  EXPECT_EQ(TenthsOfMillimetre(11906), 2100);
  EXPECT_EQ(TenthsOfMillimetre(16848), 2972);
  EXPECT_EQ(TenthsOfMillimetre(-5), 1);
  EXPECT_EQ(TenthsOfMillimetre(1e9), 32767);
}

TEST(InstalledPrinters, AreListedInTheSystemsOrder) {
  DWORD needed = 0;
  DWORD count = 0;
  EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 2, nullptr, 0, &needed, &count);
  std::vector<BYTE> buffer(needed);
  ASSERT_TRUE(EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 2, buffer.data(), needed, &needed, &count));
  std::vector<std::u16string> expected;
  for (DWORD i = 0; i < count; ++i)
    expected.push_back(Text(reinterpret_cast<const PRINTER_INFO_2W*>(buffer.data())[i].pPrinterName));
  EXPECT_THAT(Win32Printers().DeviceNames(), ElementsAreArray(expected));
  EXPECT_THAT(expected, IsSupersetOf({kA4, kReceipts, kBroken}));
}

TEST(InstalledPrinters, TheDefaultOneOpens) { EXPECT_EQ(Win32Printers().OpenDefault()->DeviceName(), kA4); }

TEST(InstalledPrinters, AMissingOneIsError482) {
  EXPECT_RUNTIME_ERROR(482, (void)Win32Printers().Open(u"Impresora que no existe"));
  EXPECT_RUNTIME_ERROR(482, (void)Win32Printers().Open(u""));
}

TEST(InstalledPrinters, TellTheirFontsEachOnceAfterTheOneTheyBeginWith) {
  std::vector<std::u16string> names = Win32Printers().FontNames(kA4);
  ASSERT_GT(names.size(), 3U);
  EXPECT_FALSE(names[0].empty());
  names.erase(names.begin());
  EXPECT_THAT(names, IsSupersetOf({u"Liberation Sans", u"Liberation Mono", u"Liberation Serif"}));
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end(), [](const auto& a, const auto& b) {
    return runtime::UCase(a) < runtime::UCase(b);
  }));
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
  EXPECT_RUNTIME_ERROR(482, (void)Win32Printers().FontNames(u"Impresora que no existe"));
}

TEST(InstalledPrinters, TellThePapersThatTheyTake) {
  EXPECT_THAT(Win32Printers().PaperCodes(kA4), Contains(DMPAPER_A4));
  EXPECT_THAT(Win32Printers().PaperCodes(kA4), Not(Contains(113)));
  EXPECT_RUNTIME_ERROR(482, (void)Win32Printers().PaperCodes(u"Impresora que no existe"));
}

struct PrinterPages : testing::Test {
  Win32Printers printers;
};

TEST_F(PrinterPages, HaveThePrintableWidthInTwips) {
  EXPECT_NEAR(printers.Open(kA4)->ScaleWidth(), 11906, 10);
  EXPECT_NEAR(printers.Open(kReceipts)->ScaleWidth(), 11906 - 720, 10);
}

TEST_F(PrinterPages, TakeAPaperByItsCode) {
  const auto printer = printers.Open(kA4);
  printer->SetPaper({DMPAPER_A5, u"PS", 11906, 16838});
  EXPECT_NEAR(printer->ScaleWidth(), Twips(14.8), 15);
}

TEST_F(PrinterPages, FallBackOnTheSizeWhereThePrinterDoesNotKnowTheCode) {
  const auto printer = printers.Open(kA4);
  printer->SetPaper({113, u"PS", Twips(14.8), Twips(21)});
  EXPECT_NEAR(printer->ScaleWidth(), Twips(14.8), 15);
}

TEST_F(PrinterPages, TakeThePrintersOwnPaperOfThatName) {
  const auto printer = printers.Open(kReceipts);
  printer->SetPaper({0, u"PS", 11339, 5760});
  EXPECT_NEAR(printer->ScaleWidth(), 11339 - 720, 10);
}

TEST_F(PrinterPages, TakeAnySizeWhereThePrinterAllowsIt) {
  const auto printer = printers.Open(kA4);
  printer->SetPaper({0, u"PS", Twips(12.3), Twips(17.7)});
  EXPECT_NEAR(printer->ScaleWidth(), Twips(12.3), 15);
  printer->SetPageSize(Twips(18.5), Twips(9.1));
  EXPECT_NEAR(printer->ScaleWidth(), Twips(18.5), 15);
  printer->SetPaper({0, u"PS", 11906, 16848});
  EXPECT_NEAR(printer->ScaleWidth(), 11906, 15);
}

TEST_F(PrinterPages, KeepTheFontWhenThePaperChanges) {
  const auto printer = printers.Open(kA4);
  const Font font{u"Times New Roman", 12, true, false, true};
  printer->SetFont(font);
  const double width = printer->Measure(u"Señor 123").Width();
  printer->SetPaper({DMPAPER_A5, u"PS", 0, 0});
  EXPECT_EQ(printer->CurrentFont(), font);
  EXPECT_EQ(printer->Measure(u"Señor 123").Width(), width);
}

TEST_F(PrinterPages, MeasureFinerThanTheScreen) {
  const auto printer = printers.Open(kA4);
  const TextExtent extent = printer->Measure(u"1.234,56");
  ASSERT_EQ(extent.ends.size(), 8U);
  EXPECT_TRUE(std::is_sorted(extent.ends.begin(), extent.ends.end()));
  // Eight characters of Arial at 10 points: six digits of 0.556 em and two signs of 0.278 em.
  EXPECT_NEAR(extent.Width(), (6 * 0.556 + 2 * 0.278) * 200, 15);
  EXPECT_NEAR(extent.height, (0.905 + 0.212) * 200, 3);  // its ascent and descent
}

TEST_F(PrinterPages, CannotChangeThePaperDuringAJob) {
  const auto printer = printers.Open(kA4);
  printer->PrintText({0, 0}, u" ");
  EXPECT_RUNTIME_ERROR(482, printer->SetPaper({DMPAPER_A5, u"PS", 0, 0}));
}

TEST_F(PrinterPages, OfABrokenPrinterEndInError482) {
  const auto printer = printers.Open(kBroken);
  printer->PrintText({0, 0}, u"nada");
  EXPECT_RUNTIME_ERROR(482, printer->EndDoc());
  printer->PrintText({0, 0}, u"otra vez");
  EXPECT_RUNTIME_ERROR(482, printer->EndDoc());
}

TEST_F(PrinterPages, KeepTheFontOnTheNextPageOfAJob) {
  const auto printer = printers.Open(kA4);
  const Font font{u"Times New Roman", 12, true, false, true};
  printer->SetFont(font);
  printer->PrintText({0, 0}, u"uno");
  const double width = printer->Measure(u"Señor 123").Width();
  printer->NewPage();
  EXPECT_EQ(printer->CurrentFont(), font);
  EXPECT_EQ(printer->Measure(u"Señor 123").Width(), width);
  printer->PrintText({0, 0}, u"dos");
  printer->EndDoc();
}

TEST_F(PrinterPages, ANewPageNeedsAJob) {
  const auto printer = printers.Open(kA4);
  EXPECT_RUNTIME_ERROR(482, printer->NewPage());
  printer->PrintText({0, 0}, u"uno");
  printer->EndDoc();
  EXPECT_RUNTIME_ERROR(482, printer->NewPage());
}

TEST_F(PrinterPages, WithoutAnythingPrintedAreNoJob) { printers.Open(kBroken)->EndDoc(); }

TEST_F(PrinterPages, LeaveNoGdiObjectsBehind) {
  const auto print = [&](std::u16string_view device) {
    const auto printer = printers.Open(device);
    printer->SetPaper({0, u"PS", 11339, 5760});
    for (const double points : {8.25, 10.0, 14.0}) {
      printer->SetFont({u"Arial", points});
      printer->PrintText({500, points * 100}, u"Señor 123");
    }
    printer->PaintPicture(BitmapPicture(Bitmap24(20, 20)), {1000, 1000});
    if (device != kBroken) printer->EndDoc();
  };
  print(kReceipts);
  print(kBroken);
  const long before = GdiObjectCount();
  for (int i = 0; i < 10; ++i) {
    print(kReceipts);
    print(kBroken);  // thrown away
  }
  EXPECT_EQ(GdiObjectCount(), before);
}

void ExpectPage(std::u16string_view device, const Paper& paper, double width, double height) {
  const std::optional<PageSize> page = Win32Printers().PageOf(device, paper);
  ASSERT_TRUE(page);
  EXPECT_NEAR(page->widthTwips, width, 15);
  EXPECT_NEAR(page->heightTwips, height, 15);
}

TEST(PagesOfPrinters, AreWholeWithTheirUnprintableEdges) {
  ExpectPage(kA4, {DMPAPER_A4, u"", 0, 0}, 11906, 16838);
  ExpectPage(kA4, {DMPAPER_A5, u"", 0, 0}, Twips(14.8), Twips(21));
  ExpectPage(kReceipts, {0, u"PS", 11339, 5760}, 11339, 5760);
}

TEST(PagesOfPrinters, WithoutACodeAreOfTheSizeGiven) {
  ExpectPage(kA4, {0, u"Especial", Twips(12.3), Twips(17.7)}, Twips(12.3), Twips(17.7));
}

TEST(PagesOfPrinters, AreNoneForACodeThatThePrinterRefuses) {
  EXPECT_EQ(Win32Printers().PageOf(kA4, {113, u"", 11906, 16838}), std::nullopt);
}

}  // namespace
}  // namespace qm::platform::win32
