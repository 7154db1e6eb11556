#include "platform/win32/canvas.h"

#include <algorithm>
#include <cmath>

#include "platform/text_batches.h"

namespace qm::platform::win32 {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kPointsPerInch = 72;
constexpr double kFarthest = 1 << 27;  // beyond any page, and still safe to add to

int Rounded(double units) { return static_cast<int>(std::lround(std::clamp(units, -kFarthest, kFarthest))); }

COLORREF Resolved(std::int32_t color) {
  const auto bits = static_cast<std::uint32_t>(color);
  return bits & 0x80000000U ? GetSysColor(static_cast<int>(bits & 0xFF)) : bits & 0xFFFFFFU;
}

}  // namespace

Canvas::Canvas(HDC dc, int dotsPerInchX, int dotsPerInchY, BYTE fontQuality)
    : dc_(dc),
      unitsPerTwipX_(dotsPerInchX / kTwipsPerInch),
      unitsPerTwipY_(dotsPerInchY / kTwipsPerInch),
      fonts_(dotsPerInchY / kPointsPerInch, fontQuality) {}

void Canvas::SetFont(const Font& font) {
  if (font == font_) return;
  font_ = font;
  current_ = nullptr;
}

void Canvas::SetForeColor(std::int32_t color) { color_ = Resolved(color); }

DeviceFonts::Entry& Canvas::Current() {
  if (!current_) current_ = &fonts_.Get(dc_, font_);
  return *current_;
}

int Canvas::ToDeviceX(double twips) const { return Rounded(twips * unitsPerTwipX_); }
int Canvas::ToDeviceY(double twips) const { return Rounded(twips * unitsPerTwipY_); }

TextExtent Canvas::Measure(std::u16string_view text) {
  DeviceFont& font = Current().device;
  font.Advances(dc_, text, measured_);
  TextExtent extent{.ends = {}, .height = font.LineHeight() / unitsPerTwipY_};
  extent.ends.reserve(text.size());
  int end = 0;
  for (const int advance : measured_) extent.ends.push_back((end += advance) / unitsPerTwipX_);
  return extent;
}

void Canvas::AddText(Point topLeft, std::u16string_view text) {
  DeviceFonts::Entry& font = Current();
  font.device.Advances(dc_, text, measured_);
  Text added{ToDeviceX(topLeft.x), ToDeviceY(topLeft.y), letters_.size(), 0, &font, color_, 0};
  bool visible = font.font.underline;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] < 32) continue;
    visible = visible || text[i] != u' ';
    letters_ += text[i];
    advances_.push_back(measured_[i]);
    added.width += measured_[i];
  }
  added.length = letters_.size() - added.start;
  if (visible && added.length > 0) {
    texts_.push_back(added);
  } else {
    letters_.resize(added.start);
    advances_.resize(added.start);
  }
}

std::vector<std::size_t> Canvas::OrderOfTexts() const {
  std::vector<TextBox> boxes;
  boxes.reserve(texts_.size());
  for (const Text& text : texts_) {
    const int height = text.font->device.LineHeight();
    const int overhang = height / 3;  // slanted letters and swashes reach beyond their widths
    boxes.push_back({text.x - overhang, text.y, text.x + text.width + overhang, text.y + height,
                     text.font->faceNumber, text.font->fontNumber});
  }
  return DrawingOrder(boxes);
}

bool Canvas::DrawTexts() {
  if (texts_.empty()) return true;
  SetBkMode(dc_, TRANSPARENT);
  SetTextAlign(dc_, TA_LEFT | TA_TOP | TA_NOUPDATECP);
  const SelectedObject restored(dc_, texts_.front().font->device.Handle());
  const DeviceFonts::Entry* font = texts_.front().font;
  COLORREF color = CLR_INVALID;
  bool drawn = true;
  for (const std::size_t index : OrderOfTexts()) {
    const Text& text = texts_[index];
    if (text.font != font) SelectObject(dc_, (font = text.font)->device.Handle());
    if (text.color != color) SetTextColor(dc_, color = text.color);
    drawn = drawn && ExtTextOutW(dc_, text.x, text.y, 0, nullptr, Wide(letters_.data() + text.start),
                                 static_cast<UINT>(text.length), advances_.data() + text.start);
  }
  ForgetTexts();
  return drawn;
}

bool Canvas::Paint(const Bitmap24& bitmap, Point topLeft) {
  constexpr double kTwipsPerPixel = 15;
  const bool textsDrawn = DrawTexts();  // what was printed before the picture lies under it
  return bitmap.PaintOn(dc_, ToDeviceX(topLeft.x), ToDeviceY(topLeft.y),
                        std::max(1, ToDeviceX(bitmap.Width() * kTwipsPerPixel)),
                        std::max(1, ToDeviceY(bitmap.Height() * kTwipsPerPixel))) &&
         textsDrawn;
}

void Canvas::ForgetTexts() {
  texts_.clear();
  letters_.clear();
  advances_.clear();
}

}  // namespace qm::platform::win32
