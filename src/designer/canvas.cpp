#include "designer/canvas.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "designer/boxes.h"
#include "designer/readout.h"

namespace qm::designer {

namespace {

constexpr float kHandleSize = 90;  // at actual size, as is the next
constexpr float kSnapDistance = 60;
constexpr float kArrowStep = 15;  // a pixel of the screen at actual size
constexpr float kFineArrowStep = 1;

platform::Point OnWholeTwips(platform::Point at) { return {std::nearbyint(at.x), std::nearbyint(at.y)}; }

Box Moved(Box box, float x, float y) {
  box.left += x;
  box.top += y;
  return box;
}

Box Sized(Box box, float x, float y) {
  box.width = std::max(box.width + x, 0.0F);
  box.height = std::max(box.height + y, 0.0F);
  return box;
}

}  // namespace

Canvas::Canvas(Document& document, View& view, runtime::Locale locale)
    : document_(document), view_(view), locale_(std::move(locale)) {}

void Canvas::Press(platform::Point at, Button button) {
  EndDrag();
  at = OnWholeTwips(at);
  const std::optional<HandleBoxes> handles = Handles();
  if (const int handle = handles ? HandleAt(*handles, at) : 0; handle != 0) {
    if (button == Button::Left) PressHandle(handle, at);
  } else if (const int index = FieldAt(at); index != 0) {
    PressField(index, at, button);
  } else if (LogoAt(at)) {
    if (button == Button::Left) PressLogo(at);
  } else {
    HideHandles();
    if (button == Button::Right) view_.ShowPopUp(PopUp::Insertar);
  }
}

void Canvas::PressHandle(int handle, platform::Point at) {
  const int index = document_.Selected();
  StartDrag(Drag::OfHandle(index, *BoxOf(document_.Current(), index), handle, HandleSize(), at));
}

void Canvas::PressField(int index, platform::Point at, Button button) {
  document_.Select(index);
  document_.MarkModified();  // a press alone counts as a change
  if (button == Button::Right) {
    ShowHandlesOf(index);  // so that one sees what the menu is about
    view_.ShowPopUp(PopUp::Editar);
    return;
  }
  if (handlesOf_ != index) handlesOf_ = 0;
  view_.MarksChanged();
  StartDrag(Drag::Whole(index, *BoxOf(document_.Current(), index), at));
}

void Canvas::PressLogo(platform::Point at) {
  document_.SelectLogo();
  HideHandles();
  StartDrag(Drag::Whole(0, document_.Current().logo->box, at));
}

void Canvas::StartDrag(const Drag& drag) {
  handlesOfBeforeDrag_ = handlesOf_;
  drag_ = drag;
  document_.BeginGesture();
}

void Canvas::Move(platform::Point at, bool leftHeld, Modifiers modifiers) {
  if (!drag_) return;
  if (!leftHeld) return EndDrag();
  at = OnWholeTwips(at);
  drag_->MovedTo(at);
  if (!drag_->Moved() || BoxOf(document_.Current(), drag_->Field()) == nullptr) return;
  if (drag_->Handle() == 0) handlesOf_ = 0;
  if (drag_->Handle() != 0 && !CanBeDragged(drag_->Handle())) return;

  guides_.clear();
  const float tolerance = kSnapDistance / static_cast<float>(Zoom());
  const Box box = drag_->BoxAt(at, modifiers, document_.Current(), tolerance, guides_);
  document_.EditBox(drag_->Field(), box);
  view_.MarksChanged();
  ShowReadout(box);
}

void Canvas::Release(platform::Point at) {
  if (!drag_) return;
  const int pressed = drag_->Handle() == 0 ? drag_->Field() : 0;
  const Box* box = pressed != 0 ? BoxOf(document_.Current(), pressed) : nullptr;
  const bool clicked = box != nullptr && !drag_->Moved() && Contains(*box, OnWholeTwips(at));
  EndDrag();
  if (clicked) ShowHandlesOf(pressed);
}

void Canvas::EndDrag() {
  if (!drag_) return;
  drag_.reset();
  document_.EndGesture();
  if (guides_.empty()) return;
  guides_.clear();
  view_.MarksChanged();
}

void Canvas::CancelDrag() {
  if (!drag_) return;
  const Drag drag = *std::exchange(drag_, std::nullopt);
  document_.CancelGesture();
  handlesOf_ = handlesOfBeforeDrag_;
  guides_.clear();
  view_.MarksChanged();
  if (const Box* box = BoxOf(document_.Current(), drag.Field()); box != nullptr && drag.Moved())
    ShowReadout(*box);
}

Pointer Canvas::PointerAt(platform::Point at) const {
  if (drag_) return PointerOf(drag_->Handle());
  const std::optional<HandleBoxes> handles = Handles();
  return handles ? PointerOf(HandleAt(*handles, at)) : Pointer::Arrow;
}

int Canvas::FieldAt(platform::Point at) const {
  const Layout& layout = document_.Current();
  for (int index = static_cast<int>(layout.men.size()) - 1; index > 0; --index)
    if (const Field* field = layout.At(index); field != nullptr && Contains(field->box, at)) return index;
  return 0;
}

bool Canvas::LogoAt(platform::Point at) const {
  const Layout& layout = document_.Current();
  return layout.logo && Contains(layout.logo->box, at);
}

std::u16string Canvas::ToolTipAt(platform::Point at) const {
  const std::optional<HandleBoxes> handles = Handles();
  if (drag_ || (handles && HandleAt(*handles, at) != 0)) return {};
  const Field* field = document_.Current().At(FieldAt(at));
  return field != nullptr ? field->caption : std::u16string();
}

void Canvas::ArrowKey(Direction direction, Modifiers modifiers, bool repeated) {
  const Box* selected = SelectedBox();
  if (drag_ || selected == nullptr) return;
  float x = 0, y = 0;
  const float step = modifiers.control ? kFineArrowStep : kArrowStep;
  switch (direction) {
    case Direction::Left:
      x = -step;
      break;
    case Direction::Right:
      x = step;
      break;
    case Direction::Up:
      y = -step;
      break;
    case Direction::Down:
      y = step;
      break;
  }
  const Box box = modifiers.shift ? Sized(*selected, x, y) : Moved(*selected, x, y);
  handlesOf_ = document_.Selected();
  document_.EditInRun([&](Layout& layout) { SetBox(layout, handlesOf_, box); }, repeated);
  view_.MarksChanged();
  ShowReadout(box);
  Reveal(box);
}

void Canvas::NextField(bool backwards) {
  const int count = static_cast<int>(document_.Current().men.size());
  if (drag_) return;
  int index = document_.Selected();
  for (int tried = 1; tried < count; ++tried) {
    index += backwards ? -1 : 1;
    if (index >= count) index = 1;
    if (index < 1) index = count - 1;
    const Box* box = BoxOf(document_.Current(), index);
    if (box == nullptr) continue;
    ShowHandlesOf(index);
    return Reveal(*box);
  }
}

void Canvas::HideHandles() {
  handlesOf_ = 0;
  view_.MarksChanged();
}

void Canvas::ShowHandlesOf(int index) {
  const Field* field = document_.Current().At(index);
  if (field == nullptr) return HideHandles();
  if (document_.Selected() != index) document_.Select(index);
  handlesOf_ = index;
  view_.MarksChanged();
  ShowReadout(field->box);
}

std::optional<HandleBoxes> Canvas::Handles() const {
  const Field* field = document_.Current().At(handlesOf_);
  if (field == nullptr || handlesOf_ != document_.Selected()) return std::nullopt;
  return HandlesAround(field->box, HandleSize());
}

float Canvas::HandleSize() const { return std::nearbyint(kHandleSize / static_cast<float>(Zoom())); }

void Canvas::ScrollTo(int horizontal, int vertical) {
  place_.ScrollTo(document_.Current(), horizontal, vertical);
  view_.PlaceChanged();
}

void Canvas::ZoomBy(int steps, platform::Point around) {
  place_.ZoomBy(document_.Current(), steps, around);
  view_.PlaceChanged();
}

void Canvas::ZoomToActualSize() {
  place_.ZoomToActualSize(document_.Current());
  view_.PlaceChanged();
}

const Box* Canvas::SelectedBox() const {
  if (document_.Selected() == 0 && !document_.LogoSelected()) return nullptr;
  return BoxOf(document_.Current(), document_.Selected());
}

void Canvas::ShowReadout(const Box& box) { view_.ShowReadout(Readout(box, locale_)); }

void Canvas::Reveal(Box box) {
  const float margin = HandleSize();
  box = Sized(Moved(box, -margin, -margin), 2 * margin, 2 * margin);
  const int horizontal = Horizontal(), vertical = Vertical();
  place_.Reveal(document_.Current(), box);
  if (horizontal != Horizontal() || vertical != Vertical()) view_.PlaceChanged();
}

}  // namespace qm::designer
