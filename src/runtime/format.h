#pragma once
// Numbers and Booleans to text, plain and with a mask, by the rules of the automation runtime.

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/locale.h"

namespace qm::runtime {

// Plain text of a value: 7 significant digits for a float, 15 for a double, ties away from zero, exponent
// form from 1E+07 and 1E+15 up; the locale's decimal sign, no grouping.
[[nodiscard]] std::u16string ToText(float value, const Locale& locale);
[[nodiscard]] std::u16string ToText(double value, const Locale& locale);
[[nodiscard]] std::u16string ToText(std::int32_t value);
[[nodiscard]] std::u16string ToText(bool value, const Locale& locale);

// A number by a mask of "#", "0", "," and "." such as "###,###,##0.00": rounded half away from zero on its
// 15 significant decimal digits, grouped by three where the mask groups. The mask never limits the digits.
[[nodiscard]] std::u16string Format(double value, std::u16string_view mask, const Locale& locale);

// A text by a number mask: a numeric text is converted first, any other comes back unchanged.
[[nodiscard]] std::u16string Format(std::u16string_view text, std::u16string_view mask, const Locale& locale);

// A moment by a date mask of y, m, d, h, n, s runs and literals ("yyyy-MM-dd·HH mm"); letters in any case,
// m straight after an hour means minutes.
struct DateTime {
  int year, month, day, hour, minute, second;
};
[[nodiscard]] std::u16string Format(const DateTime& moment, std::u16string_view mask);

}  // namespace qm::runtime
