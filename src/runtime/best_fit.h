#pragma once
// What a letter that Windows-1252 lacks is written as in the code page.

namespace qm::runtime {

// A letter of Windows-1252; "?" where nothing comes near.
[[nodiscard]] char16_t BestFit(char16_t letter);

}  // namespace qm::runtime
