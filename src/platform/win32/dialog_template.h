#pragma once
// The memory image of a dialog from which Windows creates it, with every control sized by its text.

#include <cstdint>
#include <vector>

#include "platform/win32/dialog.h"

namespace qm::platform::win32 {

class DialogRuler;

class DialogTemplate {
 public:
  explicit DialogTemplate(const DialogLayout& layout);

  [[nodiscard]] const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  using Control = DialogLayout::Control;
  struct Box {
    int x;
    int y;
    int width;
    int height;
  };

  void PutHeader(const DialogLayout& layout);  // its height is left open
  void PutLabel(const Control& control, const DialogRuler& ruler);
  void PutEntry(const Control& control);
  void PutList(const Control& control);
  void PutButton(const Control& control, const DialogRuler& ruler);
  [[nodiscard]] Box NextInColumn(int height);

  void PutControl(int windowClass, DWORD style, DWORD extendedStyle, const Box& box, int id,
                  std::u16string_view text);
  void PutWord(int value) { words_.push_back(static_cast<std::uint16_t>(value)); }
  void PutDoubleWord(DWORD value);
  void PutText(std::u16string_view text);
  void PutBox(const Box& box);

  std::vector<std::uint16_t> words_;
  int width_ = 0;    // of the column, without margins
  int y_ = 0;        // where the next control of the column stands
  int buttonX_ = 0;  // likewise of the row of buttons
};

}  // namespace qm::platform::win32
