#include "designer/document.h"

#include <algorithm>
#include <utility>

#include "designer/boxes.h"

namespace qm::designer {

namespace {

template <class Part>
void ShareEqual(std::shared_ptr<const Part>& part, const std::shared_ptr<const Part>& earlier) {
  if (part != earlier && part && earlier && *part == *earlier) part = earlier;
}

// Fields and logo that are as they were become the same objects again, so that layouts compare by content.
void ShareEqualParts(Layout& layout, const Layout& earlier) {
  ShareEqual(layout.logo, earlier.logo);
  const std::size_t common = std::min(layout.men.size(), earlier.men.size());
  for (std::size_t i = 0; i < common; ++i) ShareEqual(layout.men[i], earlier.men[i]);
}

void ShareBox(Layout& layout, int index, const Layout& other) {
  if (index == 0)
    layout.logo = other.logo;
  else
    layout.men[static_cast<std::size_t>(index)] = other.men[static_cast<std::size_t>(index)];
}

}  // namespace

void Document::Edit(const std::function<void(Layout&)>& change) {
  inRun_ = false;
  Apply(change);
}

// The listener is given the layout before, and copying all fields for that at each step of a drag would be
// most of the step. So a twin of the layout stays one box behind.
void Document::EditBox(int index, const Box& box) {
  const Box* old = BoxOf(layout_, index);
  if (old == nullptr || *old == box) return;
  if (!gestureStart_) return Edit([&](Layout& layout) { SetBox(layout, index, box); });
  if (!twin_) twin_ = layout_;
  SetBox(layout_, index, box);
  modified_ = true;
  if (listener_) listener_(*twin_, layout_);
  ShareBox(*twin_, index, layout_);
}

void Document::EditInRun(const std::function<void(Layout&)>& change, bool goesOn) {
  if (!goesOn || !inRun_) {
    inRun_ = Apply(change) && !inGesture_;
    return;
  }
  Adjust([&](Layout& layout) {
    change(layout);
    modified_ = modified_ || layout != layout_;
  });
}

bool Document::Apply(const std::function<void(Layout&)>& change) {
  Layout changed = layout_;
  change(changed);
  ShareEqualParts(changed, layout_);
  if (changed == layout_) return false;
  modified_ = true;
  if (!inGesture_)
    Remember(layout_);
  else if (!gestureStart_)
    gestureStart_ = layout_;
  Become(std::move(changed));
  return true;
}

void Document::BeginGesture() {
  inGesture_ = true;
  inRun_ = false;
  modifiedBeforeGesture_ = modified_;
  gestureStart_.reset();
}

void Document::EndGesture() {
  inGesture_ = inRun_ = false;
  twin_.reset();
  if (!gestureStart_) return;
  ShareEqualParts(*gestureStart_, layout_);
  if (*gestureStart_ != layout_) Remember(std::move(*gestureStart_));
  gestureStart_.reset();
}

void Document::CancelGesture() {
  inGesture_ = inRun_ = false;
  twin_.reset();
  if (!gestureStart_) return;
  modified_ = modifiedBeforeGesture_;
  Become(std::move(*gestureStart_));
  gestureStart_.reset();
}

void Document::Adjust(const std::function<void(Layout&)>& change) {
  Layout changed = layout_;
  change(changed);
  if (changed != layout_) Become(std::move(changed));
}

void Document::AdjustThroughout(const std::function<void(Layout&)>& change) {
  for (Layout& earlier : undo_) change(earlier);
  for (Layout& later : redo_) change(later);
  if (gestureStart_) change(*gestureStart_);
  Adjust(change);
}

void Document::Start(Layout layout) {
  undo_.clear();
  redo_.clear();
  inGesture_ = false;
  gestureStart_.reset();
  Select(0);
  Become(std::move(layout));
  modified_ = false;
}

bool Document::Undo() { return Step(undo_, redo_); }
bool Document::Redo() { return Step(redo_, undo_); }

bool Document::Step(std::vector<Layout>& from, std::vector<Layout>& to) {
  if (from.empty() || inGesture_) return false;
  to.push_back(layout_);
  Layout next = std::move(from.back());
  from.pop_back();
  modified_ = true;
  inRun_ = false;
  Become(std::move(next));
  return true;
}

void Document::Select(int index) {
  selected_ = index;
  logoSelected_ = false;
  inRun_ = false;
}

void Document::SelectLogo() {
  selected_ = 0;
  logoSelected_ = true;
  inRun_ = false;
}

void Document::Remember(Layout earlier) {
  if (undo_.size() == kMostSteps) undo_.erase(undo_.begin());
  undo_.push_back(std::move(earlier));
  redo_.clear();
}

void Document::Become(Layout layout) {
  twin_.reset();
  const Layout before = std::exchange(layout_, std::move(layout));
  if (layout_.At(selected_) == nullptr) selected_ = 0;
  if (!layout_.logo) logoSelected_ = false;
  if (listener_) listener_(before, layout_);
}

}  // namespace qm::designer
