#include "platform/win32/dialog_template.h"

#include <algorithm>
#include <utility>

#include "platform/win32/handles.h"

namespace qm::platform::win32 {
namespace {

constexpr std::u16string_view kFontName = u"MS Shell Dlg";
constexpr int kFontPoints = 8;

// The system's own measures for dialogs.
constexpr int kMargin = 7;
constexpr int kGap = 4;
constexpr int kGapAboveButtons = 7;
constexpr int kEntryHeight = 14;
constexpr int kListHeight = 82;
constexpr int kButtonHeight = 14;
constexpr int kButtonWidth = 50;
constexpr int kButtonPadding = 12;
constexpr int kScrollBarWidth = 16;
constexpr int kNarrowest = 180;
constexpr int kWidest = 320;
constexpr int kTallestLabelPercent = 50;  // of the screen
constexpr std::size_t kLongestStandingLabel = 4000;

constexpr int kButtonClass = 0x0080;
constexpr int kEditClass = 0x0081;
constexpr int kStaticClass = 0x0082;
constexpr int kListClass = 0x0083;

}  // namespace

// Measures texts in the dialog's font, in dialog units.
class DialogRuler {
 public:
  DialogRuler() : font_(MakeFont()), selected_(screen_.Get(), font_.Get()) {
    constexpr std::u16string_view kLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE size{};
    GetTextExtentPoint32W(screen_.Get(), Wide(kLetters.data()), static_cast<int>(kLetters.size()), &size);
    unitX_ = std::max(1, static_cast<int>((size.cx / 26 + 1) / 2));
    TEXTMETRICW metrics{};
    GetTextMetricsW(screen_.Get(), &metrics);
    unitY_ = std::max(1, static_cast<int>(metrics.tmHeight));
  }

  // Wrapping a text takes Windows time with the square of its length, so what cannot fit is not measured.
  [[nodiscard]] int Width(std::u16string_view text) const {
    return Up(Measured(text.substr(0, kWidest), DT_SINGLELINE, 0).right, 4, unitX_);
  }
  [[nodiscard]] int HeightOfWrapped(std::u16string_view text, int width) const {
    if (text.size() > kLongestStandingLabel) return ScreenHeight();
    const RECT area = Measured(text, DT_WORDBREAK | DT_EDITCONTROL, MulDiv(width, unitX_, 4));
    return std::max(8, Up(area.bottom, 8, unitY_) + 1);
  }
  [[nodiscard]] int ButtonWidth(std::u16string_view text) const {
    return std::max(kButtonWidth, Width(text) + kButtonPadding);
  }
  [[nodiscard]] int ScreenHeight() const { return MulDiv(GetSystemMetrics(SM_CYSCREEN), 8, unitY_); }

 private:
  OwnedFont MakeFont() const {
    LOGFONTW description{};
    description.lfHeight = -MulDiv(kFontPoints, GetDeviceCaps(screen_.Get(), LOGPIXELSY), 72);
    description.lfWeight = FW_NORMAL;
    description.lfCharSet = DEFAULT_CHARSET;
    std::copy(kFontName.begin(), kFontName.end(), description.lfFaceName);
    return OwnedFont(CreateFontIndirectW(&description));
  }

  [[nodiscard]] RECT Measured(std::u16string_view text, UINT format, int width) const {
    RECT area{0, 0, width, 0};
    const std::u16string copy(text);
    DrawTextW(screen_.Get(), const_cast<wchar_t*>(Wide(copy)), static_cast<int>(copy.size()), &area,
              format | DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS);
    return area;
  }

  static int Up(LONG pixels, int units, int pixelsPerUnits) {
    return (static_cast<int>(pixels) * units + pixelsPerUnits - 1) / pixelsPerUnits;
  }

