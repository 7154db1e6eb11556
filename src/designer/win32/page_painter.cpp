#include "designer/win32/page_painter.h"

#include <algorithm>

#include "data/value_lookup.h"
#include "designer/win32/palette.h"
#include "designer/win32/picture_scaler.h"
#include "platform/win32/pictures.h"
#include "print/field_printer.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::SelectedObject;

constexpr double kTwipsPerPoint = 20;
constexpr int kShadow = 4;
constexpr int kPrinterDpi = 600;

platform::Font FontOf(const FieldFont& font) {
  return {.name = font.name,
          .sizePoints = std::clamp<double>(font.size, 1, print::kLargestFontSize),
          .bold = font.bold,
          .italic = font.italic,
          .underline = font.underline,
          .strikethru = font.strikethru};
}

std::int16_t Extent(float twips) { return static_cast<std::int16_t>(std::clamp(twips, 0.0F, 32767.0F)); }

print::FieldState StateOf(const Field& field) {
  print::FieldState state;
  state.width = Extent(field.box.width);
  state.height = Extent(field.box.height);
  state.alignment = static_cast<std::int16_t>(field.alignment);
  state.font = FontOf(field.font);
  state.foreColor = field.font.foreColor;
  return state;
}

RECT Moved(const RECT& area, POINT corner) {
  return {area.left - corner.x, area.top - corner.y, area.right - corner.x, area.bottom - corner.y};
}

std::size_t Visible(std::u16string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char16_t c) { return c > 32; }));
}

// The bitmap under a device context whose coordinates are those of the page.
class DrawingOn {
 public:
  DrawingOn(HDC dc, const Bitmap32& bitmap, POINT corner) : dc_(dc), selected_(dc, bitmap.Handle()) {
    SetViewportOrgEx(dc, -corner.x, -corner.y, nullptr);
  }
  DrawingOn(const DrawingOn&) = delete;
  DrawingOn& operator=(const DrawingOn&) = delete;
  ~DrawingOn() {
    SetViewportOrgEx(dc_, 0, 0, nullptr);
    GdiFlush();  // before anyone reads the pixels
  }

 private:
  HDC dc_;
  SelectedObject selected_;
};

}  // namespace

// The canvas of the printing surfaces on a part of the page, and what the field printer made of a caption.
class PagePainter::FieldSurface : public platform::Surface {
 public:
  FieldSurface(HDC dc, const PageTransform& transform, platform::Files& files, platform::Pictures& pictures)
      : canvas_(dc, transform.DotsPerInch(), transform.DotsPerInch(), CLEARTYPE_QUALITY),
        printer_(*this, files, pictures) {}

  void Add(const Field& field) {
    printed_ = 0;
    widest_ = 0;
    const platform::Point corner{field.box.left, field.box.top};
    printer_.Print(StateOf(field), corner, field.caption, data::kLiteralText);
  }
  // Of the field added last.
  [[nodiscard]] bool IsCut(const Field& field) const {
    return printed_ < Visible(field.caption) || widest_ > field.box.width;
  }
  void Draw() { (void)canvas_.DrawTexts(); }
  [[nodiscard]] platform::Font CurrentFont() const override { return canvas_.CurrentFont(); }
  void SetFont(const platform::Font& font) override { canvas_.SetFont(font); }
  void SetForeColor(std::int32_t color) override { canvas_.SetForeColor(color); }
  [[nodiscard]] platform::TextExtent Measure(std::u16string_view text) override {
    return canvas_.Measure(text);
  }
  void PrintText(platform::Point topLeft, std::u16string_view text) override {
    printed_ += Visible(text);
    widest_ = std::max(widest_, canvas_.Measure(text).Width());
    canvas_.AddText(topLeft, text);
  }
  void PaintPicture(const platform::Picture&, platform::Point) override {}
  void SetPageSize(double, double) override {}
  [[nodiscard]] double ScaleWidth() const override { return 0; }

