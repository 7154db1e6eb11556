// Random but repeatable sessions of a clerk: whatever is done, undo and redo walk through exactly the states
// that were there.

#include <gmock/gmock.h>

#include <array>
#include <functional>
#include <random>

#include "designer/field_clipboard.h"
#include "designer/property_store.h"
#include "tests/designer/canvas_fixture.h"
#include "tests/fakes/scripted_dialogs.h"

namespace qm::designer {
namespace {

bool SameFields(const Layout& a, const Layout& b) {
  if (a.men.size() != b.men.size()) return false;
  for (int index = 1; index < static_cast<int>(a.men.size()); ++index) {
    const Field *x = a.At(index), *y = b.At(index);
    if ((x == nullptr) != (y == nullptr) || (x != nullptr && *x != *y)) return false;
  }
  return true;
}

bool SameContent(const Layout& a, const Layout& b) {
  const bool sameLogo = a.logo == b.logo || (a.logo && b.logo && *a.logo == *b.logo);
  return SameFields(a, b) && sameLogo && a.imagen == b.imagen && a.copias == b.copias &&
         a.canvasWidth == b.canvasWidth;
}

// Does one thing after the other and keeps the states that undo and redo should lead to.
class Session : public tests::OnTheCanvas {
 public:
  void TestBody() override {}

  explicit Session(unsigned seed) : random_(seed) {
    PutLogo({5000, 5000, 1000, 500});
    shown_ = document.Current();
    document.Listen([this](const Layout& before, const Layout& after) {
      EXPECT_EQ(before == shown_, true) << "the window draws anew what differs between the two";
      EXPECT_EQ(after == document.Current(), true);
      shown_ = after;
    });
    states_ = {document.Current()};
  }

  void DoSomething() {
    static constexpr std::array kActions = {
        &Session::DragSomething,  &Session::DragAHandle, &Session::CancelADrag,    &Session::HoldAnArrowKey,
        &Session::PressSomewhere, &Session::Walk,        &Session::DeleteAField,   &Session::AddAField,
        &Session::CopyProperties, &Session::PasteField,  &Session::ChangeSettings, &Session::ZoomOrScroll};
    const bool wasModified = document.Modified();
    if (Chance(4)) return wasModified ? UndoOrRedo() : document.MarkModified();
    (this->*kActions[Any(kActions.size())])();
    EXPECT_TRUE(document.Modified() || !wasModified);
    EXPECT_EQ(shown_ == document.Current(), true);
    if (SameContent(document.Current(), states_[at_])) return;
    EXPECT_TRUE(document.Modified());
    states_.resize(at_ + 1);
    states_.push_back(document.Current());
    ++at_;
  }

  void UndoOrRedo() {
    if (Chance(3)) {
      EXPECT_EQ(document.Redo(), at_ + 1 < states_.size());
      if (at_ + 1 < states_.size()) ++at_;
    } else {
      EXPECT_EQ(document.Undo(), at_ > 0);
      if (at_ > 0) --at_;
    }
    EXPECT_TRUE(document.Modified());
    EXPECT_TRUE(SameContent(document.Current(), states_[at_]));
  }

  void UndoAllAndRedoAll() {
    while (document.Redo()) ++at_;
    ASSERT_EQ(at_ + 1, states_.size());
    for (; at_ > 0; --at_) {
      ASSERT_TRUE(SameContent(document.Current(), states_[at_]));
      ASSERT_TRUE(document.Undo());
    }
    EXPECT_FALSE(document.Undo());
    EXPECT_TRUE(SameContent(document.Current(), states_.front()));
    while (document.Redo()) ++at_;
    EXPECT_EQ(at_ + 1, states_.size());
    EXPECT_TRUE(SameContent(document.Current(), states_.back()));
  }

  [[nodiscard]] std::size_t States() const { return states_.size(); }

