#include "designer/field_clipboard.h"

#include <algorithm>
#include <memory>

namespace qm::designer {

void FieldClipboard::Copy(const Document& document) {
  const Layout& layout = document.Current();
  const int selected = document.Selected();
  if (layout.At(selected) != nullptr) field_ = layout.men[static_cast<std::size_t>(selected)];
}

void FieldClipboard::Paste(Document& document) const {
  if (!field_) return;
  Field pasted = *field_;
  const std::vector<FieldPointer>& fields = document.Current().men;
  const auto hides = [&pasted](const FieldPointer& field) { return field && field->box == pasted.box; };
  // Each step can meet one more field, so that as many steps as fields are enough.
  for (std::size_t step = 0; step < fields.size() && std::any_of(fields.begin(), fields.end(), hides);
       ++step) {
    pasted.box.left += kStep;
    pasted.box.top += kStep;
  }
  int index = 0;
  document.Edit([&](Layout& layout) {
    while (layout.men.size() > 1 && !layout.men.back()) layout.men.pop_back();
    index = static_cast<int>(layout.men.size());
    layout.men.push_back(std::make_shared<const Field>(pasted));
  });
  document.Select(index);
}

}  // namespace qm::designer
