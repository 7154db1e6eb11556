#pragma once
// The order in which the texts of a page are drawn fastest. A print driver keeps few downloaded faces at a
// time, so texts of one face are drawn together, and within a face those of one font; texts that overlap
// keep the order in which they were printed, so the page looks the same.
// Units: any, the same for all boxes.

#include <cstddef>
#include <vector>

namespace qm::platform {

struct TextBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;  // boxes that only touch do not overlap
  int face = 0;    // texts of the same number share a face: name, weight and slant
  int font = 0;    // likewise, and the size and the lines; a font has one face

  [[nodiscard]] bool Overlaps(const TextBox& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
};

// A permutation of the indexes of the texts. Time grows with their number, not with its square.
[[nodiscard]] std::vector<std::size_t> DrawingOrder(const std::vector<TextBox>& texts);

}  // namespace qm::platform
