#pragma once
// Dates of the host's record files, which come packed ("151231", "B51231") or with separators.

#include <string>
#include <string_view>

namespace qm::data {

// Goes by length and position only, in both directions; "ERROR" for a length it does not know. The current
// year gives the century of nine-character dates.
[[nodiscard]] std::u16string NormalizeDate(std::u16string_view date, int currentYear);

}  // namespace qm::data
