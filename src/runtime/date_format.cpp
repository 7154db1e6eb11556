#include <algorithm>
#include <cstddef>
#include <string>

#include "runtime/format.h"

namespace qm::runtime {
namespace {

char16_t Lower(char16_t letter) {
  return letter >= u'A' && letter <= u'Z' ? static_cast<char16_t>(letter + 0x20) : letter;
}

void AppendPadded(std::u16string& text, int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  if (digits.size() < width) text.append(width - digits.size(), u'0');
  text.append(digits.begin(), digits.end());
}

bool IsItem(char16_t letter) {
  return std::u16string_view(u"ymdhns").find(letter) != std::u16string_view::npos;
}

int ItemValue(char16_t letter, const DateTime& moment) {
  switch (letter) {
    case u'm':
      return moment.month;
    case u'd':
      return moment.day;
    case u'h':
      return moment.hour;
    case u'n':
      return moment.minute;
    default:
      return moment.second;
  }
}

}  // namespace

std::u16string Format(const DateTime& moment, std::u16string_view mask) {
  std::u16string text;
  bool afterHour = false;
  for (std::size_t at = 0, run = 0; at < mask.size(); at += run) {
    const std::u16string_view rest = mask.substr(at);
    const char16_t letter = Lower(rest.front());
    const auto differs = [letter](char16_t other) { return Lower(other) != letter; };
    run = static_cast<std::size_t>(std::ranges::find_if(rest, differs) - rest.begin());
    if (!IsItem(letter)) {
      text += rest.substr(0, run);
      continue;
    }
    if (letter == u'y') {
      AppendPadded(text, run > 2 ? moment.year : moment.year % 100, run > 2 ? 4 : 2);
    } else {
      const char16_t item = letter == u'm' && afterHour ? u'n' : letter;
      AppendPadded(text, ItemValue(item, moment), std::min<std::size_t>(run, 2));
    }
    afterHour = letter == u'h';
  }
  return text;
}

}  // namespace qm::runtime
