#pragma once
// What a mail sender does with a scrambled password.

#include <stdexcept>
#include <string>
#include <string_view>

namespace qm::tests {

inline int IndexInAlphabet(char16_t letter) {
  constexpr std::u16string_view kAlphabet = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  const std::size_t at = kAlphabet.find(letter);
  if (at == std::u16string_view::npos) throw std::invalid_argument("no letter or digit");
  return static_cast<int>(at) + 1;
}

inline char16_t AlphabetLetter(int index) {
  return u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"[index - 1];
}

inline std::u16string ReversedPassword(std::u16string_view scrambled) {
  const std::size_t length = scrambled.size() / 2;
  std::u16string password;
  for (std::size_t p = 1; p <= length; ++p) {
    char16_t key = scrambled[length - p];
    char16_t value = scrambled[length + p - 1];
    if (p % 2 == 0) std::swap(key, value);
    if (key == u'&') {
      password += value;
      continue;
    }
    int index = IndexInAlphabet(value) - IndexInAlphabet(key) - static_cast<int>(p);
    while (index < 1) index += 62;
    password += AlphabetLetter(index);
  }
  return password;
}

}  // namespace qm::tests
