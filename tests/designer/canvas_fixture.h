#pragma once
// A page under the mouse of a clerk, with a window that writes down what it shows.

#include <gtest/gtest.h>

#include "designer/canvas.h"
#include "tests/designer/layouts.h"
#include "tests/fakes/fake_view.h"

namespace qm::tests {

struct OnTheCanvas : testing::Test {
  designer::Document document;
  fakes::FakeView view;
  designer::Canvas canvas{document, view, runtime::Locale::Spanish()};

  OnTheCanvas() {
    document.Listen([this](const designer::Layout& before, const designer::Layout& after) {
      view.LayoutChanged(before, after);
    });
    document.Start(PageWith({{1000, 2000, 600, 300}, {3000, 4000, 800, 240}}));
  }

  designer::Box BoxOf(int index) const { return document.Current().At(index)->box; }
  void PutLogo(const designer::Box& box) {
    document.Adjust([&box](designer::Layout& layout) { layout.logo = LogoAt(box); });
  }
  void Delete(int index) {
    document.Edit(
        [index](designer::Layout& layout) { layout.men[static_cast<std::size_t>(index)] = nullptr; });
  }

  void Press(platform::Point at) { canvas.Press(at, designer::Button::Left); }
  void RightPress(platform::Point at) { canvas.Press(at, designer::Button::Right); }
  void DragTo(platform::Point at, designer::Modifiers modifiers = {}) { canvas.Move(at, true, modifiers); }
  void Click(platform::Point at) {
    Press(at);
    canvas.Release(at);
  }
  // From a press to a release, by way of a point between.
  void Drag(platform::Point from, platform::Point to, designer::Modifiers modifiers = {}) {
    Press(from);
    DragTo({(from.x + to.x) / 2, (from.y + to.y) / 2}, modifiers);
    DragTo(to, modifiers);
    canvas.Release(to);
  }
  bool HandlesShown() const { return canvas.Handles().has_value(); }
};

}  // namespace qm::tests
