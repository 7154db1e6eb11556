#include "platform/win32/dialog_template.h"

#include <algorithm>

#include "platform/win32/dialog_arrangement.h"
#include "platform/win32/dialog_ruler.h"
#include "platform/win32/handles.h"

namespace qm::platform::win32 {
namespace {

using Kind = DialogLayout::Kind;

constexpr int kButtonClass = 0x0080;
constexpr int kEditClass = 0x0081;
constexpr int kStaticClass = 0x0082;
constexpr int kListClass = 0x0083;
constexpr int kComboClass = 0x0085;

struct ControlClass {
  Kind kind;
  int windowClass;
  DWORD style;
  DWORD extendedStyle;
};

constexpr ControlClass kClasses[] = {
    {Kind::Label, kStaticClass, SS_LEFT | SS_NOPREFIX | SS_EDITCONTROL, 0},
    {Kind::Note, kStaticClass, SS_LEFT | SS_NOPREFIX | SS_EDITCONTROL, 0},
    {Kind::Entry, kEditClass, ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {Kind::List, kListClass, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {Kind::Choice, kComboClass, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 0},
    {Kind::Check, kButtonClass, BS_AUTOCHECKBOX | WS_TABSTOP, 0},
    {Kind::Drawing, kStaticClass, SS_OWNERDRAW, 0},
    {Kind::Push, kButtonClass, BS_PUSHBUTTON | WS_TABSTOP, 0},
    {Kind::Button, kButtonClass, BS_PUSHBUTTON | WS_TABSTOP, 0},
    {Kind::Group, kButtonClass, BS_GROUPBOX, WS_EX_TRANSPARENT},
};
// A label too tall for the screen.
constexpr ControlClass kScrollingLabel{Kind::Label, kEditClass,
                                       ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_TABSTOP, 0};

const ControlClass& ClassOf(Kind kind) {
  return *std::find_if(std::begin(kClasses), std::end(kClasses),
                       [kind](const ControlClass& candidate) { return candidate.kind == kind; });
}

OwnedFont Made(const DialogFont& font) {
  const ScreenDc screen;
  LOGFONTW description{};
  description.lfHeight = -MulDiv(font.points, GetDeviceCaps(screen.Get(), LOGPIXELSY), 72);
  description.lfWeight = FW_NORMAL;
  description.lfCharSet = DEFAULT_CHARSET;
  font.face.copy(reinterpret_cast<char16_t*>(description.lfFaceName), LF_FACESIZE - 1);
  return OwnedFont(CreateFontIndirectW(&description));
}

}  // namespace

void DialogTemplate::PutDoubleWord(DWORD value) {
  PutWord(static_cast<int>(value & 0xFFFF));
  PutWord(static_cast<int>(value >> 16));
}

void DialogTemplate::PutText(std::u16string_view text) {
  words_.insert(words_.end(), text.begin(), text.end());
  PutWord(0);
}

void DialogTemplate::PutControl(const DialogLayout::Control& control, bool scrolls) {
  const ControlClass& its = scrolls ? kScrollingLabel : ClassOf(control.kind);
  const bool isButton = its.windowClass == kButtonClass;
  if (words_.size() % 2) PutWord(0);  // controls begin at multiples of four bytes
  PutDoubleWord(its.style | (control.id == IDOK ? BS_DEFPUSHBUTTON : 0) | WS_CHILD | WS_VISIBLE);
  PutDoubleWord(its.extendedStyle);
  for (int i = 0; i < 4; ++i) PutWord(0);  // its place
  PutWord(control.id);
  PutWord(0xFFFF);
  PutWord(its.windowClass);
  PutText(isButton ? std::u16string_view(control.text) : std::u16string_view());  // others may be long
  PutWord(0);                                                                     // no creation data
}

void DialogTemplate::PutHeader(const DialogLayout& layout) {
  const DialogFont font = MessageFont();
  PutDoubleWord(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_SETFONT | DS_SETFOREGROUND |
                (layout.Resizable() ? WS_THICKFRAME | WS_CLIPCHILDREN : DS_MODALFRAME));
  PutDoubleWord(WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME);  // no icon, with any border
  PutWord(static_cast<int>(std::count_if(layout.Controls().begin(), layout.Controls().end(), HasWindow)));
  for (int i = 0; i < 4; ++i) PutWord(0);  // its place
  PutWord(0);                              // no menu
  PutWord(0);                              // the standard window class
  PutText(layout.Title());
  PutWord(font.points);
  PutText(font.face);
}

DialogTemplate::DialogTemplate(const DialogLayout& layout) {
  const OwnedFont font = Made(MessageFont());
  const DialogRuler ruler(font.Get());
  const DialogArrangement arrangement(layout, ruler);
  const std::vector<RECT> boxes = arrangement.For(arrangement.Natural());
  PutHeader(layout);
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const DialogLayout::Control& control = layout.Controls()[i];
    const bool tooTall =
        control.kind == Kind::Label &&
        ruler.HeightOfWrapped(control.text, static_cast<int>(boxes[i].right - boxes[i].left)) >
            DialogRuler::TallestLabel();
    if (HasWindow(control)) PutControl(control, tooTall);
  }
}

}  // namespace qm::platform::win32
