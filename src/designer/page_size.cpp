#include "designer/page_size.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "print/text/text_helpers.h"
#include "runtime/format.h"

namespace qm::designer {
namespace {

constexpr float kTooLargeCm = 50;
constexpr float kFallbackWidthCm = 20;
constexpr float kFallbackHeightCm = 10;  // another one than the width's, on purpose

// In twips, below 50 cm: half a unit of a text's seventh digit and half one of a single's last bit.
constexpr double kBoxPrecision = 0.004;

float Single(double value) {
  constexpr double kMost = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(value, -kMost, kMost));
}

}  // namespace

std::u16string BoxText(double twips, const runtime::Locale& locale) {
  return runtime::ToText(Single(twips / kTwipsPerCm), locale);
}

float CentimetresOf(std::u16string_view boxText, const runtime::Locale& locale) {
  return Single(text::ParseCentimetres(boxText, locale));
}

float TwipsOf(float centimetres) {
  const double exact = static_cast<double>(centimetres) * kTwipsPerCm;
  const double whole = std::round(exact);
  return Single(std::abs(exact - whole) <= kBoxPrecision ? whole : exact);
}

TooLarge SetPageSize(Layout& layout, float widthCm, float heightCm) {
  const TooLarge tooLarge{.width = !(widthCm < kTooLargeCm), .height = !(heightCm < kTooLargeCm)};
  if (widthCm != 0 && heightCm != 0) layout.pageSizeSet = true;
  layout.pageWidthCm = tooLarge.width ? kFallbackWidthCm : widthCm;
  layout.pageHeightCm = tooLarge.height ? kFallbackHeightCm : heightCm;
  if (layout.pageHeightCm > 0) layout.canvasHeight = TwipsOf(layout.pageHeightCm);
  if (layout.pageWidthCm > 0) layout.canvasWidth = TwipsOf(layout.pageWidthCm);
  return tooLarge;
}

}  // namespace qm::designer
