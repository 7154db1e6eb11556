#pragma once
// What the two Windows surfaces share: font state, measuring, and a page's texts, which are kept until they
// can be drawn in the order that suits the device (see platform/text_batches.h).
// Units:  twips outside, device units inside, with the conversion done here in double.

#include <string>
#include <vector>

#include "platform/surface.h"
#include "platform/win32/bitmap.h"
#include "platform/win32/device_font.h"

namespace qm::platform::win32 {

class Canvas {
 public:
  // The device context is the surface's; nothing of the canvas stays selected into it between calls.
  Canvas(HDC dc, int dotsPerInchX, int dotsPerInchY, BYTE fontQuality);

  [[nodiscard]] const Font& CurrentFont() const { return font_; }
  void SetFont(const Font& font);
  void SetForeColor(std::int32_t color);
  [[nodiscard]] TextExtent Measure(std::u16string_view text);

  void AddText(Point topLeft, std::u16string_view text);
  // Both draw the texts added so far; false when the device fails.
  [[nodiscard]] bool DrawTexts();
  [[nodiscard]] bool Paint(const Bitmap24& bitmap, Point topLeft);
  void ForgetTexts();

 private:
  struct Text {
    int x;
    int y;
    std::size_t start;  // of its characters and advance widths in the page's
    std::size_t length;
    const DeviceFonts::Entry* font;
    COLORREF color;
    int width;
  };

  [[nodiscard]] DeviceFonts::Entry& Current();
  [[nodiscard]] std::vector<std::size_t> OrderOfTexts() const;
  [[nodiscard]] int ToDeviceX(double twips) const;
  [[nodiscard]] int ToDeviceY(double twips) const;

  HDC dc_;
  double unitsPerTwipX_;
  double unitsPerTwipY_;
  DeviceFonts fonts_;
  Font font_;
  DeviceFonts::Entry* current_ = nullptr;  // the device's font of font_, once it was needed
  COLORREF color_ = 0;
  std::vector<Text> texts_;
  std::u16string letters_;
  std::vector<int> advances_;
  std::vector<int> measured_;  // kept for its memory
};

}  // namespace qm::platform::win32
