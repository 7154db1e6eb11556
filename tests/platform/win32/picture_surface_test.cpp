#include "platform/win32/picture_surface.h"

#include <algorithm>
#include <cmath>

#include "platform/win32/pictures.h"
#include "tests/platform/win32/expect_error.h"
#include "tests/platform/win32/gdi_objects.h"

namespace qm::platform::win32 {
namespace {

constexpr double kTwipsPerPixel = 15;

struct Ink {
  int left = INT32_MAX;
  int right = -1;
  int top = INT32_MAX;
  int bottom = -1;

  [[nodiscard]] bool Any() const { return right >= 0; }
};

// The bounds of all that is not white.
Ink InkOn(const Bitmap24& page) {
  Ink ink;
  for (int y = 0; y < page.Height(); ++y)
    for (int x = 0; x < page.Width(); ++x) {
      const std::uint8_t* const pixel = page.Row(y) + x * 3;
      if (pixel[0] == 255 && pixel[1] == 255 && pixel[2] == 255) continue;
      ink = {std::min(ink.left, x), std::max(ink.right, x), std::min(ink.top, y), std::max(ink.bottom, y)};
    }
  return ink;
}

const Font kMixes[] = {{u"Arial", 10},
                       {u"Arial", 10, true},
                       {u"Times New Roman", 12},
                       {u"Times New Roman", 9, false, true},
                       {u"Courier New", 10},
                       {u"Courier New", 8.25, true},
                       {u"Arial", 14, false, false, true},
                       {u"Times New Roman", 11, true, true}};

struct PagePicture : testing::Test {
  PagePicture() { surface.SetPageSize(6000, 3000); }

