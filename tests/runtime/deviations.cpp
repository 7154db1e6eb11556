#include "tests/runtime/deviations.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "runtime/code_page.h"
#include "runtime/numbers.h"
#include "tests/runtime/vectors.h"

namespace qm::test {
namespace {

using runtime::CDbl;
using runtime::FromUtf8;
using runtime::ToUtf8;

std::string WithComma(std::string text) {
  std::replace(text.begin(), text.end(), '.', ',');
  return text;
}

bool Has(const std::u16string& text, std::u16string_view letters) {
  return text.find_first_of(letters) != std::u16string::npos;
}

auto CountOf(const std::u16string& text, std::u16string_view letters) {
  return std::count_if(text.begin(), text.end(),
                       [&](char16_t letter) { return letters.find(letter) != letters.npos; });
}

// A failed conversion shows as an error or, by a mask, as the text itself.
bool Rejected(const std::string& answer, const Case& c) {
  return answer == "ERR13" || answer == ToUtf8(c.text);
}

// Numbers that differ in the last three bits or so.
bool Near(const std::string& ours, const std::string& theirs) {
  if (ours.starts_with("ERR") || theirs.starts_with("ERR")) return false;
  const double a = ReadC(FromUtf8(ours)), b = ReadC(FromUtf8(theirs));
  return std::fabs(a - b) <= std::fabs(a) * 2e-15;
}

bool HasOddSigns(const std::u16string& text) {
  const auto signs = CountOf(text, u"+-"), opened = CountOf(text, u"("), closed = CountOf(text, u")");
  return signs > 1 || opened != closed || closed > 1 || (signs > 0 && opened > 0);
}

// Behind anything but digits and separators.
bool HasLateGrouping(const std::u16string& text, char16_t grouping) {
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (text[at] == grouping && !Has({text[at - 1]}, u"0123456789.,")) return true;
  }
  return false;
}

// In front of the number, or with more behind it than a sign and digits.
bool HasOddExponent(const std::u16string& text) {
  const std::size_t at = text.find_first_of(u"eE");
  if (at == std::u16string::npos) return false;
  if (at == 0 || !Has({text[at - 1]}, u"0123456789.,")) return true;
  const bool isSigned = at + 1 < text.size() && Has({text[at + 1]}, u"+-");
  return Has(text.substr(at + (isSigned ? 2 : 1)), u".,+-eE");
}

struct Deviation {
  const char* reason;
  bool (*covers)(const Case& c);
};

constexpr Deviation kDeviations[] = {
    {"an exponent form keeps the dot in a locale with a comma",
     [](const Case& c) {
       return c.function.starts_with("ToText") && c.locale.decimal == u',' &&
              c.ours.find('E') != std::string::npos && WithComma(c.theirs) == c.ours;
     }},
    {"a number of 16 and more digits is formatted as another number",
     [](const Case& c) { return c.function.starts_with("Format") && std::fabs(c.number) >= 1e15; }},
    {"a mask without places makes 0 of whatever is below 1",
     [](const Case& c) {
       return c.function == "Format #,##0" && c.ours.ends_with('1') && c.theirs.ends_with('0');
     }},
    {"a number below 0.0001 is formatted by the digits of its exponent form",
     [](const Case& c) {
       return c.function.starts_with("Format ") && c.locale.decimal == u',' && c.number != 0 &&
              std::fabs(c.number) < 1e-4;
     }},
    {"an exponent with D is not read",
     [](const Case& c) { return Has(c.text, u"dD") && Rejected(c.theirs, c); }},
    {"the last digits of a double are not always rounded correctly",
     [](const Case& c) { return c.function == "CDbl" && Near(c.ours, c.theirs); }},
    {"two currency signs are taken",
     [](const Case& c) { return CountOf(c.text, u"$€") > 1 && Rejected(c.ours, c); }},
    {"sign and parentheses of a radix literal count for nothing",
     [](const Case& c) { return Has(c.text, u"&") && Has(c.text, u"-("); }},
    {"the letters of a radix literal are formatted as digits",
     [](const Case& c) { return c.function == "Format text" && Has(c.text, u"&"); }},
    {"a text keeps more than 15 digits, the sign of its zero and zeros in front of a grouping sign",
     [](const Case& c) {
       const std::u16string groupedZero{u'0', c.locale.grouping};
       return c.function == "Format text" && !Rejected(c.ours, c) &&
              (CountOf(c.text, u"0123456789") > 15 || c.number == 0 ||
               c.text.find(groupedZero) != std::u16string::npos);
     }},
    {"signs may be repeated, a parenthesis may stay open where there is a minus",
     [](const Case& c) { return Rejected(c.ours, c) && HasOddSigns(c.text); }},
    {"grouping signs may stand behind the number",
     [](const Case& c) { return Rejected(c.ours, c) && HasLateGrouping(c.text, c.locale.grouping); }},
    {"an exponent need not be the last part of the number",
     [](const Case& c) { return Rejected(c.ours, c) && HasOddExponent(c.text); }},
    {"a currency sign in front forbids an exponent",
     [](const Case& c) { return Has(c.text, u"eE") && Has(c.text, u"€$") && Rejected(c.theirs, c); }},
    {"an integer is 1 where the number's first digit stands behind zeros",
     [](const Case& c) {
       return (c.function == "CInt" || c.function == "CLng") && c.ours == "0" &&
              (c.theirs == "1" || c.theirs == "-1") && std::fabs(CDbl(c.text, c.locale)) < 0.1;
     }},
    {"letters outside the scripts of Europe and phonetic ones have capitals",
     [](const Case& c) {
       return c.function == "UCase" && c.text[0] >= 0x0180 && c.ours == std::to_string(c.text[0]);
     }},
};

}  // namespace

const char* KnownDeviation(const Case& c) {
  for (const Deviation& each : kDeviations) {
    if (each.covers(c)) return each.reason;
  }
  return nullptr;
}

}  // namespace qm::test
