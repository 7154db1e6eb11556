#pragma once
// A print spooler with the forms of each printer in order. As the real one does, it appends new forms,
// refuses a form of a name that is there, of a size that is none, and to delete the forms built into the
// system.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/spooler.h"

namespace qm::fakes {

class ScriptedSpooler : public platform::Spooler {
 public:
  static constexpr std::uint32_t kFileExists = 80;
  static constexpr std::uint32_t kInvalidParameter = 87;
  static constexpr std::uint32_t kInvalidFormName = 1902;
  static constexpr std::uint32_t kInvalidFormSize = 1903;

  struct Form {
    platform::PaperForm form;
    bool builtIn = false;
  };

  std::map<std::u16string, std::vector<Form>, std::less<>> printers;
  bool supportsForms = true;
  std::uint32_t addError = 0;  // AddForm fails with it and adds nothing
  std::uint32_t deleteError = 0;
  int enumerations = 0;

  // A printer whose forms are all of the user's making.
  void AddPrinter(std::u16string_view device, const std::vector<std::u16string>& formNames) {
    auto& forms = printers[std::u16string(device)];
    for (const auto& name : formNames) forms.push_back({{name, 1000, 1000}, false});
  }

  [[nodiscard]] std::vector<std::u16string> Names(std::u16string_view device) const {
    std::vector<std::u16string> names;
    const auto found = printers.find(device);
    if (found == printers.end()) return names;
    for (const Form& form : found->second) names.push_back(form.form.name);
    return names;
  }

  [[nodiscard]] bool SupportsForms() const override { return supportsForms; }

  [[nodiscard]] std::optional<std::vector<std::u16string>> FormNames(std::u16string_view device) override {
    ++enumerations;
    if (!printers.contains(device)) return std::nullopt;
    return Names(device);
  }

  platform::SpoolerOutcome AddForm(std::u16string_view device, const platform::PaperForm& form) override {
    const auto printer = printers.find(device);
    if (printer == printers.end()) return {};
    if (addError != 0) return {true, addError};
    if (form.width <= 0 || form.height <= 0) return {true, kInvalidFormSize};
    if (Position(printer->second, form.name)) return {true, kFileExists};
    printer->second.push_back({form, false});
    return {true, 0};
  }

  platform::SpoolerOutcome DeleteForm(std::u16string_view device, std::u16string_view name) override {
    const auto printer = printers.find(device);
    if (printer == printers.end()) return {};
    if (deleteError != 0) return {true, deleteError};
    const auto position = Position(printer->second, name);
    if (!position) return {true, kInvalidFormName};
    if (printer->second[*position].builtIn) return {true, kInvalidParameter};
    printer->second.erase(printer->second.begin() + static_cast<std::ptrdiff_t>(*position));
    return {true, 0};
  }

 private:
  static std::optional<std::size_t> Position(const std::vector<Form>& forms, std::u16string_view name) {
    for (std::size_t i = 0; i < forms.size(); ++i)
      if (forms[i].form.name == name) return i;
    return std::nullopt;
  }
};

}  // namespace qm::fakes