 private:
  std::size_t Any(std::size_t count) { return random_() % count; }
  bool Chance(std::size_t oneIn) { return Any(oneIn) == 0; }
  float Twips() { return static_cast<float>(Any(12000)); }
  platform::Point Somewhere() { return {Twips(), Twips()}; }
  Modifiers AnyModifiers() { return {Chance(3), Chance(3)}; }
  // Most presses should meet something.
  platform::Point OnAField() {
    const int index = static_cast<int>(Any(document.Current().men.size()));
    const Field* field = document.Current().At(index);
    if (field == nullptr) return Chance(2) ? platform::Point{5100, 5100} : Somewhere();
    return {field->box.left + 1.0, field->box.top + 1.0};
  }

  void DragFrom(platform::Point from) {
    Press(from);
    for (std::size_t moves = Any(4); moves > 0; --moves) DragTo(Somewhere(), AnyModifiers());
    const platform::Point to = Chance(4) ? from : Somewhere();
    DragTo(to, {});
    canvas.Release(to);
  }
  void DragSomething() { DragFrom(OnAField()); }
  void DragAHandle() {
    Click(OnAField());
    const auto handles = canvas.Handles();
    if (!handles) return;
    const Box& handle = (*handles)[1 + Any(8)];
    DragFrom({handle.left + 10.0, handle.top + 10.0});
  }
  void CancelADrag() {
    Press(OnAField());
    DragTo(Somewhere(), AnyModifiers());
    canvas.CancelDrag();
  }
  void HoldAnArrowKey() {
    const auto direction = static_cast<Direction>(Any(4));
    const Modifiers modifiers = AnyModifiers();
    canvas.ArrowKey(direction, modifiers);
    for (std::size_t i = Any(5); i > 0; --i) canvas.ArrowKey(direction, modifiers, true);
  }
  void PressSomewhere() {
    canvas.Press(Somewhere(), Chance(2) ? Button::Left : Button::Right);
    canvas.EndDrag();
  }
  void Walk() { canvas.NextField(Chance(2)); }
  void DeleteAField() {
    if (document.Current().At(document.Selected()) != nullptr) Delete(document.Selected());
  }
  void AddAField() {
    document.Edit([this](Layout& layout) {
      layout.men.push_back(tests::FieldWith({Twips(), Twips(), Twips() / 10, Twips() / 10}));
    });
  }
  void CopyProperties() {
    dialogs_.checks = {std::vector<bool>{Chance(2), Chance(2), Chance(2), Chance(2), Chance(2)}};
    store_.Copy(document, static_cast<int>(Any(6)), dialogs_);
    Click(OnAField());
    store_.Paste(document);
  }
  void PasteField() {
    clipboard_.Copy(document);
    clipboard_.Paste(document);
  }
  void ChangeSettings() {
    document.Edit([this](Layout& layout) {
      if (Chance(2)) layout.copias = Chance(2) ? u"01" : u"02";
      if (Chance(2)) layout.canvasWidth = Chance(2) ? 11906.0F : 8000.0F;
      if (Chance(4)) layout.logo = Chance(2) ? nullptr : tests::LogoAt({5000, 5000, 1000, 500});
    });
  }
  void ZoomOrScroll() {
    canvas.ZoomBy(static_cast<int>(Any(5)) - 2, Somewhere());
    canvas.ScrollTo(static_cast<int>(Any(9000)), static_cast<int>(Any(9000)));
  }

  std::mt19937 random_;
  fakes::ScriptedDialogs dialogs_;
  PropertyStore store_;
  FieldClipboard clipboard_;
  Layout shown_;
  std::vector<Layout> states_;
  std::size_t at_ = 0;
};

TEST(UndoAndRedo, WalkThroughExactlyTheStatesThereWereWhateverIsDone) {
  std::size_t states = 0;
  for (unsigned seed = 1; seed <= 400; ++seed) {
    SCOPED_TRACE(seed);
    Session session(seed);
    for (int i = 0; i < 50; ++i) session.DoSomething();
    session.UndoAllAndRedoAll();
    states += session.States();
    if (testing::Test::HasFailure()) break;
  }
  EXPECT_GT(states, 4000U) << "the sessions did change things";
}

}  // namespace
}  // namespace qm::designer
