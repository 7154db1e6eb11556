#pragma once
// Whoever needs the user asks here; no message box is born in an engine.
// Errors: RuntimeError when a window cannot be shown.
// Implemented by win32/prompts and the tests' ScriptedPrompts.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qm::platform {

// A text that the user can change, and what it is called.
struct OptionEntry {
  std::u16string label;
  std::u16string text;

  bool operator==(const OptionEntry&) const = default;
};

class Prompts {
 public:
  virtual ~Prompts() = default;

  // The value-entry dialog: the text entered, empty when cancelled. The length is that of the field's name,
  // which the dialog may use to size its entry.
  [[nodiscard]] virtual std::u16string AskValue(std::u16string_view prompt, int nameLength,
                                                std::u16string_view defaultAnswer) = 0;
  // The device name chosen, empty when cancelled.
  [[nodiscard]] virtual std::u16string ChoosePrinter(std::u16string_view title, std::u16string_view text,
                                                     const std::vector<std::u16string>& deviceNames) = 0;
  // The texts as the user left them, one for each entry in its order; nothing when cancelled.
  [[nodiscard]] virtual std::optional<std::vector<std::u16string>> AskOptions(
      std::u16string_view title, const std::vector<OptionEntry>& entries) = 0;
  // A message box with an exclamation icon and an OK button.
  virtual void Warn(std::u16string_view text) = 0;
};

}  // namespace qm::platform
