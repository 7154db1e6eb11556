#pragma once
// Measures texts in a dialog's font.
// Units: pixels; Across and Down turn the system's dialog units into them.

#include <string_view>

#include "platform/win32/handles.h"

namespace qm::platform::win32 {

// The system's font for messages as a dialog template names it.
struct DialogFont {
  std::u16string face;
  int points = 0;
};
[[nodiscard]] DialogFont MessageFont();

class DialogRuler {
 public:
  explicit DialogRuler(HFONT font);
  DialogRuler(const DialogRuler&) = delete;
  DialogRuler& operator=(const DialogRuler&) = delete;
  ~DialogRuler() = default;

  [[nodiscard]] int Across(int dialogUnits) const { return MulDiv(dialogUnits, unitX_, 4); }
  [[nodiscard]] int Down(int dialogUnits) const { return MulDiv(dialogUnits, unitY_, 8); }
  [[nodiscard]] int LineHeight() const { return unitY_; }

  // At most a little more than the widest that a dialog gets.
  [[nodiscard]] int Width(std::u16string_view text) const;
  [[nodiscard]] int HeightOfWrapped(std::u16string_view text, int width) const;
  // Of a label that is taller, the text scrolls.
  [[nodiscard]] static int TallestLabel();

 private:
  [[nodiscard]] RECT Measured(std::u16string_view text, UINT format, int width) const;

  ScreenDc screen_;
  SelectedObject selected_;
  int unitX_ = 1;
  int unitY_ = 1;
};

}  // namespace qm::platform::win32
