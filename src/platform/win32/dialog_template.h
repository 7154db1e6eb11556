#pragma once
// The memory image of a dialog from which Windows creates its window and controls. Their places are given
// later, when the font is known in which Windows shows them.

#include <cstdint>
#include <vector>

#include "platform/win32/dialog_layout.h"
#include "platform/win32/wide.h"

namespace qm::platform::win32 {

class DialogTemplate {
 public:
  explicit DialogTemplate(const DialogLayout& layout);

  [[nodiscard]] const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  void PutHeader(const DialogLayout& layout);
  void PutControl(const DialogLayout::Control& control, bool scrolls);
  void PutWord(int value) { words_.push_back(static_cast<std::uint16_t>(value)); }
  void PutDoubleWord(DWORD value);
  void PutText(std::u16string_view text);

  std::vector<std::uint16_t> words_;
};

}  // namespace qm::platform::win32
