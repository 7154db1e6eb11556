#pragma once
// Mouse and keyboard on the page canvas: selecting, dragging, sizing, moving by keys, snapping and zoom.
// Units:  twips from the page's top-left corner; scroll values are twips of the page. Zoom is of the view
//         only: stored values never depend on it.

#include <array>
#include <optional>
#include <vector>

#include "designer/document.h"
#include "designer/view.h"
#include "platform/surface.h"
#include "runtime/locale.h"

namespace qm::designer {

enum class Button { Left, Right };
enum class Pointer { Arrow, SizeNorthSouth, SizeWestEast, Corner };
struct Modifiers {
  bool shift = false;
  bool control = false;
};
enum class Direction { Left, Right, Up, Down };

// A line to which a dragged field snapped.
struct Guide {
  bool vertical = false;
  float position = 0;
};

class Canvas {
 public:
  Canvas(Document& document, View& view, runtime::Locale locale);

  // A press on whatever lies there: a handle, a field, the logo or the empty page. The right button opens
  // the menu that belongs to it.
  void Press(platform::Point at, Button button, Modifiers modifiers);
  // The mouse moved; with the left button held on a field, a handle or the logo this drags it.
  void Move(platform::Point at, bool leftHeld, Modifiers modifiers);
  // The left button is up: the click of the field pressed, which shows its handles unless it was dragged.
  void Release(platform::Point at);
  void CancelDrag();  // as if it had never begun
  [[nodiscard]] Pointer PointerAt(platform::Point at) const;
  // What lies there: a field's index, or 0.
  [[nodiscard]] int FieldAt(platform::Point at) const;
  [[nodiscard]] bool LogoAt(platform::Point at) const;

  void ArrowKey(Direction direction, Modifiers modifiers);  // moves by 15 or, with Ctrl, by 1; Shift sizes
  void NextField(bool backwards);                           // Tab and Shift+Tab

  // BORRAR_BOTONES and REAJUSTA_MEN
  void HideHandles();
  void ShowHandlesOf(int index);
  // The boxes of the handles 1 to 8 around the selected field, while they are shown; element 0 is unused.
  [[nodiscard]] std::optional<std::array<Box, 9>> Handles() const;
  [[nodiscard]] const std::vector<Guide>& Guides() const { return guides_; }
  [[nodiscard]] std::u16string Readout(const Box& box) const;

  // Scroll bars: 16-bit values in twips.
  void ScrollTo(int horizontal, int vertical);
  [[nodiscard]] int Horizontal() const { return horizontal_; }
  [[nodiscard]] int Vertical() const { return vertical_; }
  // Steps of the wheel with Ctrl, and 100 percent. The point under the mouse stays where it is.
  void ZoomBy(int steps, platform::Point around);
  void ZoomToActualSize();
  [[nodiscard]] double Zoom() const { return zoom_; }
  // A handle's side, 90 twips at a zoom of 1.
  [[nodiscard]] float HandleSize() const;

 private:
  struct Drag;  // what is being dragged, from where

  Document& document_;
  View& view_;
  runtime::Locale locale_;
  bool handlesShown_ = false;
  std::vector<Guide> guides_;
  int horizontal_ = 0;
  int vertical_ = 0;
  double zoom_ = 1;
};

}  // namespace qm::designer
