#pragma once
// The automation library's own answers, in the notation of vectors.tsv: a number, a text in UTF-8, or "ERRn".
// Windows only. Every function names the locale; nothing depends on the user's settings.

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/format.h"
#include "runtime/locale.h"

namespace qm::test::oracle {

[[nodiscard]] std::string CDbl(std::u16string_view text, const runtime::Locale& locale);
[[nodiscard]] std::string CInt(std::u16string_view text, const runtime::Locale& locale);
[[nodiscard]] std::string CLng(std::u16string_view text, const runtime::Locale& locale);
[[nodiscard]] std::string CBool(std::u16string_view text, const runtime::Locale& locale);
[[nodiscard]] std::string CInt(double value);
[[nodiscard]] std::string CLng(double value);
[[nodiscard]] std::string ToText(double value, const runtime::Locale& locale);
[[nodiscard]] std::string ToText(float value, const runtime::Locale& locale);
[[nodiscard]] std::string ToText(bool value, const runtime::Locale& locale);
[[nodiscard]] std::string Format(double value, std::u16string_view mask, const runtime::Locale& locale);
[[nodiscard]] std::string Format(std::u16string_view text, std::u16string_view mask,
                                 const runtime::Locale& locale);
[[nodiscard]] std::string Format(const runtime::DateTime& moment, std::u16string_view mask);

// Windows-1252.
[[nodiscard]] int ToByte(char16_t letter);  // -1 where Windows writes another number of bytes than one
[[nodiscard]] char16_t FromByte(std::uint8_t byte);

[[nodiscard]] char16_t UCase(char16_t letter);

}  // namespace qm::test::oracle
