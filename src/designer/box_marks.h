#pragma once
// Boxes whose text would suffer on paper: for a quiet tint on the canvas.
// Units:  twips.
// Errors: the surface's.

#include <string>
#include <vector>

#include "designer/layout.h"
#include "platform/surface.h"

namespace qm::designer {

enum class BoxMark { None, OffThePage, TooLow };

// Knows the height of a line in every font it met, so that asking for each field on each drawing is cheap.
class BoxMarks {
 public:
  // The surface should measure as the printer does: a screen rounds lines up to whole pixels, and boxes that
  // fit on paper would be marked.
  explicit BoxMarks(platform::Surface& surface) : surface_(surface) {}

  // A box is off the page when any part of it is, and too low when a line of its font is higher.
  [[nodiscard]] BoxMark Of(const Layout& layout, const Field& field);

 private:
  struct Line {
    platform::Font font;
    double height = 0;
  };
  [[nodiscard]] double LineHeight(const FieldFont& font);

  platform::Surface& surface_;
  std::vector<Line> lines_;
};

}  // namespace qm::designer
