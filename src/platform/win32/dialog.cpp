#include "platform/win32/dialog.h"

#include <algorithm>
#include <utility>

#include "platform/win32/dialog_template.h"
#include "platform/win32/errors.h"

namespace qm::platform::win32 {
namespace {

BOOL CALLBACK CollectUsable(HWND window, LPARAM list) noexcept {
  if (IsWindowVisible(window) && IsWindowEnabled(window))
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

}  // namespace

void DialogLayout::AddLabel(std::u16string_view text) {
  controls_.push_back({Kind::Label, nextLabelId_++, std::u16string(text), {}});
}
void DialogLayout::AddEntry(int id, std::u16string_view text) {
  controls_.push_back({Kind::Entry, id, std::u16string(text), {}});
}
void DialogLayout::AddList(int id, const std::vector<std::u16string>& items) {
  controls_.push_back({Kind::List, id, {}, items});
}
void DialogLayout::AddButton(int id, std::u16string_view text) {
  controls_.push_back({Kind::Button, id, std::u16string(text), {}});
}

Dialog::OtherWindows::OtherWindows(HWND owner) {
  EnumThreadWindows(GetCurrentThreadId(), CollectUsable, reinterpret_cast<LPARAM>(&windows_));
  std::erase(windows_, owner);  // Windows takes care of the owner itself
  for (const HWND window : windows_) EnableWindow(window, FALSE);
}

void Dialog::OtherWindows::Enable() {
  for (const HWND window : windows_) EnableWindow(window, TRUE);
  windows_.clear();
}

int Dialog::Run() {
  const HWND owner = GetActiveWindow();
  const DialogTemplate dialogTemplate(layout_);
  OtherWindows others(owner);
  others_ = &others;
  result_ = IDCANCEL;
  const INT_PTR outcome = DialogBoxIndirectParamW(GetModuleHandleW(nullptr), dialogTemplate.Get(), owner,
                                                  Procedure, reinterpret_cast<LPARAM>(this));
  others_ = nullptr;
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
    return self->Handle(message, wide);
  } catch (...) {
    self->failure_ = std::current_exception();
    self->End(IDCANCEL);
    return TRUE;
  }
}

INT_PTR Dialog::Handle(UINT message, WPARAM wide) {
  switch (message) {
    case WM_INITDIALOG:
      Fill();
      return FALSE;  // the focus is set
    case WM_COMMAND:
      Command(LOWORD(wide), HIWORD(wide));
      return TRUE;
    case WM_CLOSE:
      Command(IDCANCEL, BN_CLICKED);
      return TRUE;
    case WM_DESTROY:
      if (others_) others_->Enable();
      return FALSE;
    default:
      return FALSE;
  }
}

void Dialog::Fill() {
  using Kind = DialogLayout::Kind;
  HWND first = nullptr;
  for (const DialogLayout::Control& control : layout_.Controls()) {
    const HWND window = GetDlgItem(window_, control.id);
    if (control.kind == Kind::Label || control.kind == Kind::Entry)
      SetWindowTextW(window, Wide(control.text));
    if (control.kind == Kind::Entry) SendMessageW(window, EM_SETSEL, 0, -1);
    for (const std::u16string& item : control.items)
      SendMessageW(window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(item)));
    if (!control.items.empty()) SendMessageW(window, LB_SETCURSEL, 0, 0);
    if (!first && control.kind != Kind::Label) first = window;
  }
  if (first) SetFocus(first);
}

void Dialog::Command(int id, int notification) {
  const bool clicked = notification == BN_CLICKED && (id == IDOK || id == IDCANCEL);
  const bool isList = std::any_of(layout_.Controls().begin(), layout_.Controls().end(),
                                  [=](const DialogLayout::Control& control) {
                                    return control.kind == DialogLayout::Kind::List && control.id == id;
                                  });
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
  const HWND control = GetDlgItem(window_, id);
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, u'\0');
  const int length = GetWindowTextW(control, WideBuffer(text), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(std::max(0, length)));
  return text;
}

int Dialog::SelectionOf(int id) const {
  return static_cast<int>(SendDlgItemMessageW(window_, id, LB_GETCURSEL, 0, 0));
}

void ShowWarning(std::u16string_view title, std::u16string_view text) {
  const HWND owner = GetActiveWindow();
  const UINT modality = owner ? MB_APPLMODAL : MB_TASKMODAL | MB_SETFOREGROUND;
  if (MessageBoxW(owner, Wide(std::u16string(text)), Wide(std::u16string(title)),
                  MB_OK | MB_ICONEXCLAMATION | modality) == 0)
    Throw(runtime::ErrorNumber::OutOfMemory);
}

}  // namespace qm::platform::win32
