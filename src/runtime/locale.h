#pragma once
// The user's regional settings as a plain value. The platform asks Windows for it once per action and
// everything below is handed a copy; no function of the core looks at the process's locale.

#include <string>

namespace qm::runtime {

struct Locale {
  char16_t decimal = u'.';
  char16_t grouping = u',';
  std::u16string trueWord = u"True";
  std::u16string falseWord = u"False";
  std::u16string currency = u"$";  // accepted before or after a number

  static Locale Spanish() { return {u',', u'.', u"Verdadero", u"Falso", u"€"}; }
  static Locale English() { return {}; }
};

}  // namespace qm::runtime
