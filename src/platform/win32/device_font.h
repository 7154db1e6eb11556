#pragma once
// Fonts of a device, created once, with the advance width of every character seen so far: a text of known
// characters is measured without asking Windows, and drawn with the very widths it was measured with.
// Units:  device units (pixels, or dots of a printer).
// Errors: RuntimeError 7 when Windows has no more fonts to give.
// Control characters below 32, line ends among them, are zero wide and draw nothing.

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/surface.h"
#include "platform/win32/handles.h"

namespace qm::platform::win32 {

class DeviceFont {
 public:
  DeviceFont(HDC dc, const Font& font, double dotsPerPoint, BYTE quality);

  [[nodiscard]] HFONT Handle() const { return handle_.Get(); }
  [[nodiscard]] int LineHeight() const { return lineHeight_; }
  // One advance width a code unit; a surrogate pair's stands at its first half.
  void Advances(HDC dc, std::u16string_view text, std::vector<int>& advances);

 private:
  using Block = std::array<std::int32_t, 256>;  // of characters with one high byte; kUnknown if not seen

  [[nodiscard]] std::int32_t& WidthOf(char16_t letter);
  void Learn(HDC dc, std::u16string_view text);
  [[nodiscard]] int WidthOfPair(HDC dc, char16_t high, char16_t low);

  OwnedFont handle_;
  int lineHeight_ = 0;
  std::array<std::unique_ptr<Block>, 256> blocks_;
  std::unordered_map<std::uint32_t, int> pairs_;
  std::u16string unknown_;  // kept for its memory
};

// The fonts of one device. Numbers of equal faces and fonts are equal; see TextBox.
class DeviceFonts {
 public:
  struct Entry {
    Font font;
    int faceNumber;
    int fontNumber;
    DeviceFont device;
  };

  DeviceFonts(double dotsPerPoint, BYTE quality) : dotsPerPoint_(dotsPerPoint), quality_(quality) {}

  // The entry stays where it is as long as the cache lives.
  [[nodiscard]] Entry& Get(HDC dc, const Font& font);

 private:
  [[nodiscard]] int FaceNumberOf(const Font& font) const;

  double dotsPerPoint_;
  BYTE quality_;
  std::vector<std::unique_ptr<Entry>> entries_;
};

}  // namespace qm::platform::win32
