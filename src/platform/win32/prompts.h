#pragma once
// The questions and messages of printing as windows, in Spanish.

#include "platform/prompts.h"

namespace qm::platform::win32 {

class Win32Prompts : public Prompts {
 public:
  // An empty answer and a cancelled dialog give the same.
  [[nodiscard]] std::u16string AskValue(std::u16string_view prompt, int nameLength,
                                        std::u16string_view defaultAnswer) override;
  [[nodiscard]] std::u16string ChoosePrinter(std::u16string_view title, std::u16string_view text,
                                             const std::vector<std::u16string>& deviceNames) override;
  [[nodiscard]] std::optional<std::vector<std::u16string>> AskOptions(
      std::u16string_view title, const std::vector<OptionEntry>& entries) override;
  void Warn(std::u16string_view text) override;
};

}  // namespace qm::platform::win32
