#include "designer/drag.h"

#include <cmath>

namespace qm::designer {

namespace {

// Handles whose far side, seen from the field, is not the side that touches it.
bool EndsAtField(int handle) { return handle == 2 || handle == 8; }
bool MovesVertically(int handle) { return handle == 2 || handle == 6; }

}  // namespace

Drag::Drag(int field, int handle, const Box& box, const Box& pressedObject, platform::Point pressed)
    : field_(field),
      handle_(handle),
      box_(box),
      handleSize_(pressedObject.width),
      pressed_(pressed),
      startX_(std::nearbyint(pressed.x - pressedObject.left)),
      startY_(std::nearbyint(pressed.y - pressedObject.top)) {}

Drag Drag::Whole(int field, const Box& box, platform::Point pressed) { return {field, 0, box, box, pressed}; }

Drag Drag::OfHandle(int field, const Box& box, int handle, float handleSize, platform::Point pressed) {
  return {field, handle, box, HandlesAround(box, handleSize)[static_cast<std::size_t>(handle)], pressed};
}

Box Drag::BoxAt(platform::Point mouse, Modifiers modifiers, const Layout& layout, float tolerance,
                std::vector<Guide>& guides) {
  if (modifiers.control && !lines_) lines_.emplace(layout, field_);
  if (handle_ != 0) {
    Box box = SizedBox(mouse);
    if (modifiers.control) SnapEdge(box, tolerance, guides);
    return box;
  }
  Box box = MovedBox(mouse);
  const bool alongX = std::abs(mouse.x - pressed_.x) >= std::abs(mouse.y - pressed_.y);
  const bool moveX = alongX || !modifiers.shift, moveY = !alongX || !modifiers.shift;
  if (!moveX) box.left = box_.left;
  if (!moveY) box.top = box_.top;
  if (modifiers.control) SnapBox(box, moveX, moveY, tolerance, guides);
  return box;
}

// The start point stays as it was: the object moves with the mouse, which keeps its place within it.
Box Drag::MovedBox(platform::Point mouse) const {
  Box box = box_;
  box.left = static_cast<float>(mouse.x - startX_);
  box.top = static_cast<float>(mouse.y - startY_);
  return box;
}

Box Drag::SizedBox(platform::Point mouse) const {
  if (!CanBeDragged(handle_)) return box_;
  const double handle = MovesVertically(handle_) ? mouse.y - startY_ : mouse.x - startX_;
  return WithEdgeAt(box_, handle_, static_cast<float>(handle) + (EndsAtField(handle_) ? handleSize_ : 0));
}

void Drag::SnapBox(Box& box, bool x, bool y, float tolerance, std::vector<Guide>& guides) const {
  if (x) box.left += lines_->Shift(true, box.left, box.Right(), tolerance);
  if (y) box.top += lines_->Shift(false, box.top, box.Bottom(), tolerance);
  const auto show = [&](bool vertical, float position) {
    if (lines_->Has(vertical, position)) guides.push_back({vertical, position});
  };
  if (x) show(true, box.left);
  if (x && box.width > 0) show(true, box.Right());
  if (y) show(false, box.top);
  if (y && box.height > 0) show(false, box.Bottom());
}

void Drag::SnapEdge(Box& box, float tolerance, std::vector<Guide>& guides) const {
  const bool vertical = !MovesVertically(handle_);
  const std::optional<float> line = lines_->Nearest(vertical, EdgeOf(box, handle_), tolerance);
  if (!line) return;
  box = WithEdgeAt(box, handle_, *line);
  if (EdgeOf(box, handle_) == *line) guides.push_back({vertical, *line});
}

}  // namespace qm::designer
