#include "platform/win32/prompts.h"

#include "platform/win32/dialog.h"

namespace qm::platform::win32 {
namespace {

constexpr int kAnswerId = 101;
constexpr int kPrintersId = 102;

void AddOkAndCancel(DialogLayout& layout) {
  layout.AddButton(IDOK, u"Aceptar");
  layout.AddButton(IDCANCEL, u"Cancelar");
}

class ValueDialog : public Dialog {
 public:
  ValueDialog(std::u16string_view prompt, std::u16string_view defaultAnswer)
      : Dialog(Layout(prompt, defaultAnswer)) {}

  [[nodiscard]] std::u16string Answer() { return Run() == IDOK ? answer_ : std::u16string(); }

 protected:
  void Command(int id, int notification) override {
    if (id == IDOK) answer_ = TextOf(kAnswerId);
    Dialog::Command(id, notification);
  }

 private:
  static DialogLayout Layout(std::u16string_view prompt, std::u16string_view defaultAnswer) {
    DialogLayout layout(kApplicationTitle);
    layout.AddLabel(prompt);
    layout.AddEntry(kAnswerId, defaultAnswer);
    AddOkAndCancel(layout);
    return layout;
  }

  std::u16string answer_;
};

class PrinterDialog : public Dialog {
 public:
  PrinterDialog(std::u16string_view title, std::u16string_view text,
                const std::vector<std::u16string>& deviceNames)
      : Dialog(Layout(title, text, deviceNames)) {}

  // The place of the printer chosen, -1 for none.
  [[nodiscard]] int Choice() { return Run() == IDOK ? choice_ : -1; }

 protected:
  void Command(int id, int notification) override {
    if (id == IDOK) choice_ = SelectionOf(kPrintersId);
    Dialog::Command(id, notification);
  }

 private:
  static DialogLayout Layout(std::u16string_view title, std::u16string_view text,
                             const std::vector<std::u16string>& deviceNames) {
    DialogLayout layout(title);
    layout.AddLabel(text);
    layout.AddList(kPrintersId, deviceNames);
    AddOkAndCancel(layout);
    return layout;
  }

  int choice_ = -1;
};

}  // namespace

// The entry is as wide as the dialog, whatever the length of the field's name.
std::u16string Win32Prompts::AskValue(std::u16string_view prompt, int /*nameLength*/,
                                      std::u16string_view defaultAnswer) {
  return ValueDialog(prompt, defaultAnswer).Answer();
}

std::u16string Win32Prompts::ChoosePrinter(std::u16string_view title, std::u16string_view text,
                                           const std::vector<std::u16string>& deviceNames) {
  const int choice = PrinterDialog(title, text, deviceNames).Choice();
  if (choice < 0 || static_cast<std::size_t>(choice) >= deviceNames.size()) return {};
  return deviceNames[static_cast<std::size_t>(choice)];
}

void Win32Prompts::Warn(std::u16string_view text) { ShowWarning(kApplicationTitle, text); }

}  // namespace qm::platform::win32
