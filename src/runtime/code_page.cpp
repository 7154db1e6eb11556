#include "runtime/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "runtime/best_fit.h"
#include "runtime/error.h"

namespace qm::runtime {
namespace {

constexpr std::uint8_t kFirstOwn = 0x80;  // bytes 0x80 to 0x9F differ from the code points of the same number

constexpr char16_t kOwnLetters[] = {
    u'€', 0x81, u'‚', u'ƒ', u'„', u'…', u'†', u'‡', u'ˆ', u'‰', u'Š', u'‹', u'Œ', 0x8D, u'Ž', 0x8F,
    0x90, u'‘', u'’', u'“', u'”', u'•', u'–', u'—', u'˜', u'™', u'š', u'›', u'œ', 0x9D, u'ž', u'Ÿ',
};

constexpr auto kLetters = [] {
  std::array<char16_t, 256> letters{};
  for (std::size_t byte = 0; byte < letters.size(); ++byte) letters[byte] = static_cast<char16_t>(byte);
  std::ranges::copy(kOwnLetters, letters.begin() + kFirstOwn);
  return letters;
}();

// The byte of a letter of the code page, or -1.
int ExactByte(char16_t letter) {
  if (letter < kFirstOwn || (letter >= 0xA0 && letter <= 0xFF)) return letter;
  const auto* const found = std::ranges::find(kOwnLetters, letter);
  return found == std::end(kOwnLetters) ? -1 : kFirstOwn + static_cast<int>(found - kOwnLetters);
}

}  // namespace

std::u16string FromBytes(std::string_view bytes) {
  std::u16string text;
  AppendBytes(text, bytes);
  return text;
}

void AppendBytes(std::u16string& text, std::string_view bytes) {
  const std::size_t before = text.size();
  text.resize(before + bytes.size());
  std::ranges::transform(bytes, text.begin() + static_cast<std::ptrdiff_t>(before),
                         [](char byte) { return kLetters[static_cast<std::uint8_t>(byte)]; });
}

std::string ToBytes(std::u16string_view text) {
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(),
                         [](char16_t letter) { return static_cast<char>(ToByte(letter)); });
  return bytes;
}

bool IsRepresentable(char16_t letter) { return ExactByte(letter) >= 0; }

char16_t FromByte(std::uint8_t byte) { return kLetters[byte]; }

std::uint8_t ToByte(char16_t letter) {
  const int exact = ExactByte(letter);
  return static_cast<std::uint8_t>(exact >= 0 ? exact : ExactByte(BestFit(letter)));
}

int Asc(std::u16string_view text) {
  if (text.empty()) throw RuntimeError(ErrorNumber::InvalidArgument);
  return ToByte(text.front());
}

char16_t Chr(int code) {
  if (code < 0 || code > 0xFF) throw RuntimeError(ErrorNumber::InvalidArgument);
  return FromByte(static_cast<std::uint8_t>(code));
}

}  // namespace qm::runtime
