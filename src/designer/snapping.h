#pragma once
// Lines that a dragged box can snap to: the edges of the other fields, of the logo and of the page.
// Units: twips of the page.

#include <optional>
#include <vector>

#include "designer/layout.h"

namespace qm::designer {

// A line to which a dragged box snapped.
struct Guide {
  bool vertical = false;
  float position = 0;

  bool operator==(const Guide&) const = default;
};

// Taken once a drag, since nothing but the dragged object moves meanwhile.
class SnapLines {
 public:
  // All edges but those of that field or, where it is 0, of the logo.
  SnapLines(const Layout& layout, int draggedField);

  // The nearest line within the tolerance.
  [[nodiscard]] std::optional<float> Nearest(bool vertical, float position, float tolerance) const;
  // How far a span has to move for the nearer of its ends to lie on a line; 0 where none is near.
  [[nodiscard]] float Shift(bool vertical, float from, float to, float tolerance) const;
  [[nodiscard]] bool Has(bool vertical, float position) const;

 private:
  void AddEdges(const Box& box);
  [[nodiscard]] const std::vector<float>& Lines(bool vertical) const {
    return vertical ? vertical_ : horizontal_;
  }

  std::vector<float> vertical_;  // positions in ascending order
  std::vector<float> horizontal_;
};

}  // namespace qm::designer
