#pragma once
// The page size taken from a paper: one of the printer's forms, the standard receipt, or a special size that
// is made a form of the printer.
// Units:  centimetres.
// Errors: as messages; a printer that is not there has no forms to offer.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "designer/environment.h"

namespace qm::designer {

// What goes into the boxes, and the page size to be applied.
struct ChosenPage {
  std::u16string ancho;
  std::u16string alto;
  float widthCm = 0;
  float heightCm = 0;

  bool operator==(const ChosenPage&) const = default;
};

class PaperChooser {
 public:
  explicit PaperChooser(const Environment& environment) : environment_(environment) {}

  // The printer is the one named in the toolbar; where there is none of that name, the default one. Nothing
  // when the user cancelled or the printer refused.
  [[nodiscard]] std::optional<ChosenPage> LoadPapersizes(std::u16string_view printer);

 private:
  [[nodiscard]] std::u16string CurrentPrinter(std::u16string_view named);
  [[nodiscard]] std::vector<std::u16string> AcceptedForms(std::u16string_view device);
  [[nodiscard]] std::optional<ChosenPage> SpecialSize(std::u16string_view device);
  [[nodiscard]] std::optional<ChosenPage> PageOf(std::u16string_view device, const platform::Paper& paper);
  void TellRefused();

  Environment environment_;
};

}  // namespace qm::designer
