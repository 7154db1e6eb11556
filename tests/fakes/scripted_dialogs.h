#pragma once
// A user at the designer's dialogs who answers from a script and writes down what was asked. Where the
// script has ended, dialogs are cancelled and questions answered with No.

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs.h"

namespace qm::fakes {

class ScriptedDialogs : public platform::Dialogs {
 public:
  using Texts = std::vector<std::u16string>;
  struct AskedText {
    std::u16string title;
    Texts choices;
    std::u16string defaultAnswer;
    bool operator==(const AskedText&) const = default;
  };
  struct AskedProperties {
    std::u16string title;
    std::vector<platform::PropertyEntry> entries;
    bool operator==(const AskedProperties&) const = default;
  };
  struct AskedChecks {
    std::u16string title;
    Texts labels;
    bool operator==(const AskedChecks&) const = default;
  };
  struct AskedFile {
    std::u16string filter;
    std::u16string initialFolder;
    bool operator==(const AskedFile&) const = default;
  };
  struct Told {
    platform::Icon icon;
    std::u16string text;
    bool operator==(const Told&) const = default;
  };

  // Answers, in order.
  std::deque<std::u16string> texts;
  std::deque<std::optional<Texts>> properties;
  std::deque<std::optional<std::vector<bool>>> checks;
  std::deque<bool> confirmations;
  std::deque<std::u16string> filesToOpen;
  std::deque<std::u16string> filesToSave;
  std::deque<std::int32_t> colors;

  // What was asked and told, in order.
  std::vector<AskedText> askedTexts;
  std::vector<AskedProperties> askedProperties;
  std::vector<AskedChecks> askedChecks;
  Texts askedConfirmations;
  std::vector<AskedFile> askedFilesToOpen;
  Texts askedFilesToSave;
  std::vector<std::int32_t> askedColors;
  std::vector<Told> told;

  [[nodiscard]] std::u16string AskText(std::u16string_view title, const Texts& choices,
                                       std::u16string_view defaultAnswer) override {
    askedTexts.push_back({std::u16string(title), choices, std::u16string(defaultAnswer)});
    return Next(texts).value_or(u"");
  }
  [[nodiscard]] std::optional<Texts> AskProperties(
      std::u16string_view title, const std::vector<platform::PropertyEntry>& entries) override {
    askedProperties.push_back({std::u16string(title), entries});
    return Next(properties).value_or(std::nullopt);
  }
  [[nodiscard]] std::optional<std::vector<bool>> AskChecks(std::u16string_view title,
                                                           const Texts& labels) override {
    askedChecks.push_back({std::u16string(title), labels});
    return Next(checks).value_or(std::nullopt);
  }
  [[nodiscard]] bool Confirm(std::u16string_view text) override {
    askedConfirmations.emplace_back(text);
    return Next(confirmations).value_or(false);
  }
  void Tell(platform::Icon icon, std::u16string_view text) override {
    told.push_back({icon, std::u16string(text)});
  }
  [[nodiscard]] std::optional<std::u16string> OpenFile(std::u16string_view filter,
                                                       std::u16string_view initialFolder) override {
    askedFilesToOpen.push_back({std::u16string(filter), std::u16string(initialFolder)});
    return Next(filesToOpen);
  }
  [[nodiscard]] std::optional<std::u16string> SaveFile(std::u16string_view fileName) override {
    askedFilesToSave.emplace_back(fileName);
    return Next(filesToSave);
  }
  [[nodiscard]] std::optional<std::int32_t> ChooseColor(std::int32_t initial) override {
    askedColors.push_back(initial);
    return Next(colors);
  }

 private:
  template <class Answer>
  static std::optional<Answer> Next(std::deque<Answer>& answers) {
    if (answers.empty()) return std::nullopt;
    Answer answer = std::move(answers.front());
    answers.pop_front();
    return answer;
  }
};

}  // namespace qm::fakes
