#pragma once
// What the engines need of a drawing surface: a page or a picture on which texts and pictures are put.
// Units:  twips (567 per cm), origin at the page's top-left printable corner, y downwards; fonts in points.
// Errors: RuntimeError 482 when the printer fails; nothing else.
// Implemented by win32/printer_surface, win32/picture_surface and the tests' RecordingSurface.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qm::platform {

class Picture;

struct Font {
  std::u16string name = u"Arial";
  double sizePoints = 10;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethru = false;

  bool operator==(const Font&) const = default;
};

struct Point {
  double x = 0;
  double y = 0;

  bool operator==(const Point&) const = default;
};

// A text measured once for all its parts: the width of the characters [a, b) is ends[b - 1] - ends[a - 1].
struct TextExtent {
  std::vector<double> ends;  // distance from the start of the text to the end of each code unit
  double height = 0;         // of one line

  [[nodiscard]] double Width() const { return ends.empty() ? 0 : ends.back(); }
  [[nodiscard]] double WidthOfFirst(std::size_t count) const { return count == 0 ? 0 : ends[count - 1]; }
};

class Surface {
 public:
  virtual ~Surface() = default;

  // The font state survives texts, pages and copies; a new surface has a default font.
  [[nodiscard]] virtual Font CurrentFont() const = 0;
  virtual void SetFont(const Font& font) = 0;
  // 0x00BBGGRR, or a system colour with the top bit set.
  virtual void SetForeColor(std::int32_t color) = 0;

  // Widths as they will be drawn with the current font: what fits is what prints.
  [[nodiscard]] virtual TextExtent Measure(std::u16string_view text) = 0;
  // The text's top-left corner at the position, transparent background.
  virtual void PrintText(Point topLeft, std::u16string_view text) = 0;
  virtual void PaintPicture(const Picture& picture, Point topLeft) = 0;

  virtual void SetPageSize(double widthTwips, double heightTwips) = 0;
  [[nodiscard]] virtual double ScaleWidth() const = 0;  // of the printable page
};

}  // namespace qm::platform
