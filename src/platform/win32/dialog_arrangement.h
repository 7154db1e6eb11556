#pragma once
// Where each control of a dialog stands, at its natural size and at any larger one. Nothing is cut: every
// control is as large as its text needs; lists and entries take what more there is.
// Units: pixels from the client area's top-left corner.

#include <vector>

#include "platform/win32/dialog_layout.h"
#include "platform/win32/dialog_ruler.h"

namespace qm::platform::win32 {

class DialogArrangement {
 public:
  DialogArrangement(const DialogLayout& layout, const DialogRuler& ruler);

  [[nodiscard]] SIZE Natural() const { return natural_; }
  // By the position of the control in the layout; rows and columns have theirs too. A client area smaller
  // than the natural one is taken for that.
  [[nodiscard]] std::vector<RECT> For(SIZE client) const;

 private:
  using Control = DialogLayout::Control;
  using Kind = DialogLayout::Kind;

  [[nodiscard]] const Control& At(int index) const;
  [[nodiscard]] std::vector<int> ChildrenOf(int parent) const;
  [[nodiscard]] bool GrowsAcross(int index) const;
  [[nodiscard]] bool GrowsDown(int index) const;
  [[nodiscard]] int NaturalWidth(int index) const;
  [[nodiscard]] int NaturalHeight(int index, int width) const;
  [[nodiscard]] int WidthOfRow(const std::vector<int>& children) const;
  [[nodiscard]] int WidthOfColumn(const std::vector<int>& children) const;
  [[nodiscard]] int HeightOfColumn(const std::vector<int>& children, int width) const;
  [[nodiscard]] std::vector<int> WidthsInRow(const std::vector<int>& children, int width) const;

  void Place(int index, const RECT& area, std::vector<RECT>& boxes) const;
  void PlaceColumn(const std::vector<int>& children, const RECT& area, std::vector<RECT>& boxes) const;
  void PlaceRow(const std::vector<int>& children, const RECT& area, std::vector<RECT>& boxes) const;

  const DialogLayout& layout_;
  const DialogRuler& ruler_;
  std::vector<int> content_;  // of the outermost column
  std::vector<int> buttons_;
  SIZE natural_{};
};

}  // namespace qm::platform::win32
