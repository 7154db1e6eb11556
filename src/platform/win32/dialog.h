#pragma once
// Small modal dialogs, built in memory: a column of controls, sized by measuring their texts so that nothing
// is cut, and a row of buttons.
// Units:  dialog units of the system's message font.
// Errors: RuntimeError 7 when the window cannot be made; what a handler throws leaves Run, never the
//         window procedure.
// The owner is the thread's active window. Its other windows are disabled as long as the dialog is open.

#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/wide.h"

namespace qm::platform::win32 {

// The title of message boxes and of dialogs that are given none.
inline constexpr std::u16string_view kApplicationTitle = u"Modelos de impresión";

// What a dialog consists of. Controls stand in the order in which they are added, which is that of the
// Tab key; buttons come last.
class DialogLayout {
 public:
  enum class Kind { Label, Entry, List, Button };
  struct Control {
    Kind kind;
    int id;
    std::u16string text;
    std::vector<std::u16string> items;
  };

  explicit DialogLayout(std::u16string_view title) : title_(title) {}

  void AddLabel(std::u16string_view text);  // wrapped; very long ones scroll
  // One line, all of it selected.
  void AddEntry(int id, std::u16string_view text);
  // The first item is selected.
  void AddList(int id, const std::vector<std::u16string>& items);
  void AddButton(int id, std::u16string_view text);  // IDOK is the default one

  [[nodiscard]] const std::u16string& Title() const { return title_; }
  [[nodiscard]] const std::vector<Control>& Controls() const { return controls_; }

  // Labels are numbered in their order from here.
  static constexpr int kFirstLabelId = 1000;

 private:
  std::u16string title_;
  std::vector<Control> controls_;
  int nextLabelId_ = kFirstLabelId;
};

class Dialog {
 public:
  explicit Dialog(DialogLayout layout) : layout_(std::move(layout)) {}
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  virtual ~Dialog() = default;

  // The id of the button that ended it: IDCANCEL also for Escape, the close box and the end of the program.
  int Run();

 protected:
  // A control was used; ends the dialog on IDOK, IDCANCEL and on a double click in a list.
  virtual void Command(int id, int notification);
  void End(int id);
  [[nodiscard]] std::u16string TextOf(int id) const;
  [[nodiscard]] int SelectionOf(int id) const;  // -1 for none

 private:
  // Visible windows of this thread that are enabled; disabled for as long as a dialog stands before them.
  class OtherWindows {
   public:
    explicit OtherWindows(HWND owner);
    OtherWindows(const OtherWindows&) = delete;
    OtherWindows& operator=(const OtherWindows&) = delete;
    ~OtherWindows() { Enable(); }
    void Enable();

   private:
    std::vector<HWND> windows_;
  };

  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter) noexcept;
  INT_PTR Handle(UINT message, WPARAM wide);
  void Fill();

  DialogLayout layout_;
  HWND window_ = nullptr;
  OtherWindows* others_ = nullptr;
  int result_ = IDCANCEL;
  std::exception_ptr failure_;
};

// A message box with an exclamation icon and an OK button, under the same rules.
void ShowWarning(std::u16string_view title, std::u16string_view text);

}  // namespace qm::platform::win32
