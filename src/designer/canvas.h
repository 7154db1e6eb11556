#pragma once
// Mouse and keyboard on the page canvas: selecting, dragging, sizing, moving by keys, snapping and zoom.
// Units:  twips from the page's top-left corner; scroll values are twips of the page. The mouse is taken to
//         stand on whole twips, so that at any resolution and zoom whole twips are stored.

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "designer/document.h"
#include "designer/drag.h"
#include "designer/handles.h"
#include "designer/page_place.h"
#include "designer/snapping.h"
#include "designer/view.h"
#include "platform/surface.h"
#include "runtime/locale.h"

namespace qm::designer {

enum class Button { Left, Right };
enum class Direction { Left, Right, Up, Down };

class Canvas {
 public:
  Canvas(Document& document, View& view, runtime::Locale locale);

  // A press on whatever lies there: a handle, a field, the logo or the empty page. The right button opens
  // the menu that belongs to it.
  void Press(platform::Point at, Button button);
  // The mouse moved; with the left button held on a field, a handle or the logo this drags it. With Shift a
  // drag keeps to one axis, with Ctrl it snaps; when one of these keys goes up or down this is called again.
  void Move(platform::Point at, bool leftHeld, Modifiers modifiers);
  // The left button is up: the click of the field pressed, which shows its handles unless it was dragged.
  void Release(platform::Point at);
  void EndDrag();     // where it is, for whatever comes between; no click
  void CancelDrag();  // as if it had never begun
  // While one lasts, no command but CancelDrag should reach the layout.
  [[nodiscard]] bool Dragging() const { return drag_.has_value(); }
  [[nodiscard]] Pointer PointerAt(platform::Point at) const;
  // What lies there: a field's index, or 0. The highest index lies on top, and all fields above the logo.
  [[nodiscard]] int FieldAt(platform::Point at) const;
  [[nodiscard]] bool LogoAt(platform::Point at) const;
  // The ToolTipText there: the whole caption of a field, of which its box may show a part; empty elsewhere,
  // on a handle and during a drag.
  [[nodiscard]] std::u16string ToolTipAt(platform::Point at) const;

  // Moves the selected field or logo by 15 or, with Ctrl, by 1; with Shift it sizes it. A key held down,
  // which is what repeated says, is one step of undo.
  void ArrowKey(Direction direction, Modifiers modifiers, bool repeated = false);
  void NextField(bool backwards);  // Tab and Shift+Tab

  // BORRAR_BOTONES and REAJUSTA_MEN
  void HideHandles();
  void ShowHandlesOf(int index);
  // Around the selected field, while they are shown.
  [[nodiscard]] std::optional<HandleBoxes> Handles() const;
  // A handle's side: six pixels of 15 twips at any zoom, in whole twips of the page.
  [[nodiscard]] float HandleSize() const;
  [[nodiscard]] const std::vector<Guide>& Guides() const { return guides_; }

  void ScrollTo(int horizontal, int vertical);
  // Within the limits also when the page has become smaller.
  [[nodiscard]] int Horizontal() const { return std::min(place_.Horizontal(), HorizontalMax()); }
  [[nodiscard]] int Vertical() const { return std::min(place_.Vertical(), VerticalMax()); }
  [[nodiscard]] int HorizontalMax() const { return PagePlace::HorizontalMax(document_.Current()); }
  [[nodiscard]] int VerticalMax() const { return PagePlace::VerticalMax(document_.Current()); }
  // The viewport's size in twips of the screen, so that a field reached by keys can be brought into sight.
  void SetViewport(double width, double height) { place_.SetViewport(width, height); }
  // Steps of the wheel with Ctrl, and 100 percent. The point under the mouse stays where it is.
  void ZoomBy(int steps, platform::Point around);
  void ZoomToActualSize();
  [[nodiscard]] double Zoom() const { return place_.Zoom(); }

 private:
  void PressHandle(int handle, platform::Point at);
  void PressField(int index, platform::Point at, Button button);
  void PressLogo(platform::Point at);
  void StartDrag(const Drag& drag);
  [[nodiscard]] const Box* SelectedBox() const;
  void ShowReadout(const Box& box);
  void Reveal(Box box);

  Document& document_;
  View& view_;
  runtime::Locale locale_;
  int handlesOf_ = 0;  // the field with the handles, when it is the selected one; 0 hides them
  int handlesOfBeforeDrag_ = 0;
  std::optional<Drag> drag_;
  std::vector<Guide> guides_;
  PagePlace place_;
};

}  // namespace qm::designer
