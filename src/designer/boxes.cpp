#include "designer/boxes.h"

#include <memory>
#include <utility>

namespace qm::designer {

const Box* BoxOf(const Layout& layout, int index) {
  if (index == 0) return layout.logo ? &layout.logo->box : nullptr;
  const Field* field = layout.At(index);
  return field != nullptr ? &field->box : nullptr;
}

void SetBox(Layout& layout, int index, const Box& box) {
  if (index != 0) return ChangeField(layout, index, [&box](Field& field) { field.box = box; });
  if (!layout.logo || layout.logo->box == box) return;
  Logo logo = *layout.logo;
  logo.box = box;
  layout.logo = std::make_shared<const Logo>(std::move(logo));
}

}  // namespace qm::designer
