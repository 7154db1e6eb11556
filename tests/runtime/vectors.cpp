#include "tests/runtime/vectors.h"

#include <charconv>
#include <fstream>
#include <functional>
#include <string_view>

#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::test {
namespace {

using namespace qm::runtime;  // NOLINT(google-build-using-namespace): a test of that namespace

std::vector<std::string> Columns(const std::string& line) {
  std::vector<std::string> columns(1);
  for (const char letter : line) {
    if (letter == '\t') {
      columns.emplace_back();
    } else {
      columns.back() += letter;
    }
  }
  return columns;
}

std::u16string Unescaped(const std::string& column) {
  std::u16string text = FromUtf8(column);
  text = Replace(text, u"<NBSP>", u"\u00A0");
  text = Replace(text, u"<NNBSP>", u"\u202F");
  return Replace(text, u"\\t", u"\t");
}

std::string AnswerOrThrow(const Vector& vector) {
  constexpr std::string_view kFormat = "Format ";
  const Locale& locale = vector.locale;
  const std::u16string& input = vector.input;
  if (vector.function == "CDbl") return Notation(CDbl(input, locale));
  if (vector.function == "CInt") return std::to_string(CInt(input, locale));
  if (vector.function == "CLng") return std::to_string(CLng(input, locale));
  if (vector.function == "CIntNum") return std::to_string(CInt(ReadC(input)));
  if (vector.function == "CBool") return CBool(input, locale) ? "-1" : "0";
  if (vector.function == "CStrDouble") return ToUtf8(ToText(ReadC(input), locale));
  if (vector.function == "CStrSingle") return ToUtf8(ToText(static_cast<float>(ReadC(input)), locale));
  if (vector.function.starts_with(kFormat)) {
    const std::u16string mask = FromUtf8(vector.function.substr(kFormat.size()));
    return ToUtf8(Format(ReadC(input), mask, locale));
  }
  return "unknown function";
}

}  // namespace

std::vector<Vector> ReadVectors() {
  std::vector<Vector> vectors;
  std::ifstream file(QM_SOURCE_DIR "/tests/runtime/vectors.tsv", std::ios::binary);
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    if (line.empty() || line.front() == '#') continue;
    const std::vector<std::string> columns = Columns(line);
    Vector vector{number, columns.at(0), columns.at(1) == "es" ? Locale::Spanish() : Locale::English(),
                  Unescaped(columns.at(2)), columns.at(3)};
    if (vector.function == "CDbl" && !vector.expected.starts_with("ERR")) {
      vector.expected = Notation(ReadC(FromUtf8(vector.expected)));
    }
    vectors.push_back(std::move(vector));
  }
  return vectors;
}

std::string Answer(const Vector& vector) {
  try {
    return AnswerOrThrow(vector);
  } catch (const RuntimeError& error) {
    return "ERR" + std::to_string(error.number());
  }
}

std::string Notation(double value) {
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 16).ptr;
  return {buffer, end};
}

double ReadC(std::u16string_view number) {
  const std::string bytes = ToBytes(number);
  double value = 0;
  std::from_chars(bytes.data(), bytes.data() + bytes.size(), value);
  return value;
}

}  // namespace qm::test
