// Any text as a date of a host's record: a text of a known length or "ERROR", and never an exception.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "data/dates.h"
#include "runtime/code_page.h"

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void Normalize(const std::u16string& date) {
  constexpr std::size_t kLengths[] = {0, 5, 5, 5, 5, 5, 8, 6, 6, 10, 8};  // "ERROR" is five characters long
  const std::u16string normalized = qm::data::NormalizeDate(date, 2026);
  Require(normalized.size() == (date.size() <= 10 ? kLengths[date.size()] : 5));
  (void)qm::data::NormalizeDate(normalized, 2026);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  Normalize(qm::runtime::FromBytes(bytes));
  Normalize(qm::runtime::FromUtf8(bytes));
  return 0;
}
