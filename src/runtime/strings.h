#pragma once
// Text functions of the automation runtime. Positions count from 1; 0 means "not found".
// Errors: 5 for a start position of 0 and for negative counts.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qm::runtime {

enum class Compare { Binary, Text };  // Text folds case, and only case: á is not a

[[nodiscard]] std::u16string_view Trim(std::u16string_view text);  // character 32 only, both ends
[[nodiscard]] std::u16string_view Left(std::u16string_view text, int count);
[[nodiscard]] std::u16string_view Right(std::u16string_view text, int count);
[[nodiscard]] std::u16string_view Mid(std::u16string_view text, int start);
[[nodiscard]] std::u16string_view Mid(std::u16string_view text, int start, int count);
[[nodiscard]] int InStr(std::u16string_view text, std::u16string_view part, int start = 1,
                        Compare compare = Compare::Binary);
[[nodiscard]] int InStrRev(std::u16string_view text, std::u16string_view part);
[[nodiscard]] std::u16string Replace(std::u16string_view text, std::u16string_view part,
                                     std::u16string_view by, Compare compare = Compare::Binary);
[[nodiscard]] std::vector<std::u16string> Split(std::u16string_view text, std::u16string_view separator);
[[nodiscard]] char16_t UCase(char16_t letter);
[[nodiscard]] std::u16string UCase(std::u16string_view text);
[[nodiscard]] bool EqualFolded(std::u16string_view a, std::u16string_view b);  // UCase(a) == UCase(b)

}  // namespace qm::runtime
