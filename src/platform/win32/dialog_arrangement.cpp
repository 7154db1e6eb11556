#include "platform/win32/dialog_arrangement.h"

#include <algorithm>

namespace qm::platform::win32 {
namespace {

// The system's own measures for dialogs, in dialog units.
constexpr int kMargin = 7;
constexpr int kGap = 4;
constexpr int kGapAboveButtons = 7;
constexpr int kEntryHeight = 14;
constexpr int kEntryWidth = 40;
constexpr int kCheckHeight = 10;
constexpr int kCheckBox = 14;  // the box and what is between it and its text
constexpr int kButtonHeight = 14;
constexpr int kButtonWidth = 50;
constexpr int kButtonPadding = 12;
constexpr int kScrollBarWidth = 16;
constexpr int kNarrowest = 180;
constexpr int kWidest = 320;
constexpr int kGroupSide = 6;
constexpr int kGroupTop = 11;
constexpr int kGroupBottom = 6;

RECT Box(int left, int top, int width, int height) { return {left, top, left + width, top + height}; }
int WidthOf(const RECT& area) { return static_cast<int>(area.right - area.left); }
int HeightOf(const RECT& area) { return static_cast<int>(area.bottom - area.top); }

}  // namespace

DialogArrangement::DialogArrangement(const DialogLayout& layout, const DialogRuler& ruler)
    : layout_(layout), ruler_(ruler) {
  for (const int index : ChildrenOf(DialogLayout::kNoParent))
    (At(index).kind == Kind::Button ? buttons_ : content_).push_back(index);
  const int width = std::max({ruler_.Across(kNarrowest), WidthOfColumn(content_), WidthOfRow(buttons_)});
  const int buttonsHeight = buttons_.empty() ? 0 : ruler_.Down(kGapAboveButtons + kButtonHeight);
  natural_.cx = width + 2 * ruler_.Across(kMargin);
  natural_.cy = HeightOfColumn(content_, width) + buttonsHeight + 2 * ruler_.Down(kMargin);
}

const DialogLayout::Control& DialogArrangement::At(int index) const {
  return layout_.Controls()[static_cast<std::size_t>(index)];
}

std::vector<int> DialogArrangement::ChildrenOf(int parent) const {
  std::vector<int> children;
  for (int index = 0; index < static_cast<int>(layout_.Controls().size()); ++index)
    if (At(index).parent == parent) children.push_back(index);
  return children;
}

bool DialogArrangement::GrowsAcross(int index) const {
  switch (At(index).kind) {
    case Kind::Check:
    case Kind::Push:
    case Kind::Button:
      return false;
    case Kind::Row:
    case Kind::Column: {
      const std::vector<int> children = ChildrenOf(index);
      return std::any_of(children.begin(), children.end(), [this](int child) { return GrowsAcross(child); });
    }
    case Kind::Label:
      return At(At(index).parent < 0 ? index : At(index).parent).kind !=
             Kind::Row;  // beside others it does not
    default:
      return true;
  }
}

bool DialogArrangement::GrowsDown(int index) const {
  if (At(index).kind == Kind::List) return true;
  const std::vector<int> children = ChildrenOf(index);
  return std::any_of(children.begin(), children.end(), [this](int child) { return GrowsDown(child); });
}

int DialogArrangement::NaturalWidth(int index) const {
  const Control& control = At(index);
  int widest = 0;
  for (const std::u16string& item : control.items) widest = std::max(widest, ruler_.Width(item));
  switch (control.kind) {
    case Kind::Label:
      return std::min(ruler_.Across(kWidest), ruler_.Width(control.text) + ruler_.Across(1));
    case Kind::Entry:
      return ruler_.Across(control.width > 0 ? control.width : kEntryWidth);
    case Kind::List:
    case Kind::Choice:
      return std::clamp(widest + ruler_.Across(kScrollBarWidth), ruler_.Across(control.width),
                        ruler_.Across(kWidest));
    case Kind::Check:
      return ruler_.Width(control.text) + ruler_.Across(kCheckBox);
    case Kind::Drawing:
      return ruler_.Across(control.width);
    case Kind::Push:
    case Kind::Button:
      return std::max(ruler_.Across(kButtonWidth),
                      ruler_.Width(control.text) + ruler_.Across(kButtonPadding));
    case Kind::Group:
      return std::max(WidthOfColumn(ChildrenOf(index)), ruler_.Width(control.text)) +
             2 * ruler_.Across(kGroupSide);
    case Kind::Row:
      return WidthOfRow(ChildrenOf(index));
    case Kind::Column:
      return WidthOfColumn(ChildrenOf(index));
    case Kind::Note:
      break;
  }
  return 0;
}

int DialogArrangement::NaturalHeight(int index, int width) const {
  const Control& control = At(index);
  switch (control.kind) {
    case Kind::Label:
    case Kind::Note:
      return std::min(DialogRuler::TallestLabel(), ruler_.HeightOfWrapped(control.text, width));
    case Kind::Entry:
    case Kind::Choice:
      return ruler_.Down(control.height > 0 ? control.height : kEntryHeight);
    case Kind::List:
    case Kind::Drawing:
      return ruler_.Down(control.height);
    case Kind::Check:
      return std::max(ruler_.Down(kCheckHeight), ruler_.LineHeight());
    case Kind::Push:
    case Kind::Button:
      return ruler_.Down(kButtonHeight);
    case Kind::Group:
      return HeightOfColumn(ChildrenOf(index), width - 2 * ruler_.Across(kGroupSide)) +
             ruler_.Down(kGroupTop + kGroupBottom);
    case Kind::Column:
      return HeightOfColumn(ChildrenOf(index), width);
    case Kind::Row:
      break;
  }
  const std::vector<int> children = ChildrenOf(index);
  const std::vector<int> widths = WidthsInRow(children, width);
  int height = 0;
  for (std::size_t i = 0; i < children.size(); ++i)
    height = std::max(height, NaturalHeight(children[i], widths[i]));
  return height;
}

int DialogArrangement::WidthOfRow(const std::vector<int>& children) const {
  int width = 0;
  for (const int child : children) width += NaturalWidth(child) + ruler_.Across(kGap);
  return std::max(0, width - ruler_.Across(kGap));
}

int DialogArrangement::WidthOfColumn(const std::vector<int>& children) const {
  int width = 0;
  for (const int child : children) width = std::max(width, NaturalWidth(child));
  return width;
}

int DialogArrangement::HeightOfColumn(const std::vector<int>& children, int width) const {
  int height = 0;
  for (const int child : children) height += NaturalHeight(child, width) + ruler_.Down(kGap);
  return std::max(0, height - ruler_.Down(kGap));
}

std::vector<int> DialogArrangement::WidthsInRow(const std::vector<int>& children, int width) const {
  int growing = 0;
  for (const int child : children) growing += GrowsAcross(child) ? 1 : 0;
  int more = std::max(0, width - WidthOfRow(children));
  std::vector<int> widths;
  for (const int child : children) {
    int share = 0;
    if (growing > 0 && GrowsAcross(child)) {
      share = more / growing--;
      more -= share;
    }
    widths.push_back(NaturalWidth(child) + share);
  }
  return widths;
}

std::vector<RECT> DialogArrangement::For(SIZE client) const {
  const int across = ruler_.Across(kMargin);
  const int down = ruler_.Down(kMargin);
  RECT area{across, down, std::max(client.cx, natural_.cx) - across, std::max(client.cy, natural_.cy) - down};
  std::vector<RECT> boxes(layout_.Controls().size());
  const int width = WidthOfRow(buttons_);
  const int height = ruler_.Down(kButtonHeight);
  PlaceRow(buttons_,
           Box(static_cast<int>(area.right) - width, static_cast<int>(area.bottom) - height, width, height),
           boxes);
  if (!buttons_.empty()) area.bottom -= height + ruler_.Down(kGapAboveButtons);
  PlaceColumn(content_, area, boxes);
  return boxes;
}

void DialogArrangement::Place(int index, const RECT& area, std::vector<RECT>& boxes) const {
  boxes[static_cast<std::size_t>(index)] = area;
  const Kind kind = At(index).kind;
  if (kind == Kind::Row) PlaceRow(ChildrenOf(index), area, boxes);
  if (kind == Kind::Column) PlaceColumn(ChildrenOf(index), area, boxes);
  if (kind == Kind::Group)
    PlaceColumn(ChildrenOf(index),
                {area.left + ruler_.Across(kGroupSide), area.top + ruler_.Down(kGroupTop),
                 area.right - ruler_.Across(kGroupSide), area.bottom - ruler_.Down(kGroupBottom)},
                boxes);
}

void DialogArrangement::PlaceColumn(const std::vector<int>& children, const RECT& area,
                                    std::vector<RECT>& boxes) const {
  const int width = WidthOf(area);
  int growing = 0;
  for (const int child : children) growing += GrowsDown(child) ? 1 : 0;
  int more = std::max(0, HeightOf(area) - HeightOfColumn(children, width));
  int y = static_cast<int>(area.top);
  for (const int child : children) {
    int height = NaturalHeight(child, width);
    if (growing > 0 && GrowsDown(child)) {
      const int share = more / growing--;
      more -= share;
      height += share;
    }
    const int own = GrowsAcross(child) ? width : std::min(width, NaturalWidth(child));
    Place(child, Box(static_cast<int>(area.left), y, own, height), boxes);
    y += height + ruler_.Down(kGap);
  }
}

// What does not grow stands at the middle of the row's height.
void DialogArrangement::PlaceRow(const std::vector<int>& children, const RECT& area,
                                 std::vector<RECT>& boxes) const {
  const std::vector<int> widths = WidthsInRow(children, WidthOf(area));
  int x = static_cast<int>(area.left);
  for (std::size_t i = 0; i < children.size(); ++i) {
    const Kind kind = At(children[i]).kind;
    const bool whole = GrowsDown(children[i]) || kind == Kind::Group || kind == Kind::Column;
    const int height = whole ? HeightOf(area) : NaturalHeight(children[i], widths[i]);
    const int y = static_cast<int>(area.top) + (HeightOf(area) - height) / 2;
    Place(children[i], Box(x, y, widths[i], height), boxes);
    x += widths[i] + ruler_.Across(kGap);
  }
}

}  // namespace qm::platform::win32
