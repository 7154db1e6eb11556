#pragma once
// Passwords as hand-off files carry them: never in plain text, and each time another text. The mail sender
// reverses it.
//
// A letter or digit becomes a key and a value, the key drawn at random; any other character stands for itself
// beside a "&". The first half of the result holds the positions from last to first, the second from first to
// last; odd positions have key or "&" in the first half, even ones in the second. A position p, a key r and a
// value s give back the index s - r - p, plus 62 while that is below 1.
// Errors: none.

#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/prompts.h"
#include "runtime/random.h"

namespace qm::mail {

// 1 to 62 for "0" to "9", "A" to "Z" and "a" to "z"; 1000 and its code for any other character; 0 for none.
[[nodiscard]] int IndiceCaracter(std::u16string_view character);
// The inverse for 1 to 62. Any other index is told to the user and gives the character 0.
[[nodiscard]] char16_t CaracterIndice(int index, platform::Prompts& prompts);

// Twice as long as the trimmed password.
[[nodiscard]] std::u16string EscribirClave(std::u16string_view password, runtime::Random& random,
                                           platform::Clock& clock, platform::Prompts& prompts);

}  // namespace qm::mail
