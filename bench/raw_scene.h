#pragma once
// The same page by plain calls of Windows' drawing functions, with no surface in between: fonts made once,
// texts measured where they are aligned, drawn in the order given.

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "bench/scene.h"
#include "platform/win32/handles.h"

namespace qm::bench {

inline HFONT MakeFont(const platform::Font& font, int dotsPerInch, BYTE quality) {
  LOGFONTW description{};
  description.lfHeight = -static_cast<LONG>(std::lround(font.sizePoints * dotsPerInch / 72));
  description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.italic;
  description.lfUnderline = font.underline;
  description.lfCharSet = DEFAULT_CHARSET;
  description.lfQuality = quality;
  font.name.copy(reinterpret_cast<char16_t*>(description.lfFaceName), LF_FACESIZE - 1);
  return CreateFontIndirectW(&description);
}

class RawScene {
 public:
  RawScene(std::vector<SceneField> fields, int dotsPerInch, BYTE quality)
      : fields_(std::move(fields)), dotsPerInch_(dotsPerInch), quality_(quality), order_(fields_.size()) {
    std::iota(order_.begin(), order_.end(), std::size_t{0});
  }

  void OrderByFont() {
    const auto face = [this](std::size_t i) {
      const platform::Font& font = fields_[i].font;
      return std::tuple(font.name, font.bold, font.italic, font.sizePoints);
    };
    std::stable_sort(order_.begin(), order_.end(), [&](auto a, auto b) { return face(a) < face(b); });
  }

  void Draw(HDC dc) const {
    std::vector<std::pair<platform::Font, platform::win32::OwnedFont>> fonts;
    const HGDIOBJ former = GetCurrentObject(dc, OBJ_FONT);
    SetBkMode(dc, TRANSPARENT);
    for (const std::size_t i : order_) Draw(dc, fields_[i], fonts);
    SelectObject(dc, former);
  }

 private:
  using Fonts = std::vector<std::pair<platform::Font, platform::win32::OwnedFont>>;

  [[nodiscard]] int Units(double twips) const {
    return static_cast<int>(std::lround(twips * dotsPerInch_ / 1440));
  }

  void Draw(HDC dc, const SceneField& field, Fonts& fonts) const {
    auto known = std::find_if(fonts.begin(), fonts.end(),
                              [&](const auto& entry) { return entry.first == field.font; });
    if (known == fonts.end()) {
      fonts.emplace_back(field.font,
                         platform::win32::OwnedFont(MakeFont(field.font, dotsPerInch_, quality_)));
      known = fonts.end() - 1;
    }
    SelectObject(dc, known->second.Get());
    SetTextColor(dc, static_cast<COLORREF>(field.color));
    const auto length = static_cast<UINT>(field.text.size());
    std::vector<int> widths(length);
    SIZE size{};
    GetTextExtentExPointW(dc, platform::win32::Wide(field.text), static_cast<int>(length), 0, nullptr,
                          widths.data(), &size);
    std::adjacent_difference(widths.begin(), widths.end(), widths.begin());
    double x = field.left;
    const double spare = field.width - static_cast<double>(size.cx) * 1440 / dotsPerInch_;
    if (field.alignment != Alignment::Left) x += field.alignment == Alignment::Right ? spare : spare / 2;
    ExtTextOutW(dc, Units(x), Units(field.top), 0, nullptr, platform::win32::Wide(field.text), length,
                widths.data());
  }

  std::vector<SceneField> fields_;
  int dotsPerInch_;
  BYTE quality_;
  std::vector<std::size_t> order_;
};

[[nodiscard]] inline platform::win32::OwnedDc PrinterDc(const std::u16string& device) {
  return platform::win32::OwnedDc(CreateDCW(L"WINSPOOL", platform::win32::Wide(device), nullptr, nullptr));
}

[[nodiscard]] inline int DotsPerInch(const std::u16string& device) {
  return GetDeviceCaps(PrinterDc(device).Get(), LOGPIXELSX);
}

inline void PrintRaw(const std::u16string& device, const RawScene& scene) {
  const platform::win32::OwnedDc dc = PrinterDc(device);
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = L"raw";
  StartDocW(dc.Get(), &document);
  StartPage(dc.Get());
  scene.Draw(dc.Get());
  EndPage(dc.Get());
  EndDoc(dc.Get());
}

}  // namespace qm::bench
