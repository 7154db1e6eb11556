#pragma once
// The text and kind code that a field description of a model stands for.
// Errors: 9 at the 21st prompt of a copy and for a row that does not exist, 5 for the description "#", 6 for
//         an amount or a prompt counter beyond its range.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/print_job.h"
#include "platform/clock.h"
#include "platform/prompts.h"
#include "runtime/locale.h"

namespace qm::data {

inline constexpr std::int16_t kNoCopyNumbering = 1000;  // a preview: prompts are not asked again

// Kind codes that the engines tell apart.
inline constexpr std::int16_t kPlainText = 0;
inline constexpr std::int16_t kLiteralText = 62;
inline constexpr std::int16_t kPictureData = 75;

class ValueLookup {
 public:
  ValueLookup(PrintJob& job, platform::Prompts& prompts, platform::Clock& clock,
              const runtime::Locale& locale)
      : job_(job), prompts_(prompts), clock_(clock), locale_(locale) {}

  // The kind is written only where the value has one of its own; else it keeps what the caller passed.
  [[nodiscard]] std::u16string ObtenerValor(std::u16string_view name, std::int16_t copy, std::int16_t& kind);
  [[nodiscard]] std::u16string ObtenerValorFila(std::u16string_view name, std::int16_t copy,
                                                std::int16_t& kind, int row);

 private:
  [[nodiscard]] std::optional<std::u16string> LiteralOrField(std::u16string_view name, std::int16_t copy,
                                                             std::int16_t& kind, PromptState& state);
  [[nodiscard]] std::u16string CellText(const Cells& cells, std::u16string_view name, std::int16_t& kind);

  PrintJob& job_;
  platform::Prompts& prompts_;
  platform::Clock& clock_;
  const runtime::Locale& locale_;
};

}  // namespace qm::data
