#include <gmock/gmock.h>

#include <cmath>

#include "data/value_lookup.h"
#include "designer/win32/page_painter.h"
#include "designer/win32/picture_scaler.h"
#include "designer/win32/tile_cache.h"
#include "platform/win32/picture_surface.h"
#include "print/field_printer.h"
#include "tests/designer/layouts.h"
#include "tests/designer/win32/window_world.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::Bitmap24;

constexpr COLORREF kWhite = RGB(255, 255, 255);

// Where something dark is, in pixels; empty where nothing is.
template <class IsDark>
RECT Ink(int width, int height, const IsDark& isDark) {
  RECT ink{width, height, 0, 0};
  for (LONG y = 0; y < height; ++y)
    for (LONG x = 0; x < width; ++x)
      if (isDark(x, y)) {
        ink.left = std::min(ink.left, x);
        ink.top = std::min(ink.top, y);
        ink.right = std::max(ink.right, x + 1);
        ink.bottom = std::max(ink.bottom, y + 1);
      }
  return ink;
}

RECT InkOf(const Bitmap32& bitmap) {
  return Ink(bitmap.Width(), bitmap.Height(),
             [&](LONG x, LONG y) { return (bitmap.Row(static_cast<int>(y))[x] >> 8 & 0xFF) < 128; });
}

RECT InkOf(const Bitmap24& bitmap) {
  return Ink(bitmap.Width(), bitmap.Height(),
             [&](LONG x, LONG y) { return bitmap.Row(static_cast<int>(y))[x * 3 + 1] < 128; });
}

FieldPointer FieldOf(std::u16string caption, const Box& box, int alignment, float size, bool bold) {
  Field field;
  field.caption = std::move(caption);
  field.box = box;
  field.alignment = alignment;
  field.font.size = size;
  field.font.bold = bold;
  return std::make_shared<const Field>(std::move(field));
}

bool SamePixels(const Bitmap32& left, const Bitmap32& right) {
  if (left.Width() != right.Width() || left.Height() != right.Height()) return false;
  for (int y = 0; y < left.Height(); ++y)
    for (int x = 0; x < left.Width(); ++x)
      if ((left.Row(y)[x] & 0xFFFFFF) != (right.Row(y)[x] & 0xFFFFFF)) return false;
  return true;
}

// Every pixel of its own colour, so that a seam would show.
PicturePointer ColourfulPicture(int width, int height) {
  Bitmap24 bitmap(width, height);
  for (int y = 0; y < height; ++y) {
    auto* const row = const_cast<std::uint8_t*>(bitmap.Row(y));
    for (int x = 0; x < width; ++x)
      for (int part = 0; part < 3; ++part)
        row[x * 3 + part] = static_cast<std::uint8_t>(x * 7 + y * 13 + part * 80);
  }
  return std::make_shared<const platform::win32::BitmapPicture>(std::move(bitmap));
}

TEST(PaintingThePage, PutsACaptionWhereItPrints) {
  WindowWorld world;
  const struct {
    std::u16string caption;
    Box box;
    int alignment;
    float size;
    bool bold;
  } cases[] = {{u"NOMBRE (CLIEN)", {300, 300, 3000, 300}, 0, 10, false},
               {u"IMPORTE", {300, 300, 3000, 300}, 1, 12, true},
               {u"Título", {300, 300, 3000, 600}, 2, 18, false},
               {u"Un texto de varias líneas que no cabe en una sola", {300, 300, 1500, 1200}, 0, 9, false}};
  for (const auto& each : cases) {
    Layout layout = tests::PageWith({});
    layout.canvasWidth = 6000;
    layout.canvasHeight = 3000;
    layout.men.push_back(FieldOf(each.caption, each.box, each.alignment, each.size, each.bold));
    PagePainter painter(world.files, world.realPictures);
    Bitmap32 canvas(400, 200);
    painter.Draw(canvas, {0, 0}, layout, 0);

    platform::win32::PictureSurface paper;
    paper.SetPageSize(6000, 3000);
    print::FieldPrinter printer(paper, world.files, world.realPictures);
    print::FieldState state;
    state.width = static_cast<std::int16_t>(each.box.width);
    state.height = static_cast<std::int16_t>(each.box.height);
    state.alignment = static_cast<std::int16_t>(each.alignment);
    state.font.sizePoints = each.size;
    state.font.bold = each.bold;
    printer.Print(state, {each.box.left, each.box.top}, each.caption, data::kLiteralText);

    const RECT shown = InkOf(canvas);
    const RECT printed = InkOf(*paper.Page());
    EXPECT_NEAR(shown.left, printed.left, 1);
    EXPECT_NEAR(shown.top, printed.top, 1);
    EXPECT_NEAR(shown.right, printed.right, 1);
    EXPECT_NEAR(shown.bottom, printed.bottom, 1);
    EXPECT_GT(shown.right, shown.left);
  }
}

TEST(PaintingThePage, InSquaresIsTheSameAsInOnePiece) {
  WindowWorld world;
  Layout layout = tests::PageWith({{1000, 900, 4000, 300}, {3700, 3600, 2000, 300}, {-600, 5000, 3000, 300}});
  layout.background = ColourfulPicture(311, 473);
  PagePainter painter(world.files, world.realPictures);
  for (const int dpi : {48, 96, 144}) {
    painter.SetTransform(PageTransform(dpi));
    constexpr int kSide = TileCache::kSide;
    Bitmap32 whole(3 * kSide, 3 * kSide);
    painter.Draw(whole, {-kSide, -kSide}, layout, 0);
    Bitmap32 joined(3 * kSide, 3 * kSide);
    for (int row = -1; row <= 1; ++row)
      for (int column = -1; column <= 1; ++column) {
        Bitmap32 square(kSide, kSide);
        painter.Draw(square, {column * kSide, row * kSide}, layout, 0);
        joined.Copy(square, {(column + 1) * kSide, (row + 1) * kSide}, {0, 0, 3 * kSide, 3 * kSide});
      }
    EXPECT_TRUE(SamePixels(joined, whole)) << dpi << " dots per inch";
  }
}

