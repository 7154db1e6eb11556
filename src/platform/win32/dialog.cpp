#include "platform/win32/dialog.h"

#include <algorithm>
#include <utility>

#include "platform/win32/dialog_template.h"
#include "platform/win32/errors.h"
#include "platform/win32/visual_styles.h"

namespace qm::platform::win32 {
namespace {

using Kind = DialogLayout::Kind;

constexpr int kMostShownChoices = 8;  // of a drop-down list

SIZE SizeOf(const RECT& area) { return {area.right - area.left, area.bottom - area.top}; }

// The middle of the owner or, without one, of the screen, all of it on the screen.
RECT Centred(SIZE size, HWND owner) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY), &monitor);
  const RECT& screen = monitor.rcWork;
  RECT around = screen;
  if (owner && !IsIconic(owner)) GetWindowRect(owner, &around);
  size.cx = std::min(size.cx, SizeOf(screen).cx);
  size.cy = std::min(size.cy, SizeOf(screen).cy);
  const LONG left =
      std::clamp((around.left + around.right - size.cx) / 2, screen.left, screen.right - size.cx);
  const LONG top =
      std::clamp((around.top + around.bottom - size.cy) / 2, screen.top, screen.bottom - size.cy);
  return {left, top, left + size.cx, top + size.cy};
}

}  // namespace

int Dialog::Run() {
  const HWND owner = GetActiveWindow();
  const DialogTemplate dialogTemplate(layout_);
  const VisualStyles styles;
  OtherWindows others(owner);
  others_ = &others;
  result_ = IDCANCEL;
  const INT_PTR outcome = DialogBoxIndirectParamW(GetModuleHandleW(nullptr), dialogTemplate.Get(), owner,
                                                  Procedure, reinterpret_cast<LPARAM>(this));
  others_ = nullptr;
  arrangement_.reset();
  ruler_.reset();
  if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
  if (outcome == -1 && !window_) Throw(runtime::ErrorNumber::OutOfMemory);
  window_ = nullptr;
  return result_;
}

INT_PTR CALLBACK Dialog::Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter) noexcept {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, parameter);
    reinterpret_cast<Dialog*>(parameter)->window_ = window;
  }
  auto* const self = reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
  if (!self) return FALSE;
  try {
    return self->Handle(message, wide, parameter);
  } catch (...) {
    self->failure_ = std::current_exception();
    self->End(IDCANCEL);
    return TRUE;
  }
}

INT_PTR Dialog::Handle(UINT message, WPARAM wide, LPARAM parameter) {
  switch (message) {
    case WM_INITDIALOG:
      Open();
      return FALSE;  // the focus is set
    case WM_COMMAND:
      Command(LOWORD(wide), HIWORD(wide));
      return TRUE;
    case WM_CLOSE:
      Command(IDCANCEL, BN_CLICKED);
      return TRUE;
    case WM_QUERYENDSESSION:
      Command(IDCANCEL, BN_CLICKED);
      SetWindowLongPtrW(window_, DWLP_MSGRESULT, TRUE);
      return TRUE;
    case WM_SIZE:
      Arrange();
      return FALSE;
    case WM_GETMINMAXINFO:
      LimitSize(*reinterpret_cast<MINMAXINFO*>(parameter));
      return TRUE;
    case WM_DESTROY:
      if (others_) others_->Enable();
      return FALSE;
    default:
      return Message(message, wide, parameter).value_or(FALSE);
  }
}

std::optional<INT_PTR> Dialog::Message(UINT, WPARAM, LPARAM) { return std::nullopt; }

void Dialog::Open() {
  ruler_ = std::make_unique<DialogRuler>(reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0)));
  arrangement_ = std::make_unique<DialogArrangement>(layout_, *ruler_);
  ShowAtNaturalSize();
  Arrange();
  Fill();
  Opened();
}

void Dialog::Fill() {
  HWND first = nullptr;
  for (const DialogLayout::Control& control : layout_.Controls()) {
    if (!HasWindow(control)) continue;
    const HWND window = ControlOf(control.id);
    FillOne(control, window);
    if (!first && (GetWindowLongPtrW(window, GWL_STYLE) & WS_TABSTOP) != 0 && control.kind != Kind::Label)
      first = window;
  }
  if (first) SetFocus(first);
}

