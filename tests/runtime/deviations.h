#pragma once
// Where the automation library is known to answer otherwise than the core: by faults of the library that
// stands in for Windows' own, or by leniencies nobody relies on.

#include <string>

#include "runtime/locale.h"

namespace qm::test {

struct Case {
  std::string function;
  std::u16string text;  // the input, or empty
  double number = 0;    // the input, or what the core reads in the text
  runtime::Locale locale;
  std::string ours, theirs;
};

// Why the two answers differ, in words about the library; null where they ought to be the same.
[[nodiscard]] const char* KnownDeviation(const Case& c);

}  // namespace qm::test
