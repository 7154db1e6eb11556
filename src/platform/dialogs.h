#pragma once
// The questions and messages of the designer.
// Errors: RuntimeError when a window cannot be shown.
// Implemented by win32/dialogs and the tests' ScriptedDialogs.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qm::platform {

// One value of a property dialog: a text, a check box ("1" or "0") or a picture file that can be looked for.
struct PropertyEntry {
  enum class Kind { Text, Check, PictureFile };
  std::u16string label;
  std::u16string text;
  Kind kind = Kind::Text;

  bool operator==(const PropertyEntry&) const = default;
};

enum class Icon { Information, Exclamation, Critical };

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // The small input prompt: a text typed or, where there are choices, chosen from them. Empty when cancelled.
  [[nodiscard]] virtual std::u16string AskText(std::u16string_view title,
                                               const std::vector<std::u16string>& choices,
                                               std::u16string_view defaultAnswer) = 0;
  // The texts as the user left them, in the entries' order; nothing when cancelled.
  [[nodiscard]] virtual std::optional<std::vector<std::u16string>> AskProperties(
      std::u16string_view title, const std::vector<PropertyEntry>& entries) = 0;
  // Which of the options were ticked; nothing when cancelled. All start without a tick.
  [[nodiscard]] virtual std::optional<std::vector<bool>> AskChecks(
      std::u16string_view title, const std::vector<std::u16string>& labels) = 0;
  // Yes and No with the question icon; true for Yes. Escape and the close box are not offered.
  [[nodiscard]] virtual bool Confirm(std::u16string_view text) = 0;
  virtual void Tell(Icon icon, std::u16string_view text) = 0;

  // The common file dialogs; nothing when cancelled. The process's current folder stays as it was.
  // The filter as "Text (*.a;*.b)|*.a;*.b".
  [[nodiscard]] virtual std::optional<std::u16string> OpenFile(std::u16string_view filter,
                                                               std::u16string_view initialFolder) = 0;
  [[nodiscard]] virtual std::optional<std::u16string> SaveFile(std::u16string_view fileName) = 0;
  // 0x00BBGGRR; the initial one can be a system colour too, with its top bit set.
  [[nodiscard]] virtual std::optional<std::int32_t> ChooseColor(std::int32_t initial) = 0;
};

}  // namespace qm::platform
