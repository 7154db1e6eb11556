#include <algorithm>
#include <array>
#include <cstdint>

#include "print/text/text_helpers.h"
#include "runtime/code_page.h"

namespace qm::text {
namespace {

struct Replacement {
  std::uint8_t windows;
  std::uint8_t dos;
};

// Á is missing on purpose: it has always passed unchanged, and models are laid out with that.
constexpr std::array<Replacement, 17> kOemLetters{{{170, 166},
                                                   {186, 167},
                                                   {199, 128},
                                                   {201, 144},
                                                   {205, 214},
                                                   {209, 165},
                                                   {211, 224},
                                                   {218, 233},
                                                   {220, 154},
                                                   {225, 160},
                                                   {231, 135},
                                                   {233, 130},
                                                   {237, 161},
                                                   {241, 164},
                                                   {243, 162},
                                                   {250, 163},
                                                   {252, 129}}};

bool IsDigit(char16_t letter) {
  const std::uint8_t code = runtime::ToByte(letter);
  return code >= 48 && code <= 57;
}

}  // namespace

bool HasDigit(std::u16string_view text) { return std::any_of(text.begin(), text.end(), IsDigit); }

std::u16string ToOemLetters(std::u16string_view text) {
  std::u16string result(text);
  for (char16_t& letter : result) {
    const std::uint8_t code = runtime::ToByte(letter);
    const auto* const found =
        std::find_if(kOemLetters.begin(), kOemLetters.end(),
                     [code](const Replacement& entry) { return entry.windows == code; });
    if (found != kOemLetters.end()) letter = runtime::FromByte(found->dos);
  }
  return result;
}

}  // namespace qm::text
