#pragma once
// Texts to numbers and Booleans by the rules of the automation runtime. Pure functions; a failed conversion
// is a RuntimeError: 13 where the text is not a number, 6 where the number does not fit.

#include <cstdint>
#include <optional>
#include <string_view>

#include "runtime/locale.h"

namespace qm::runtime {

// The number at the start of the text, dot as decimal sign in every locale; 0 where there is none.
[[nodiscard]] double Val(std::u16string_view text);

// The whole text as a number in the user's locale.
[[nodiscard]] double CDbl(std::u16string_view text, const Locale& locale);
// The same where failing is ordinary: nothing instead of an error.
[[nodiscard]] std::optional<double> TryCDbl(std::u16string_view text, const Locale& locale);
[[nodiscard]] std::int16_t CInt(std::u16string_view text, const Locale& locale);
[[nodiscard]] std::int32_t CLng(std::u16string_view text, const Locale& locale);

// Rounded half to even; the range is tested after rounding.
[[nodiscard]] std::int16_t CInt(double value);
[[nodiscard]] std::int32_t CLng(double value);

// The locale's words and the English ones in any case, "#TRUE#", "#FALSE#", or a number (non-zero is true).
[[nodiscard]] bool CBool(std::u16string_view text, const Locale& locale);

}  // namespace qm::runtime
