#pragma once
// A user who answers from a script and writes down what was asked.

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/prompts.h"
#include "runtime/error.h"

namespace qm::fakes {

class ScriptedPrompts : public platform::Prompts {
 public:
  struct Asked {
    std::u16string prompt;
    int nameLength = 0;
    std::u16string defaultAnswer;
  };

  struct AskedOptions {
    std::u16string title;
    std::vector<platform::OptionEntry> entries;
  };

  std::deque<std::u16string> answers;           // to value prompts, in order; "" when used up
  std::optional<std::u16string> printer = u"";  // nothing: the prompt cannot be shown
  std::vector<std::u16string> options;          // to an options dialog; empty: accepted as offered
  bool cancelOptions = false;
  std::vector<Asked> asked;
  std::vector<AskedOptions> askedOptions;
  std::vector<std::u16string> printerPrompts;  // title + "|" + text
  std::vector<std::u16string> warnings;

  [[nodiscard]] std::u16string AskValue(std::u16string_view prompt, int nameLength,
                                        std::u16string_view defaultAnswer) override {
    asked.push_back({std::u16string(prompt), nameLength, std::u16string(defaultAnswer)});
    if (answers.empty()) return {};
    std::u16string answer = answers.front();
    answers.pop_front();
    return answer;
  }

  [[nodiscard]] std::u16string ChoosePrinter(std::u16string_view title, std::u16string_view text,
                                             const std::vector<std::u16string>&) override {
    printerPrompts.push_back(std::u16string(title) + u"|" + std::u16string(text));
    if (!printer) throw runtime::RuntimeError(runtime::ErrorNumber::InvalidArgument);
    return *printer;
  }

  [[nodiscard]] std::optional<std::vector<std::u16string>> AskOptions(
      std::u16string_view title, const std::vector<platform::OptionEntry>& entries) override {
    askedOptions.push_back({std::u16string(title), entries});
    if (cancelOptions) return std::nullopt;
    if (!options.empty()) return options;
    std::vector<std::u16string> offered;
    for (const platform::OptionEntry& entry : entries) offered.push_back(entry.text);
    return offered;
  }

  void Warn(std::u16string_view text) override { warnings.emplace_back(text); }
};

}  // namespace qm::fakes
