#pragma once
// The 8-bit code page of files, Windows-1252: the five bytes it leaves unassigned map to U+0081, U+008D,
// U+008F, U+0090 and U+009D and back, so any bytes survive the way to text and back.

#include <cstdint>
#include <string>
#include <string_view>

namespace qm::runtime {

[[nodiscard]] std::u16string FromBytes(std::string_view bytes);
void AppendBytes(std::u16string& text, std::string_view bytes);
// A character that the code page lacks becomes its best fit, else "?".
[[nodiscard]] std::string ToBytes(std::u16string_view text);
[[nodiscard]] bool IsRepresentable(char16_t letter);
[[nodiscard]] char16_t FromByte(std::uint8_t byte);
[[nodiscard]] std::uint8_t ToByte(char16_t letter);

// Code of the first character; error 5 for an empty text.
[[nodiscard]] int Asc(std::u16string_view text);
// The character of a code from 0 to 255; error 5 for others.
[[nodiscard]] char16_t Chr(int code);

// For XML: UTF-8 and back. Unpaired surrogates and malformed bytes become U+FFFD.
[[nodiscard]] std::string ToUtf8(std::u16string_view text);
[[nodiscard]] std::u16string FromUtf8(std::string_view bytes);

}  // namespace qm::runtime
