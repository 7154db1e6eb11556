#pragma once
// Sizes on the screen of one window: its resolution and the system's message font at that resolution.
// Units: pixels; lengths of the design are given for 96 dots per inch.

#include "platform/win32/handles.h"

namespace qm::designer::win32 {

class Metrics {
 public:
  explicit Metrics(HWND window);  // as the window's program sees its resolution; that is left as it is
  explicit Metrics(int dpi);

  [[nodiscard]] int Dpi() const { return dpi_; }
  [[nodiscard]] int Px(int at96) const { return MulDiv(at96, dpi_, 96); }
  [[nodiscard]] int FromTwips(int twips) const { return MulDiv(twips, dpi_, 1440); }
  [[nodiscard]] HFONT Font() const { return font_.Get(); }
  [[nodiscard]] int TextWidth(const wchar_t* text) const;
  [[nodiscard]] int TextHeight() const { return textHeight_; }

 private:
  int dpi_;
  platform::win32::OwnedFont font_;
  int textHeight_ = 0;
};

}  // namespace qm::designer::win32
