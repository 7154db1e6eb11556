#pragma once
// The layout being edited: what is selected, whether it was modified, and the way back. Every change of the
// layout goes through here; whoever shows it is told of each with the layouts before and after.

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "designer/layout.h"

namespace qm::designer {

class Document {
 public:
  using Listener = std::function<void(const Layout& before, const Layout& after)>;

  Document() = default;
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document() = default;

  void Listen(Listener listener) { listener_ = std::move(listener); }

  [[nodiscard]] const Layout& Current() const { return layout_; }

  // One edit: marks the layout modified and is one step of undo. A change that changes nothing is none.
  void Edit(const std::function<void(Layout&)>& change);
  // One edit that places a field or, by 0, the logo. Amid a gesture it takes no longer with many fields.
  void EditBox(int index, const Box& box);
  // One edit of a run, as a key makes that is held down: when it goes on, it belongs to the step of the edit
  // before, provided that was of a run as well and nothing else came between.
  void EditInRun(const std::function<void(Layout&)>& change, bool goesOn);
  // Edits from here to the end, a drag's for example, are one step; none when all is as it was before.
  // Gestures do not nest.
  void BeginGesture();
  void EndGesture();
  // As if the gesture had never begun, to the modified mark and what could be redone.
  void CancelGesture();
  // Not an edit: neither marks anything nor can be undone.
  void Adjust(const std::function<void(Layout&)>& change);
  // Likewise, and also in all that undo and redo lead to: for what changed outside the layout.
  void AdjustThroughout(const std::function<void(Layout&)>& change);
  // Another layout, with nothing to undo, not modified and nothing selected.
  void Start(Layout layout);

  // False when there is nothing. They mark the layout modified, like any change. A field that is no longer
  // there is no longer selected.
  bool Undo();
  bool Redo();

  [[nodiscard]] bool Modified() const { return modified_; }
  void MarkModified() { modified_ = true; }
  void ClearModified() { modified_ = false; }

  // The field last pressed; it stays selected also when its handles are hidden. 0 for none.
  [[nodiscard]] int Selected() const { return selected_; }
  void Select(int index);
  [[nodiscard]] bool LogoSelected() const { return logoSelected_; }
  void SelectLogo();  // and no field

 private:
  bool Step(std::vector<Layout>& from, std::vector<Layout>& to);
  bool Apply(const std::function<void(Layout&)>& change);
  void Remember(Layout earlier);
  void Become(Layout layout);

  static constexpr std::size_t kMostSteps = 500;

  Layout layout_;
  std::vector<Layout> undo_;
  std::vector<Layout> redo_;
  bool inGesture_ = false;
  bool modifiedBeforeGesture_ = false;
  std::optional<Layout> gestureStart_;  // once something changed
  std::optional<Layout> twin_;          // equal to the layout, while boxes are placed amid a gesture
  bool inRun_ = false;                  // an edit of a run came last, with the same selection
  bool modified_ = false;
  int selected_ = 0;
  bool logoSelected_ = false;
  Listener listener_;
};

}  // namespace qm::designer
