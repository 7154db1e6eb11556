#pragma once
// The tool tip of whatever lies under the mouse on the page. Windows shows it when the mouse rests there.

#include <string>

#include <windows.h>

namespace qm::designer::win32 {

class FieldTip {
 public:
  // It goes with the window that owns the view.
  void Create(HWND view);
  // In pixels of the view. An empty text is none.
  void Follow(const std::u16string& text, const RECT& area);

 private:
  HWND view_ = nullptr;
  HWND tips_ = nullptr;
  std::u16string text_;
  RECT area_{};
};

}  // namespace qm::designer::win32
