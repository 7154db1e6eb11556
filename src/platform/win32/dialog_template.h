#pragma once
// The memory image of a dialog from which Windows creates it.

#include <cstdint>
#include <vector>

#include "platform/win32/dialog.h"

namespace qm::platform::win32 {

class DialogTemplate {
 public:
  explicit DialogTemplate(const DialogLayout& layout);

  [[nodiscard]] const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

  // Ids of labels, in their order, so that they can be filled.
  static constexpr int kFirstLabelId = 1000;

 private:
  struct Box {
    int x;
    int y;
    int width;
    int height;
  };

  void PutWord(int value) { words_.push_back(static_cast<std::uint16_t>(value)); }
  void PutDoubleWord(DWORD value);
  void PutText(std::u16string_view text);
  void PutBox(const Box& box);
  void PutControl(int windowClass, DWORD style, DWORD extendedStyle, const Box& box, int id,
                  std::u16string_view text);

  std::vector<std::uint16_t> words_;
};

}  // namespace qm::platform::win32
