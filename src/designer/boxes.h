#pragma once
// The boxes of what can be dragged on the canvas: a field by its index, the logo by 0.
// Units: twips of the page.

#include "designer/layout.h"

namespace qm::designer {

// Null where there is no such object.
[[nodiscard]] const Box* BoxOf(const Layout& layout, int index);
// Nothing where there is no such object or it lies there already.
void SetBox(Layout& layout, int index, const Box& box);

}  // namespace qm::designer
