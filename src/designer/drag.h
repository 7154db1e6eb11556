#pragma once
// A drag with the left button: of a field, of the logo or of one handle of a field. It tells where the box is
// while the mouse moves, with Shift along one axis, with Ctrl snapped to the edges of the others.
// Units: twips of the page.

#include <optional>
#include <vector>

#include "designer/handles.h"
#include "designer/snapping.h"

namespace qm::designer {

struct Modifiers {
  bool shift = false;
  bool control = false;
};

class Drag {
 public:
  // Of a field by its index, or of the logo by 0.
  static Drag Whole(int field, const Box& box, platform::Point pressed);
  static Drag OfHandle(int field, const Box& box, int handle, float handleSize, platform::Point pressed);

  [[nodiscard]] int Field() const { return field_; }
  [[nodiscard]] int Handle() const { return handle_; }  // 0 when the whole object is dragged
  [[nodiscard]] bool Moved() const { return moved_; }
  // A mouse that never left the point of the press does not drag.
  void MovedTo(platform::Point mouse) { moved_ = moved_ || mouse != pressed_; }

  // The box for a place of the mouse, and the lines that it snapped to within the tolerance.
  [[nodiscard]] Box BoxAt(platform::Point mouse, Modifiers modifiers, const Layout& layout, float tolerance,
                          std::vector<Guide>& guides);

 private:
  Drag(int field, int handle, const Box& box, const Box& pressedObject, platform::Point pressed);
  [[nodiscard]] Box MovedBox(platform::Point mouse) const;
  [[nodiscard]] Box SizedBox(platform::Point mouse) const;
  void SnapBox(Box& box, bool x, bool y, float tolerance, std::vector<Guide>& guides) const;
  void SnapEdge(Box& box, float tolerance, std::vector<Guide>& guides) const;

  int field_;
  int handle_;
  Box box_;  // of the field or the logo, before the drag
  float handleSize_;
  platform::Point pressed_;
  double startX_;  // the drag start point: the mouse within the object or the handle, on whole twips
  double startY_;
  bool moved_ = false;
  std::optional<SnapLines> lines_;  // once they are needed
};

}  // namespace qm::designer
