#pragma once
// The fields of a layout as the control array that their indexes come from.

#include <string>
#include <string_view>

#include "designer/layout.h"

namespace qm::designer {

// Of the fields that are there; 0 when there are none.
[[nodiscard]] int HighestIndex(const Layout& layout);
// Behind the highest index, as large as the template and at its place, or below whatever lies exactly there.
void AddField(Layout& layout, std::u16string_view caption);
// Leaves a gap in the indexes.
void RemoveField(Layout& layout, int index);
void RemoveFields(Layout& layout);

}  // namespace qm::designer
