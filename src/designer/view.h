#pragma once
// What the designer's presenters need of the window: it shows what they hold and asks them nothing.
// Implemented by win32/modelo_print_window and the tests' FakeView.

#include <string>
#include <string_view>
#include <vector>

#include "designer/layout.h"

namespace qm::designer {

class FieldProperties;

enum class PopUp { Editar, Insertar };

class View {
 public:
  virtual ~View() = default;

  // The canvas and the controls of the page settings follow the layout.
  virtual void LayoutChanged(const Layout& before, const Layout& after) = 0;
  // Selection, handles or guide lines are others now.
  virtual void MarksChanged() = 0;
  // The place of the page under the viewport, the limits of the scroll bars or the zoom are others now.
  virtual void PlaceChanged() = 0;
  virtual void ShowReadout(std::u16string_view text) = 0;  // in Lab_Pos
  virtual void ShowPopUp(PopUp menu) = 0;                  // at the mouse; returns when it is closed

  // The toolbar's lists; -1 selects nothing. Filling them is no choice of the user's.
  virtual void SelectModel(int position) = 0;
  virtual void ShowPrinters(const std::vector<std::u16string>& names, int selected) = 0;

  virtual void ShowProperties(FieldProperties& properties) = 0;  // the dialog, until it is closed
  virtual void Unload() = 0;                                     // as the close box does
};

}  // namespace qm::designer