TEST(PaintingThePage, LeavesOutTheFieldThatIsBeingMovedAndDrawsItOnTop) {
  WindowWorld world;
  Layout layout = tests::PageWith({{300, 300, 2000, 300}});
  PagePainter painter(world.files, world.realPictures);
  Bitmap32 without(200, 100);
  painter.Draw(without, {0, 0}, layout, 1);
  EXPECT_EQ(InkOf(without).right, 0);
  painter.DrawField(without, {0, 0}, layout, *layout.At(1));
  Bitmap32 with(200, 100);
  painter.Draw(with, {0, 0}, layout, 0);
  EXPECT_TRUE(SamePixels(without, with));
}

TEST(PaintingThePage, TouchesNothingOutsideTheBoundsOfAField) {
  WindowWorld world;
  Layout layout = tests::PageWith({});
  layout.men.push_back(FieldOf(u"Ágil WÑj", {3000, 3000, 0, 0}, 2, 36, true));
  PagePainter painter(world.files, world.realPictures);
  Bitmap32 page(600, 600);
  painter.Draw(page, {0, 0}, layout, 0);
  const RECT ink = InkOf(page);
  const RECT bounds = painter.BoundsOf(*layout.At(1));
  EXPECT_GT(ink.right, ink.left);
  EXPECT_GE(ink.left, bounds.left);
  EXPECT_GE(ink.top, bounds.top);
  EXPECT_LE(ink.right, bounds.right);
  EXPECT_LE(ink.bottom, bounds.bottom);
}

TEST(PaintingThePage, OutlinesEmptyAndCutFieldsAndTintsThoseOffThePage) {
  WindowWorld world;
  PagePainter painter(world.files, world.realPictures);
  const auto drawn = [&](std::u16string caption, const Box& box) {
    Layout layout = tests::PageWith({});
    layout.men.push_back(FieldOf(std::move(caption), box, 0, 10, false));
    Bitmap32 page(300, 100);
    painter.Draw(page, {0, 0}, layout, 0);
    return page;
  };
  const auto pixel = [](const Bitmap32& page, int x, int y) { return page.Row(y)[x] & 0xFFFFFF; };
  const Box box{300, 300, 1500, 300};  // pixels 20,20 to 120,40
  EXPECT_NE(pixel(drawn(u"", box), 20, 20), 0xFFFFFFU);
  EXPECT_NE(pixel(drawn(u"Mucho más texto del que cabe en la caja", box), 20, 20), 0xFFFFFFU);
  EXPECT_EQ(pixel(drawn(u"Cabe", box), 20, 20), 0xFFFFFFU);
  EXPECT_EQ(pixel(drawn(u"Cabe", box), 100, 38), 0xFFFFFFU);
  EXPECT_NE(pixel(drawn(u"Cabe", {-300, 300, 1500, 300}), 60, 38), 0xFFFFFFU) << "off the page";
  EXPECT_NE(pixel(drawn(u"Cabe", {300, 300, 1500, 150}), 100, 22), 0xFFFFFFU) << "too low for its font";
}

TEST(StretchingAPicture, GivesTheMeanOfThePixelsThatFallTogether) {
  Bitmap24 picture(4, 2);
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 4; ++x)
      for (int part = 0; part < 3; ++part)
        const_cast<std::uint8_t*>(picture.Row(y))[x * 3 + part] = static_cast<std::uint8_t>(x * 20 + y * 100);
  Bitmap32 target(2, 1);
  DrawStretched(target, {0, 0}, {0, 0, 2, 1}, picture);
  EXPECT_EQ(target.Row(0)[0] & 0xFF, 60U);  // of 0, 20, 100, 120
  EXPECT_EQ(target.Row(0)[1] & 0xFF, 100U);
  Bitmap32 larger(8, 4);
  DrawStretched(larger, {0, 0}, {0, 0, 8, 4}, picture);
  EXPECT_EQ(larger.Row(3)[7] & 0xFF, 160U);
  EXPECT_EQ(larger.Row(0)[2] & 0xFF, 20U);
}

TEST(KeepingSquares, ForgetsTheOneUnusedForLongest) {
  TileCache cache;
  const int most = static_cast<int>(TileCache::kFewest);
  for (int i = 0; i < most; ++i) (void)cache.Add({i, 0});
  EXPECT_NE(cache.Find({0, 0}), nullptr);
  (void)cache.Add({0, 1});
  EXPECT_EQ(cache.Count(), TileCache::kFewest);
  EXPECT_EQ(cache.Find({1, 0}), nullptr);
  EXPECT_NE(cache.Find({0, 0}), nullptr);
}

TEST(KeepingSquares, CountsThemFromThePagesCornerInBothDirections) {
  const auto [first, last] = TileCache::Touched({-1, 0, 256, 257});
  EXPECT_EQ(first, (TileCache::Place{-1, 0}));
  EXPECT_EQ(last, (TileCache::Place{0, 1}));
  TileCache cache;
  (void)cache.Add({-1, 0});
  (void)cache.Add({0, 0});
  cache.Drop({-10, 0, 0, 10});
  EXPECT_EQ(cache.Find({-1, 0}), nullptr);
  EXPECT_NE(cache.Find({0, 0}), nullptr);
}

}  // namespace
}  // namespace qm::designer::win32