 private:
  platform::win32::Canvas canvas_;
  print::FieldPrinter printer_;
  std::size_t printed_ = 0;  // visible characters of the field added last
  double widest_ = 0;
};

PagePainter::PagePainter(platform::Files& files, platform::Pictures& pictures)
    : files_(files),
      pictures_(pictures),
      dc_(CreateCompatibleDC(nullptr)),
      printer_(std::make_unique<FieldSurface>(dc_.Get(), PageTransform(kPrinterDpi), files, pictures)),
      marks_(std::make_unique<BoxMarks>(*printer_)) {
  SetTransform(transform_);
}

PagePainter::~PagePainter() = default;

void PagePainter::SetTransform(const PageTransform& transform) {
  transform_ = transform;
  surface_ = std::make_unique<FieldSurface>(dc_.Get(), transform, files_, pictures_);
}

RECT PagePainter::BoundsOf(const Field& field) const {
  // One line is drawn however low the box is, and one letter however narrow; slanted letters reach beyond.
  const double reach = std::clamp<double>(field.font.size, 1, print::kLargestFontSize) * kTwipsPerPoint * 2;
  const Box& box = field.box;
  return {transform_.Pixels(box.left - reach), transform_.Pixels(box.top - reach),
          transform_.Pixels(box.Right() + reach), transform_.Pixels(box.Bottom() + reach)};
}

void PagePainter::DrawPage(Bitmap32& target, POINT corner, const Layout& layout) const {
  const RECT page = Moved(transform_.PageOf(layout), corner);
  target.Fill({0, 0, target.Width(), target.Height()}, PixelOf(kDesk));
  RECT shadow = page;
  OffsetRect(&shadow, kShadow, kShadow);
  target.Fill(shadow, PixelOf(kPageShadow));
  RECT edge = page;
  InflateRect(&edge, 1, 1);
  target.Fill(edge, PixelOf(kPageEdge));
  target.Fill(page, PixelOf(RGB(255, 255, 255)));
  if (layout.background)
    DrawStretched(target, corner, transform_.PageOf(layout), platform::win32::BitmapOf(*layout.background));
  if (!layout.logo || !layout.logo->picture) return;
  const RECT box = transform_.PixelsOf(layout.logo->box);
  DrawStretched(target, corner, box, platform::win32::BitmapOf(*layout.logo->picture));
  if (layout.logo->borders) target.Outline(Moved(box, corner), PixelOf(RGB(0, 0, 0)), false);
}

void PagePainter::AddField(Bitmap32& target, POINT corner, const Layout& layout, const Field& field) {
  const RECT box = Moved(transform_.PixelsOf(field.box), corner);
  if (marks_->Of(layout, field) != BoxMark::None) target.Tint(box, PixelOf(kTint), kTintPercent);
  surface_->Add(field);
  if (Visible(field.caption) == 0 || surface_->IsCut(field))
    target.Outline(box, PixelOf(kFaintOutline), true);
}

template <class Body>
void PagePainter::WithTexts(Bitmap32& target, POINT corner, const Body& body) {
  const DrawingOn drawing(dc_.Get(), target, corner);
  body();
  surface_->Draw();
}

void PagePainter::Draw(Bitmap32& target, POINT corner, const Layout& layout, int without) {
  DrawPage(target, corner, layout);
  const RECT view{corner.x, corner.y, corner.x + target.Width(), corner.y + target.Height()};
  WithTexts(target, corner, [&] {
    for (int index = 1; index < static_cast<int>(layout.men.size()); ++index) {
      const Field* field = layout.At(index);
      if (field == nullptr || index == without) continue;
      const RECT bounds = BoundsOf(*field);
      RECT common{};
      if (IntersectRect(&common, &bounds, &view)) AddField(target, corner, layout, *field);
    }
  });
}

void PagePainter::DrawField(Bitmap32& target, POINT corner, const Layout& layout, const Field& field) {
  WithTexts(target, corner, [&] { AddField(target, corner, layout, field); });
}

}  // namespace qm::designer::win32
