#pragma once
// Small modal dialogs, built in memory from a layout, in the system's message font.
// Errors: RuntimeError 7 when the window cannot be made; what a handler throws leaves Run, never the
//         window procedure.
// The owner is the thread's active window. Its other windows are disabled as long as the dialog is open.

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/win32/dialog_arrangement.h"
#include "platform/win32/dialog_layout.h"
#include "platform/win32/dialog_ruler.h"
#include "platform/win32/other_windows.h"

namespace qm::platform::win32 {

// The title of message boxes and of dialogs that are given none.
inline constexpr std::u16string_view kApplicationTitle = u"Modelos de impresión";

class Dialog {
 public:
  explicit Dialog(DialogLayout layout) : layout_(std::move(layout)) {}
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  virtual ~Dialog() = default;

  // The id of the button that ended it: IDCANCEL also for Escape, the close box, the end of the program and
  // of the user's session.
  int Run();

 protected:
  // Every control shows what the layout says; the dialog is not visible yet.
  virtual void Opened() {}
  // A control was used; ends the dialog on IDOK, IDCANCEL and on a double click in a list.
  virtual void Command(int id, int notification);
  // Any other message: the dialog procedure's answer to it, or nothing to leave it to Windows.
  virtual std::optional<INT_PTR> Message(UINT message, WPARAM wide, LPARAM parameter);
  void End(int id);

  [[nodiscard]] HWND Window() const { return window_; }
  [[nodiscard]] HWND ControlOf(int id) const { return GetDlgItem(window_, id); }
  [[nodiscard]] std::u16string TextOf(int id) const;
  void SetText(int id, std::u16string_view text);
  [[nodiscard]] int SelectionOf(int list) const;  // -1 for none
  [[nodiscard]] int ChoiceOf(int choice) const;   // likewise of a drop-down list
  [[nodiscard]] bool TickedOf(int check) const;

 private:
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter) noexcept;
  INT_PTR Handle(UINT message, WPARAM wide, LPARAM parameter);
  void Open();
  void Fill();
  void FillOne(const DialogLayout::Control& control, HWND window);
  void ShowAtNaturalSize();
  void Arrange();
  void LimitSize(MINMAXINFO& limits) const;
  [[nodiscard]] SIZE FrameSize() const;  // what the window has around its client area

  DialogLayout layout_;
  HWND window_ = nullptr;
  std::unique_ptr<DialogRuler> ruler_;
  std::unique_ptr<DialogArrangement> arrangement_;
  OtherWindows* others_ = nullptr;
  int result_ = IDCANCEL;
  std::exception_ptr failure_;
};

// A message box of the active window, under the same rules; the button that was pressed.
int ShowMessage(std::u16string_view title, std::u16string_view text, UINT buttonsAndIcon);
// With an exclamation icon and an OK button.
void ShowWarning(std::u16string_view title, std::u16string_view text);

}  // namespace qm::platform::win32
