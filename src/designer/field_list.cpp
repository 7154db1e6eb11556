#include "designer/field_list.h"

#include <algorithm>
#include <memory>

namespace qm::designer {
namespace {

constexpr Box kTemplate = {.left = 567, .top = 567, .width = 2835, .height = 285};

bool IsTaken(const Layout& layout, const Box& place) {
  return std::any_of(layout.men.begin(), layout.men.end(), [&place](const FieldPointer& field) {
    return field && field->box.left == place.left && field->box.top == place.top;
  });
}

// Fields added one after the other must not hide each other.
Box FreePlace(const Layout& layout) {
  Box place = kTemplate;
  while (place.Bottom() <= layout.canvasHeight && IsTaken(layout, place)) place.top += place.height;
  return place.Bottom() <= layout.canvasHeight ? place : kTemplate;
}

}  // namespace

int HighestIndex(const Layout& layout) {
  const auto last = std::find_if(layout.men.rbegin(), layout.men.rend(),
                                 [](const FieldPointer& field) { return field != nullptr; });
  return last == layout.men.rend() ? 0 : static_cast<int>(layout.men.rend() - last) - 1;
}

void AddField(Layout& layout, std::u16string_view caption) {
  Field field;
  field.caption = caption;
  field.box = FreePlace(layout);
  layout.men.resize(static_cast<std::size_t>(HighestIndex(layout)) + 1);
  layout.men.push_back(std::make_shared<const Field>(std::move(field)));
}

void RemoveField(Layout& layout, int index) {
  if (layout.At(index) != nullptr) layout.men[static_cast<std::size_t>(index)] = nullptr;
}

void RemoveFields(Layout& layout) { layout.men.assign(1, nullptr); }

}  // namespace qm::designer
