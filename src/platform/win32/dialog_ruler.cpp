#include "platform/win32/dialog_ruler.h"

#include <algorithm>

namespace qm::platform::win32 {
namespace {

constexpr std::size_t kLongestMeasured = 400;
constexpr std::size_t kLongestStandingLabel = 4000;
constexpr int kTallestLabelPercent = 50;  // of the screen

}  // namespace

DialogFont MessageFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  const ScreenDc screen;
  if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) &&
      metrics.lfMessageFont.lfHeight < 0)
    return {Text(metrics.lfMessageFont.lfFaceName),
            MulDiv(-metrics.lfMessageFont.lfHeight, 72, GetDeviceCaps(screen.Get(), LOGPIXELSY))};
  return {u"MS Shell Dlg", 8};
}

DialogRuler::DialogRuler(HFONT font) : selected_(screen_.Get(), font) {
  constexpr std::u16string_view kLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  SIZE size{};
  GetTextExtentPoint32W(screen_.Get(), Wide(kLetters.data()), static_cast<int>(kLetters.size()), &size);
  unitX_ = std::max(1, static_cast<int>((size.cx / 26 + 1) / 2));
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen_.Get(), &metrics);
  unitY_ = std::max(1, static_cast<int>(metrics.tmHeight));
}

// Wrapping a text takes Windows time with the square of its length, so what cannot fit is not measured.
int DialogRuler::Width(std::u16string_view text) const {
  return Measured(text.substr(0, kLongestMeasured), DT_SINGLELINE, 0).right;
}

int DialogRuler::HeightOfWrapped(std::u16string_view text, int width) const {
  if (text.size() > kLongestStandingLabel) return GetSystemMetrics(SM_CYSCREEN);
  return std::max<int>(LineHeight(), Measured(text, DT_WORDBREAK | DT_EDITCONTROL, width).bottom);
}

int DialogRuler::TallestLabel() { return MulDiv(GetSystemMetrics(SM_CYSCREEN), kTallestLabelPercent, 100); }

RECT DialogRuler::Measured(std::u16string_view text, UINT format, int width) const {
  RECT area{0, 0, width, 0};
  const std::u16string copy(text);
  DrawTextW(screen_.Get(), const_cast<wchar_t*>(Wide(copy)), static_cast<int>(copy.size()), &area,
            format | DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS);
  return area;
}

}  // namespace qm::platform::win32
