#pragma once
// The rows of vectors.tsv, what the automation library was measured to answer, and how they are compared.

#include <string>
#include <vector>

#include "runtime/locale.h"

namespace qm::test {

struct Vector {
  int line = 0;
  std::string function;  // "CDbl", "Format ###,###.00", ...
  runtime::Locale locale;
  std::u16string input;
  std::string expected;  // UTF-8
};

[[nodiscard]] std::vector<Vector> ReadVectors();

// What the core answers to a row, in the notation of the file.
[[nodiscard]] std::string Answer(const Vector& vector);

// 16 significant digits, as many as the file gives.
[[nodiscard]] std::string Notation(double value);

[[nodiscard]] double ReadC(std::u16string_view number);

}  // namespace qm::test