  ScreenDc screen_;
  OwnedFont font_;
  SelectedObject selected_;
  int unitX_ = 1;
  int unitY_ = 1;
};

void DialogTemplate::PutDoubleWord(DWORD value) {
  PutWord(static_cast<int>(value & 0xFFFF));
  PutWord(static_cast<int>(value >> 16));
}

void DialogTemplate::PutText(std::u16string_view text) {
  words_.insert(words_.end(), text.begin(), text.end());
  PutWord(0);
}

void DialogTemplate::PutBox(const Box& box) {
  for (const int value : {box.x, box.y, box.width, box.height}) PutWord(value);
}

void DialogTemplate::PutControl(int windowClass, DWORD style, DWORD extendedStyle, const Box& box, int id,
                                std::u16string_view text) {
  if (words_.size() % 2) PutWord(0);  // controls begin at multiples of four bytes
  PutDoubleWord(style | WS_CHILD | WS_VISIBLE);
  PutDoubleWord(extendedStyle);
  PutBox(box);
  PutWord(id);
  PutWord(0xFFFF);
  PutWord(windowClass);
  PutText(text);
  PutWord(0);  // no creation data
}

DialogTemplate::Box DialogTemplate::NextInColumn(int height) {
  const Box box{kMargin, y_, width_, height};
  y_ += height + kGap;
  return box;
}

void DialogTemplate::PutLabel(const Control& control, const DialogRuler& ruler) {
  const int tallest = ruler.ScreenHeight() * kTallestLabelPercent / 100;
  const int height = ruler.HeightOfWrapped(control.text, width_);
  if (height <= tallest) {
    PutControl(kStaticClass, SS_LEFT | SS_NOPREFIX | SS_EDITCONTROL, 0, NextInColumn(height), control.id,
               u"");
  } else {
    PutControl(kEditClass, ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_TABSTOP, 0, NextInColumn(tallest),
               control.id, u"");
  }
}

void DialogTemplate::PutEntry(const Control& control) {
  PutControl(kEditClass, ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE, NextInColumn(kEntryHeight),
             control.id, u"");
}

void DialogTemplate::PutList(const Control& control) {
  PutControl(kListClass, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE,
             NextInColumn(kListHeight), control.id, u"");
}

void DialogTemplate::PutButton(const Control& control, const DialogRuler& ruler) {
  const Box box{buttonX_, y_ + kGapAboveButtons - kGap, ruler.ButtonWidth(control.text), kButtonHeight};
  buttonX_ += box.width + kGap;
  PutControl(kButtonClass, (control.id == IDOK ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | WS_TABSTOP, 0, box,
             control.id, control.text);
}

void DialogTemplate::PutHeader(const DialogLayout& layout) {
  PutDoubleWord(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_CENTER | DS_SETFONT |
                DS_SETFOREGROUND);
  PutDoubleWord(WS_EX_CONTROLPARENT);
  PutWord(static_cast<int>(layout.Controls().size()));
  PutBox({0, 0, width_ + 2 * kMargin, 0});
  PutWord(0);  // no menu
  PutWord(0);  // the standard window class
  PutText(layout.Title());
  PutWord(kFontPoints);
  PutText(kFontName);
}

DialogTemplate::DialogTemplate(const DialogLayout& layout) {
  using Kind = DialogLayout::Kind;
  const DialogRuler ruler;
  width_ = kNarrowest;
  int buttonsWidth = -kGap;
  for (const Control& control : layout.Controls()) {
    if (control.kind == Kind::Button) {
      buttonsWidth += kGap + ruler.ButtonWidth(control.text);
    } else {
      width_ = std::max(width_, std::min(kWidest, ruler.Width(control.text) + kGap));
    }
    for (const std::u16string& item : control.items)
      width_ = std::max(width_, std::min(kWidest, ruler.Width(item) + kScrollBarWidth));
  }
  width_ = std::max(width_, buttonsWidth);

  PutHeader(layout);
  y_ = kMargin;
  buttonX_ = kMargin + width_ - buttonsWidth;
  for (const Control& control : layout.Controls()) {
    switch (control.kind) {
      case Kind::Label:
        PutLabel(control, ruler);
        break;
      case Kind::Entry:
        PutEntry(control);
        break;
      case Kind::List:
        PutList(control);
        break;
      case Kind::Button:
        PutButton(control, ruler);
        break;
    }
  }
  // The height is known only now.
  reinterpret_cast<DLGTEMPLATE*>(words_.data())->cy =
      static_cast<short>(y_ - kGap + kGapAboveButtons + kButtonHeight + kMargin);
}

}  // namespace qm::platform::win32