void Dialog::FillOne(const DialogLayout::Control& control, HWND window) {
  const bool isChoice = control.kind == Kind::Choice;
  for (const std::u16string& item : control.items)
    SendMessageW(window, isChoice ? CB_ADDSTRING : LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(item)));
  switch (control.kind) {
    case Kind::Label:
    case Kind::Note:
      SetWindowTextW(window, Wide(control.text));
      break;
    case Kind::Entry:
      SetWindowTextW(window, Wide(control.text));
      SendMessageW(window, EM_SETSEL, 0, -1);
      break;
    case Kind::List:
      SendMessageW(window, LB_SETCURSEL, static_cast<WPARAM>(control.selected), 0);
      break;
    case Kind::Choice:
      SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(control.selected), 0);
      break;
    case Kind::Check:
      SendMessageW(window, BM_SETCHECK, control.selected == 1 ? BST_CHECKED : BST_UNCHECKED, 0);
      break;
    default:
      break;
  }
}

SIZE Dialog::FrameSize() const {
  RECT window{};
  RECT client{};
  GetWindowRect(window_, &window);
  GetClientRect(window_, &client);
  return {SizeOf(window).cx - client.right, SizeOf(window).cy - client.bottom};
}

void Dialog::ShowAtNaturalSize() {
  const SIZE frame = FrameSize();
  const SIZE natural = arrangement_->Natural();
  const RECT place = Centred({natural.cx + frame.cx, natural.cy + frame.cy}, GetWindow(window_, GW_OWNER));
  SetWindowPos(window_, nullptr, static_cast<int>(place.left), static_cast<int>(place.top),
               static_cast<int>(SizeOf(place).cx), static_cast<int>(SizeOf(place).cy),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void Dialog::Arrange() {
  if (!arrangement_) return;
  RECT client{};
  GetClientRect(window_, &client);
  const std::vector<RECT> boxes = arrangement_->For(SizeOf(client));
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const DialogLayout::Control& control = layout_.Controls()[i];
    if (!HasWindow(control)) continue;
    LONG height = SizeOf(boxes[i]).cy;
    if (control.kind == Kind::Choice)  // with its list
      height +=
          ruler_->LineHeight() * (1 + std::min(kMostShownChoices, static_cast<int>(control.items.size())));
    SetWindowPos(ControlOf(control.id), nullptr, static_cast<int>(boxes[i].left),
                 static_cast<int>(boxes[i].top), static_cast<int>(SizeOf(boxes[i]).cx),
                 static_cast<int>(height), SWP_NOZORDER | SWP_NOACTIVATE);
  }
  InvalidateRect(window_, nullptr, TRUE);
}

void Dialog::LimitSize(MINMAXINFO& limits) const {
  if (!arrangement_) return;
  const SIZE frame = FrameSize();
  limits.ptMinTrackSize = {arrangement_->Natural().cx + frame.cx, arrangement_->Natural().cy + frame.cy};
}

void Dialog::Command(int id, int notification) {
  const bool clicked = notification == BN_CLICKED && (id == IDOK || id == IDCANCEL);
  const bool isList = std::any_of(
      layout_.Controls().begin(), layout_.Controls().end(),
      [=](const DialogLayout::Control& control) { return control.kind == Kind::List && control.id == id; });
  if (clicked) End(id);
  if (isList && notification == LBN_DBLCLK) Command(IDOK, BN_CLICKED);
}

void Dialog::End(int id) {
  result_ = id;
  // Before the dialog goes, or Windows would activate another program's window.
  if (others_) others_->Enable();
  EndDialog(window_, id);
}

std::u16string Dialog::TextOf(int id) const {
  const HWND control = ControlOf(id);
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, u'\0');
  const int length = GetWindowTextW(control, WideBuffer(text), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(std::max(0, length)));
  return text;
}

void Dialog::SetText(int id, std::u16string_view text) {
  SetWindowTextW(ControlOf(id), Wide(std::u16string(text)));
}

int Dialog::SelectionOf(int list) const {
  return static_cast<int>(SendMessageW(ControlOf(list), LB_GETCURSEL, 0, 0));
}

int Dialog::ChoiceOf(int choice) const {
  return static_cast<int>(SendMessageW(ControlOf(choice), CB_GETCURSEL, 0, 0));
}

bool Dialog::TickedOf(int check) const {
  return SendMessageW(ControlOf(check), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int ShowMessage(std::u16string_view title, std::u16string_view text, UINT buttonsAndIcon) {
  const HWND owner = GetActiveWindow();
  const UINT modality = owner ? MB_APPLMODAL : MB_TASKMODAL | MB_SETFOREGROUND;
  const VisualStyles styles;
  const OtherWindows others(owner);
  const int pressed =
      MessageBoxW(owner, Wide(std::u16string(text)), Wide(std::u16string(title)), buttonsAndIcon | modality);
  if (pressed == 0) Throw(runtime::ErrorNumber::OutOfMemory);
  return pressed;
}

void ShowWarning(std::u16string_view title, std::u16string_view text) {
  (void)ShowMessage(title, text, MB_OK | MB_ICONEXCLAMATION);
}

}  // namespace qm::platform::win32
