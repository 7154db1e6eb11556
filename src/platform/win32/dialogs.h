#pragma once
// The questions and messages of the designer as windows, in Spanish.

#include "platform/dialogs.h"

namespace qm::platform::win32 {

class Win32Dialogs : public Dialogs {
 public:
  // Many choices make a dialog that can be made larger. An empty answer and a cancelled dialog give the same.
  [[nodiscard]] std::u16string AskText(std::u16string_view title, const std::vector<std::u16string>& choices,
                                       std::u16string_view defaultAnswer) override;
  [[nodiscard]] std::optional<std::vector<std::u16string>> AskProperties(
      std::u16string_view title, const std::vector<PropertyEntry>& entries) override;
  [[nodiscard]] std::optional<std::vector<bool>> AskChecks(
      std::u16string_view title, const std::vector<std::u16string>& labels) override;
  [[nodiscard]] bool Confirm(std::u16string_view text) override;
  void Tell(Icon icon, std::u16string_view text) override;
  [[nodiscard]] std::optional<std::u16string> OpenFile(std::u16string_view filter,
                                                       std::u16string_view initialFolder) override;
  [[nodiscard]] std::optional<std::u16string> SaveFile(std::u16string_view fileName) override;
  [[nodiscard]] std::optional<std::int32_t> ChooseColor(std::int32_t initial) override;
};

}  // namespace qm::platform::win32
