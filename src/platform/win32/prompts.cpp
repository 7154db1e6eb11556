#include "platform/win32/prompts.h"

#include "platform/win32/dialog.h"

namespace qm::platform::win32 {
namespace {

constexpr int kAnswerId = 101;
constexpr int kPrintersId = 102;
constexpr int kFirstOptionId = 200;

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
    layout.AddOkAndCancel();
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
    layout.AddOkAndCancel();
    return layout;
  }

  int choice_ = -1;
};

class OptionsDialog : public Dialog {
 public:
  OptionsDialog(std::u16string_view title, const std::vector<OptionEntry>& entries)
      : Dialog(Layout(title, entries)), texts_(entries.size()) {}

  [[nodiscard]] std::optional<std::vector<std::u16string>> Answers() {
    if (Run() != IDOK) return std::nullopt;
    return std::move(texts_);
  }

 protected:
  void Command(int id, int notification) override {
    if (id == IDOK)
      for (std::size_t i = 0; i < texts_.size(); ++i)
        texts_[i] = TextOf(kFirstOptionId + static_cast<int>(i));
    Dialog::Command(id, notification);
  }

 private:
  static DialogLayout Layout(std::u16string_view title, const std::vector<OptionEntry>& entries) {
    DialogLayout layout(title);
    int id = kFirstOptionId;
    for (const OptionEntry& entry : entries) {
      layout.AddLabel(entry.label);
      layout.AddEntry(id++, entry.text);
    }
    layout.AddOkAndCancel();
    return layout;
  }

  std::vector<std::u16string> texts_;
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

std::optional<std::vector<std::u16string>> Win32Prompts::AskOptions(std::u16string_view title,
                                                                    const std::vector<OptionEntry>& entries) {
  return OptionsDialog(title, entries).Answers();
}

void Win32Prompts::Warn(std::u16string_view text) { ShowWarning(kApplicationTitle, text); }

}  // namespace qm::platform::win32
