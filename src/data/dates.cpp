#include "data/dates.h"

#include <initializer_list>

#include "runtime/code_page.h"
#include "runtime/format.h"

namespace qm::data {
namespace {

constexpr int kLetterForDigit = 'A' - '0';  // A stands for 0, B for 1 and so on to J for 9

std::u16string Join(std::initializer_list<std::u16string_view> parts) {
  std::u16string text;
  for (const std::u16string_view part : parts) text += part;
  return text;
}

std::u16string Shifted(std::u16string_view letter, int by) {
  return std::u16string(1, runtime::Chr(runtime::Asc(letter) + by));
}

std::u16string FromPacked(std::u16string_view date) {
  const int first = runtime::Asc(date);
  if (first == 0) return u"00/00/00";
  const std::u16string_view day = date.substr(4, 2);
  const std::u16string_view month = date.substr(2, 2);
  if (first >= 'A') return Join({day, u"/", month, u"/", Shifted(date, -kLetterForDigit), date.substr(1, 1)});
  return Join({day, u"/", month, u"/", date.substr(0, 2)});
}

std::u16string ToPacked(std::u16string_view date) {
  const std::u16string_view year = date.substr(6, 2);
  const std::u16string_view month = date.substr(3, 2);
  const std::u16string_view day = date.substr(0, 2);
  if (year < u"60") return Join({Shifted(year, kLetterForDigit), year.substr(1), month, day});
  return Join({year, month, day});
}

std::u16string WithCentury(std::u16string_view date, int currentYear) {
  const std::u16string year = runtime::ToText(currentYear);
  const std::u16string_view century = std::u16string_view(year).substr(0, 2);
  return Join({date.substr(3, 2), u"/", date.substr(0, 2), u"/", century, date.substr(6, 2)});
}

}  // namespace

std::u16string NormalizeDate(std::u16string_view date, int currentYear) {
  switch (date.size()) {
    case 0:
      return {};
    case 6:
      return FromPacked(date);
    case 7:
      return Join({date.substr(5, 2), date.substr(2, 2), u"0", date.substr(0, 1)});
    case 8:
      return ToPacked(date);
    case 9:
      return WithCentury(date, currentYear);
    case 10:
      return Join({date.substr(3, 2), u"/", date.substr(0, 2), u"/", date.substr(8, 2)});
    default:
      return u"ERROR";
  }
}

}  // namespace qm::data
