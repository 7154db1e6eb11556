#include "designer/box_marks.h"

#include <algorithm>

namespace qm::designer {

namespace {

bool IsOffThePage(const Layout& layout, const Box& box) {
  return box.left < 0 || box.top < 0 || box.Right() > layout.canvasWidth ||
         box.Bottom() > layout.canvasHeight;
}

}  // namespace

BoxMark BoxMarks::Of(const Layout& layout, const Field& field) {
  if (IsOffThePage(layout, field.box)) return BoxMark::OffThePage;
  return static_cast<double>(field.box.height) < LineHeight(field.font) ? BoxMark::TooLow : BoxMark::None;
}

double BoxMarks::LineHeight(const FieldFont& font) {
  platform::Font wanted;
  wanted.name = font.name;
  wanted.sizePoints = font.size;
  wanted.bold = font.bold;
  wanted.italic = font.italic;
  const auto known =
      std::find_if(lines_.begin(), lines_.end(), [&wanted](const Line& line) { return line.font == wanted; });
  if (known != lines_.end()) return known->height;
  const platform::Font before = surface_.CurrentFont();
  surface_.SetFont(wanted);
  const double height = surface_.Measure(u"X").height;
  surface_.SetFont(before);
  lines_.push_back({std::move(wanted), height});
  return height;
}

}  // namespace qm::designer
