#include "designer/snapping.h"

#include <algorithm>
#include <cmath>

namespace qm::designer {

SnapLines::SnapLines(const Layout& layout, int draggedField) {
  AddEdges({0, 0, layout.canvasWidth, layout.canvasHeight});
  for (int index = 1; index < static_cast<int>(layout.men.size()); ++index)
    if (const Field* field = layout.At(index); field != nullptr && index != draggedField)
      AddEdges(field->box);
  if (layout.logo && draggedField != 0) AddEdges(layout.logo->box);
  for (std::vector<float>* lines : {&vertical_, &horizontal_}) {
    std::sort(lines->begin(), lines->end());
    lines->erase(std::unique(lines->begin(), lines->end()), lines->end());
  }
}

std::optional<float> SnapLines::Nearest(bool vertical, float position, float tolerance) const {
  const std::vector<float>& lines = Lines(vertical);
  const auto after = std::lower_bound(lines.begin(), lines.end(), position);
  std::optional<float> nearest;
  if (after != lines.end()) nearest = *after;
  if (after != lines.begin() && (!nearest || position - *std::prev(after) < *nearest - position))
    nearest = *std::prev(after);
  if (nearest && std::abs(*nearest - position) > tolerance) nearest.reset();
  return nearest;
}

float SnapLines::Shift(bool vertical, float from, float to, float tolerance) const {
  const std::optional<float> start = Nearest(vertical, from, tolerance);
  const std::optional<float> end = Nearest(vertical, to, tolerance);
  const float ofStart = start ? *start - from : 0;
  const float ofEnd = end ? *end - to : 0;
  if (start && end) return std::abs(ofStart) <= std::abs(ofEnd) ? ofStart : ofEnd;
  return start ? ofStart : ofEnd;
}

bool SnapLines::Has(bool vertical, float position) const {
  return std::binary_search(Lines(vertical).begin(), Lines(vertical).end(), position);
}

void SnapLines::AddEdges(const Box& box) {
  vertical_.insert(vertical_.end(), {box.left, box.Right()});
  horizontal_.insert(horizontal_.end(), {box.top, box.Bottom()});
}

}  // namespace qm::designer