  PictureSurface surface;
};

TEST_F(PagePicture, HasFifteenTwipsAPixelAndIsWhite) {
  ASSERT_NE(surface.Page(), nullptr);
  EXPECT_EQ(surface.Page()->Width(), 400);
  EXPECT_EQ(surface.Page()->Height(), 200);
  EXPECT_EQ(surface.ScaleWidth(), 6000);
  EXPECT_FALSE(InkOn(*surface.Page()).Any());
}

TEST_F(PagePicture, IsSeenFromItsTopRowDown) {
  surface.SetForeColor(0x0000FF);
  surface.PrintText({1500, 750}, u"X");
  const PageImage image = surface.Image();
  ASSERT_EQ(image.width, 400);
  ASSERT_EQ(image.height, 200);
  for (int y = 0; y < image.height; ++y) EXPECT_EQ(image.topRow + y * image.stride, surface.Page()->Row(y));
  const Ink ink = InkOn(*surface.Page());
  ASSERT_TRUE(ink.Any());
  const std::uint8_t* const inked = image.topRow + (ink.top + ink.bottom) / 2 * image.stride;
  EXPECT_GT(std::count_if(inked, inked + image.width * 3, [](std::uint8_t byte) { return byte != 255; }), 0);
}

TEST(NewPagePicture, HasNoPixelsBeforeItHasASize) {
  Win32PicturePages pages;
  const std::unique_ptr<PicturePage> page = pages.New();
  EXPECT_EQ(page->Image().topRow, nullptr);
  EXPECT_EQ(page->BmpBytes(), "");
}

TEST_F(PagePicture, OfA4IsRoundedToWholePixels) {
  surface.SetPageSize(11906, 16838);
  EXPECT_EQ(surface.Page()->Width(), 794);
  EXPECT_EQ(surface.Page()->Height(), 1123);
}

TEST_F(PagePicture, TooLargeForMemoryIsError7) { EXPECT_RUNTIME_ERROR(7, surface.SetPageSize(6e5, 6e5)); }

TEST_F(PagePicture, DoesNotExistBeforeItsSizeIsKnownAndDrawsNothing) {
  PictureSurface empty;
  empty.PrintText({0, 0}, u"nada");
  EXPECT_EQ(empty.Page(), nullptr);
  EXPECT_EQ(empty.BmpBytes(), "");
  EXPECT_GT(empty.Measure(u"nada").Width(), 0);
}

TEST_F(PagePicture, StartsWithADefaultFont) { EXPECT_EQ(surface.CurrentFont(), Font{}); }

// Each character by itself is as wide as Windows says the whole text is made up of.
TEST_F(PagePicture, MeasuresAsWindowsMeasures) {
  constexpr std::u16string_view kText = u"Factura nº 1.234,50 € de la Señora Núñez (AVWA)";
  const OwnedDc dc(CreateCompatibleDC(nullptr));
  for (const Font& font : kMixes) {
    surface.SetFont(font);
    const TextExtent measured = surface.Measure(kText);
    DeviceFonts fonts(96.0 / 72, ANTIALIASED_QUALITY);
    const SelectedObject selected(dc.Get(), fonts.Get(dc.Get(), font).device.Handle());
    std::vector<int> ends(kText.size());
    SIZE size{};
    GetTextExtentExPointW(dc.Get(), Wide(kText.data()), static_cast<int>(kText.size()), 0, nullptr,
                          ends.data(), &size);
    ASSERT_EQ(measured.ends.size(), kText.size());
    for (std::size_t i = 0; i < kText.size(); ++i)
      EXPECT_DOUBLE_EQ(measured.ends[i], ends[i] * kTwipsPerPixel) << testing::PrintToString(font.name) << i;
    EXPECT_DOUBLE_EQ(measured.height, static_cast<double>(size.cy) * kTwipsPerPixel);
  }
}

TEST_F(PagePicture, MeasuresAdditively) {
  for (const Font& font : kMixes) {
    surface.SetFont(font);
    const double whole = surface.Measure(u"Valencia AVA To").Width();
    double sum = 0;
    for (const char16_t letter : std::u16string_view(u"Valencia AVA To"))
      sum += surface.Measure({&letter, 1}).Width();
    EXPECT_DOUBLE_EQ(whole, sum);
  }
}

TEST_F(PagePicture, ControlCharactersHaveNoWidthAndDrawNothing) {
  EXPECT_EQ(surface.Measure(u"a\r\n\tb").Width(), surface.Measure(u"ab").Width());
  surface.PrintText({150, 150}, u"a\r\n\tb\x1F");
  const std::string withControls = surface.BmpBytes();
  surface.SetPageSize(6000, 3000);
  surface.PrintText({150, 150}, u"ab");
  EXPECT_TRUE(withControls == surface.BmpBytes());
}

TEST_F(PagePicture, ASurrogatePairIsOneCharacter) {
  const TextExtent pair = surface.Measure(u"a\U0001D11Eb");
  ASSERT_EQ(pair.ends.size(), 4U);
  EXPECT_EQ(pair.ends[1], pair.ends[2]);
  EXPECT_EQ(pair.Width() - pair.ends[2], surface.Measure(u"b").Width());
  surface.PrintText({0, 0}, u"a\U0001D11Eb");
  const char16_t half[] = {u'a', 0xD834, u'b'};
  EXPECT_EQ(surface.Measure({half, 3}).Width(), surface.Measure(u"ab").Width());
  surface.PrintText({0, 600}, {half, 3});
  EXPECT_TRUE(InkOn(*surface.Page()).Any());
}

TEST_F(PagePicture, AnEmptyTextHasNoWidthAndTheHeightOfALine) {
  EXPECT_EQ(surface.Measure(u"").Width(), 0);
  EXPECT_EQ(surface.Measure(u"").height, surface.Measure(u"x").height);
}

TEST_F(PagePicture, ATextStandsAtItsTopLeftCorner) {
  surface.PrintText({1500, 750}, u"HHH");
  const Ink ink = InkOn(*surface.Page());
  EXPECT_NEAR(ink.left, 101, 1.01);
  EXPECT_GE(ink.top, 50);
  EXPECT_LE(ink.bottom, 50 + surface.Measure(u"H").height / kTwipsPerPixel);
}

TEST_F(PagePicture, ARightAlignedTextEndsAtTheRightEdge) {
  for (const Font& font : kMixes) {
    surface.SetPageSize(6000, 3000);
    surface.SetFont(font);
    surface.PrintText({3000 - surface.Measure(u"1.234,00").Width(), 300}, u"1.234,00");
    const Ink ink = InkOn(*surface.Page());
    EXPECT_LE(ink.right, 200) << testing::PrintToString(font.name);
    EXPECT_GE(ink.right, 196) << testing::PrintToString(font.name);  // a zero's own space on the right
  }
}

TEST_F(PagePicture, AnUnderlineReachesFromTheFirstCharacterToTheLast) {
  Font font;
  font.underline = true;
  surface.SetFont(font);
  surface.PrintText({1500, 750}, u"   a   ");
  const Ink ink = InkOn(*surface.Page());
  EXPECT_NEAR(ink.left, 100, 1);
  EXPECT_NEAR(ink.right, 100 + surface.Measure(u"   a   ").Width() / kTwipsPerPixel - 1, 1);
}

TEST_F(PagePicture, DrawsInTheColourThatIsSet) {
  surface.SetForeColor(0x0000FF);  // blue, green, red
  surface.PrintText({150, 150}, u"████");
  const std::uint8_t* const pixel = surface.Page()->Row(18) + 20 * 3;
  EXPECT_EQ(pixel[2], 255);
  EXPECT_EQ(pixel[1], 0);
  EXPECT_EQ(pixel[0], 0);
}

TEST_F(PagePicture, ASystemColourIsTheUsers) {
  surface.SetForeColor(static_cast<std::int32_t>(0x80000000U | COLOR_HIGHLIGHT));
  surface.PrintText({150, 150}, u"████");
  const std::uint8_t* const pixel = surface.Page()->Row(18) + 20 * 3;
  EXPECT_EQ(RGB(pixel[2], pixel[1], pixel[0]), GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(PagePicture, APictureIsPaintedAtItsOwnSize) {
  Bitmap24 bitmap(20, 10);
  {
    const BitmapDc dc(bitmap.Handle());
    PatBlt(dc.Get(), 0, 0, 20, 10, BLACKNESS);
  }
  surface.PaintPicture(BitmapPicture(std::move(bitmap)), {300, 150});
  const Ink ink = InkOn(*surface.Page());
  EXPECT_EQ(ink.left, 20);
  EXPECT_EQ(ink.right, 39);
  EXPECT_EQ(ink.top, 10);
  EXPECT_EQ(ink.bottom, 19);
}

TEST_F(PagePicture, APictureCoversTheTextsBeforeItAndNotThoseAfterIt) {
  surface.PrintText({300, 150}, u"HHHH");
  surface.PaintPicture(BitmapPicture(Bitmap24(300, 100)), {0, 0});
  EXPECT_FALSE(InkOn(*surface.Page()).Any());
  surface.PrintText({300, 150}, u"HHHH");
  EXPECT_TRUE(InkOn(*surface.Page()).Any());
}

// Overlapping texts of several fonts and colours, drawn here one after the other without any grouping.
TEST_F(PagePicture, LooksAsIfDrawnInTheOrderOfTheCalls) {
  PictureSurface inOrder;
  inOrder.SetPageSize(6000, 3000);
  for (int i = 0; i < 120; ++i) {
    const Point at{static_cast<double>(i * 733 % 5000), static_cast<double>(i * 379 % 2600)};
    for (PictureSurface* each : {&surface, &inOrder}) {
      each->SetFont(kMixes[i % 8]);
      each->SetForeColor(static_cast<std::int32_t>(i * 2654435 & 0xFFFFFF));
      each->PrintText(at, u"Señor 123");
    }
    (void)inOrder.Page();  // draws what was printed so far
  }
  EXPECT_TRUE(surface.BmpBytes() == inOrder.BmpBytes());
}

TEST_F(PagePicture, ANewSizeGivesANewWhitePage) {
  surface.PrintText({300, 150}, u"HHHH");
  surface.SetPageSize(3000, 1500);
  EXPECT_EQ(surface.Page()->Width(), 200);
  EXPECT_FALSE(InkOn(*surface.Page()).Any());
}

TEST_F(PagePicture, IsWrittenAsABmpFile) {
  const std::string bytes = surface.BmpBytes();
  EXPECT_EQ(bytes.size(), 54U + 400 * 3 * 200);
  EXPECT_EQ(bytes.substr(0, 2), "BM");
}

TEST(GdiObjects, AreCountedByTheseTests) {
  const long before = GdiObjectCount();
  {
    const OwnedDc dc(CreateCompatibleDC(nullptr));
    EXPECT_GT(GdiObjectCount(), before);
  }
  EXPECT_EQ(GdiObjectCount(), before);
}

TEST_F(PagePicture, ManyPagesLeaveNoGdiObjectsBehind) {
  const long before = GdiObjectCount();
  for (int page = 0; page < 100; ++page) {
    PictureSurface other;
    other.SetPageSize(3000, 3000);
    for (const Font& font : kMixes) {
      other.SetFont(font);
      other.PrintText({100, 100}, u"Señor 123");
    }
    (void)other.Page();
  }
  EXPECT_EQ(GdiObjectCount(), before);
}

}  // namespace
}  // namespace qm::platform::win32
