#pragma once
// The eight sizing handles around a field: 1 at the top-left corner, then clockwise. Only the even ones, at
// the middles of the edges, can be dragged; the corners are there to be seen.
// Units: twips of the page.

#include <array>

#include "designer/layout.h"
#include "platform/surface.h"

namespace qm::designer {

enum class Pointer { Arrow, SizeNorthSouth, SizeWestEast, Corner };

// By the handle's number; element 0 is unused.
using HandleBoxes = std::array<Box, 9>;

[[nodiscard]] inline bool Contains(const Box& box, platform::Point at) {
  return at.x >= box.left && at.x < box.Right() && at.y >= box.top && at.y < box.Bottom();
}

// Outside the field and touching its border.
[[nodiscard]] HandleBoxes HandlesAround(const Box& field, float size);
// The number of the handle there, or 0. Where handles of a small field overlap, one that can be dragged wins.
[[nodiscard]] int HandleAt(const HandleBoxes& handles, platform::Point at);
[[nodiscard]] constexpr bool CanBeDragged(int handle) { return handle > 0 && handle % 2 == 0; }
[[nodiscard]] Pointer PointerOf(int handle);

// The field once the edge of that handle lies at the position. The opposite edge stays and is never passed.
[[nodiscard]] Box WithEdgeAt(Box field, int handle, float position);
// Where that edge lies.
[[nodiscard]] float EdgeOf(const Box& field, int handle);

}  // namespace qm::designer
