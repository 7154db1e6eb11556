#include "designer/document.h"

#include <algorithm>
#include <utility>

namespace qm::designer {

namespace {

bool SameFields(const std::vector<FieldPointer>& a, const std::vector<FieldPointer>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const FieldPointer& x, const FieldPointer& y) {
    return x == y || (x && y && *x == *y);
  });
}

// Unlike the comparison of layouts, this one looks into fields and logo.
bool SameContent(const Layout& a, const Layout& b) {
  if (!SameFields(a.men, b.men)) return false;
  Layout likeA = b;
  likeA.men = a.men;
  if (a.logo && b.logo && *a.logo == *b.logo) likeA.logo = a.logo;
  return likeA == a;
}

}  // namespace

void Document::Edit(const std::function<void(Layout&)>& change) {
  Layout changed = layout_;
  change(changed);
  if (changed == layout_) return;
  modified_ = true;
  stepGoesOn_ = !inGesture_;
  if (!inGesture_)
    Remember(layout_);
  else if (!gestureStart_)
    gestureStart_ = layout_;
  Become(std::move(changed));
}

void Document::EditFurther(const std::function<void(Layout&)>& change) {
  if (!stepGoesOn_) return Edit(change);
  Adjust([&](Layout& layout) {
    change(layout);
    modified_ = modified_ || layout != layout_;
  });
}

void Document::BeginGesture() {
  inGesture_ = true;
  stepGoesOn_ = false;
  modifiedBeforeGesture_ = modified_;
  gestureStart_.reset();
}

void Document::EndGesture() {
  inGesture_ = stepGoesOn_ = false;
  if (gestureStart_ && !SameContent(*gestureStart_, layout_)) Remember(std::move(*gestureStart_));
  gestureStart_.reset();
}

void Document::CancelGesture() {
  inGesture_ = stepGoesOn_ = false;
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

bool Document::Undo() {
  if (undo_.empty() || inGesture_) return false;
  redo_.push_back(layout_);
  Layout earlier = std::move(undo_.back());
  undo_.pop_back();
  modified_ = true;
  stepGoesOn_ = false;
  Become(std::move(earlier));
  return true;
}

bool Document::Redo() {
  if (redo_.empty() || inGesture_) return false;
  undo_.push_back(layout_);
  Layout later = std::move(redo_.back());
  redo_.pop_back();
  modified_ = true;
  stepGoesOn_ = false;
  Become(std::move(later));
  return true;
}

void Document::Select(int index) {
  selected_ = index;
  logoSelected_ = false;
  stepGoesOn_ = false;
}

void Document::SelectLogo() {
  selected_ = 0;
  logoSelected_ = true;
  stepGoesOn_ = false;
}

void Document::Remember(Layout earlier) {
  if (undo_.size() == kMostSteps) undo_.erase(undo_.begin());
  undo_.push_back(std::move(earlier));
  redo_.clear();
}

void Document::Become(Layout layout) {
  const Layout before = std::exchange(layout_, std::move(layout));
  if (layout_.At(selected_) == nullptr) selected_ = 0;
  if (!layout_.logo) logoSelected_ = false;
  if (listener_) listener_(before, layout_);
}

}  // namespace qm::designer
