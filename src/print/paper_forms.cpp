#include "print/paper_forms.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace qm::print {

namespace {

constexpr double kThousandthsPerCm = 10000;

// The fraction is cut off. A size beyond what the spooler can express is its largest one; the spooler turns
// it down, which leaves the paper without a code.
std::int32_t FormLength(double cm) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp(std::floor(cm * kThousandthsPerCm),
                                              static_cast<double>(Limits::min()),
                                              static_cast<double>(Limits::max())));
}

bool Contains(std::u16string_view text, std::u16string_view part) {
  return text.find(part) != std::u16string_view::npos;
}

}  // namespace

std::int16_t PaperForms::PaperCodeForSize(std::u16string_view device, double widthCm, double heightCm,
                                          std::u16string_view formName) {
  state_.device = device;
  state_.form = {std::u16string(formName), FormLength(widthCm), FormLength(heightCm)};
  state_.lastError = 0;
  LoadFormNames(device);

  // The first listed form is never examined, and a name that merely contains the custom one is stale too.
  for (std::size_t i = 1; i < state_.formNames.size(); ++i) {
    if (!Contains(state_.formNames[i], formName)) continue;
    state_.formBeingDeleted = state_.formNames[i];
    DeleteCustomForm();
  }
  AddCustomForm();
  return FindFormCode(device, formName);
}

void PaperForms::LoadFormNames(std::u16string_view device) {
  state_.formNames = spooler_.FormNames(device).value_or(std::vector<std::u16string>{});
  const auto first =
      std::find_if(state_.formNames.begin(), state_.formNames.end(),
                   [this](const std::u16string& name) { return Contains(name, state_.form.name); });
  state_.firstMatch =
      first == state_.formNames.end() ? 0 : static_cast<int>(first - state_.formNames.begin()) + 1;
}

std::int16_t PaperForms::FindFormCode(std::u16string_view device, std::u16string_view formName) {
  const auto names = spooler_.FormNames(device);
  if (!names) return 0;
  const auto found = std::find(names->begin(), names->end(), formName);
  const auto position = found - names->begin() + 1;
  if (found == names->end() || position > std::numeric_limits<std::int16_t>::max()) return 0;
  return static_cast<std::int16_t>(position);
}

void PaperForms::AddCustomForm() { Note(spooler_.AddForm(state_.device, state_.form)); }

void PaperForms::DeleteCustomForm() { Note(spooler_.DeleteForm(state_.device, state_.formBeingDeleted)); }

void PaperForms::Note(const platform::SpoolerOutcome& outcome) {
  if (!outcome.opened)
    prompts_.Warn(u"Error: Impresora " + state_.device + u" No se encuentra");
  else if (outcome.error != 0)
    state_.lastError = outcome.error;
}

}  // namespace qm::print
