#include "designer/document.h"

#include <utility>

namespace qm::designer {

void Document::Edit(const std::function<void(Layout&)>& change) {
  Layout changed = layout_;
  change(changed);
  if (changed == layout_) return;
  modified_ = true;
  if (!inGesture_ || !gestureChanged_) {
    if (undo_.size() == kMostSteps) undo_.erase(undo_.begin());
    undo_.push_back(layout_);
    redo_.clear();
    gestureChanged_ = inGesture_;
  }
  Become(std::move(changed));
}

void Document::BeginGesture() {
  inGesture_ = true;
  gestureChanged_ = false;
}

void Document::EndGesture() { inGesture_ = gestureChanged_ = false; }

void Document::Adjust(const std::function<void(Layout&)>& change) {
  Layout changed = layout_;
  change(changed);
  if (changed != layout_) Become(std::move(changed));
}

void Document::AdjustThroughout(const std::function<void(Layout&)>& change) {
  for (Layout& earlier : undo_) change(earlier);
  for (Layout& later : redo_) change(later);
  Adjust(change);
}

void Document::Start(Layout layout) {
  undo_.clear();
  redo_.clear();
  EndGesture();
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
  Become(std::move(earlier));
  return true;
}

bool Document::Redo() {
  if (redo_.empty() || inGesture_) return false;
  undo_.push_back(layout_);
  Layout later = std::move(redo_.back());
  redo_.pop_back();
  modified_ = true;
  Become(std::move(later));
  return true;
}

void Document::Select(int index) {
  selected_ = index;
  logoSelected_ = false;
}

void Document::SelectLogo() {
  selected_ = 0;
  logoSelected_ = true;
}

void Document::Become(Layout layout) {
  const Layout before = std::exchange(layout_, std::move(layout));
  if (layout_.At(selected_) == nullptr) selected_ = 0;
  if (!layout_.logo) logoSelected_ = false;
  if (listener_) listener_(before, layout_);
}

}  // namespace qm::designer
