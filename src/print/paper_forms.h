#pragma once
// Custom paper forms: a model's page size as a form of the print spooler, and its code.
// Units:  centimetres in, thousandths of a millimetre inside.
// Errors: none; a missing printer is told to the user and gives code 0.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/prompts.h"
#include "platform/spooler.h"

namespace qm::print {

inline constexpr std::u16string_view kFormName = u"PS";

// Kept between calls, one for the whole component.
struct PaperFormState {
  std::u16string device;
  platform::PaperForm form;
  std::vector<std::u16string> formNames;
  std::u16string formBeingDeleted;
  int firstMatch = 0;  // 1-based position of the first listed form whose name contains the form's, or 0
  std::uint32_t lastError = 0;
};

class PaperForms {
 public:
  PaperForms(PaperFormState& state, platform::Spooler& spooler, platform::Prompts& prompts)
      : state_(state), spooler_(spooler), prompts_(prompts) {}

  // Deletes stale forms, adds the new one and returns its code; 0 when it is not found afterwards.
  [[nodiscard]] std::int16_t PaperCodeForSize(std::u16string_view device, double widthCm, double heightCm,
                                              std::u16string_view formName);
  void LoadFormNames(std::u16string_view device);
  [[nodiscard]] std::int16_t FindFormCode(std::u16string_view device, std::u16string_view formName);
  void AddCustomForm();
  void DeleteCustomForm();

 private:
  void Note(const platform::SpoolerOutcome& outcome);  // warns of a missing printer, keeps an error

  PaperFormState& state_;
  platform::Spooler& spooler_;
  platform::Prompts& prompts_;
};

}  // namespace qm::print
