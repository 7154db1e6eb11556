#pragma once
// The archiver's result codes in words.

#include <string>
#include <string_view>

namespace qm::mail {

// The first piece of the table in which the code's digits stand, blanks and all; empty when none has them. A
// code that the table lacks may so find a neighbour, and 50 and 100 share a piece.
[[nodiscard]] std::u16string_view DescripcionErrorZip(int code);

// The text with the code's own words on a new line; as it was for success and for nothing to do.
[[nodiscard]] std::u16string WithZipError(std::u16string text, int code);

// Looks the code up and keeps nothing: what packing ends with is reported to nobody.
void AcumularErrorZip(int code);

}  // namespace qm::mail
