#include "runtime/strings.h"

#include <algorithm>

#include "runtime/error.h"

namespace qm::runtime {
namespace {

std::size_t Checked(int number, int least) {
  if (number < least) throw RuntimeError(ErrorNumber::InvalidArgument);
  return static_cast<std::size_t>(number);
}

std::size_t Find(std::u16string_view text, std::u16string_view part, std::size_t from, Compare compare) {
  if (compare == Compare::Binary) return text.find(part, from);
  const std::u16string_view rest = text.substr(std::min(from, text.size()));
  const auto sameFolded = [](char16_t a, char16_t b) { return UCase(a) == UCase(b); };
  const auto found = std::search(rest.begin(), rest.end(), part.begin(), part.end(), sameFolded);
  if (found == rest.end()) return std::u16string_view::npos;
  return text.size() - rest.size() + static_cast<std::size_t>(found - rest.begin());
}

int ToPosition(std::size_t index) {
  return index == std::u16string_view::npos ? 0 : static_cast<int>(index) + 1;
}

// Every "step"-th letter from first to last has its capital at letter + distance.
struct SmallLetters {
  char16_t first, last;
  int step, distance;
};

// The scripts of Europe and the full-width forms. ÷ is no letter; ß, µ, ª, º and ŉ have no single capital.
constexpr SmallLetters kSmallLetters[] = {
    {u'a', u'z', 1, -32},     {u'à', u'ö', 1, -32},     {u'ø', u'þ', 1, -32},    {u'ÿ', u'ÿ', 1, 121},
    {0x0101, 0x012F, 2, -1},  {0x0133, 0x0137, 2, -1},  {0x013A, 0x0148, 2, -1}, {0x014B, 0x0177, 2, -1},
    {0x017A, 0x017E, 2, -1},  {u'ƒ', u'ƒ', 1, -1},      {0x01CE, 0x01DC, 2, -1}, {0x01F9, 0x021F, 2, -1},
    {u'ά', u'ά', 1, -38},     {u'έ', u'ί', 1, -37},     {u'α', u'ρ', 1, -32},    {u'σ', u'ϋ', 1, -32},
    {u'ό', u'ό', 1, -64},     {u'ύ', u'ώ', 1, -63},     {u'а', u'я', 1, -32},    {u'ѐ', u'џ', 1, -80},
    {0x0461, 0x0481, 2, -1},  {0x048B, 0x04BF, 2, -1},  {0x1E01, 0x1E95, 2, -1}, {0x1EA1, 0x1EFF, 2, -1},
    {0x2170, 0x217F, 1, -16}, {0xFF41, 0xFF5A, 1, -32},
};

}  // namespace

std::u16string_view Trim(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::u16string_view Left(std::u16string_view text, int count) { return text.substr(0, Checked(count, 0)); }

std::u16string_view Right(std::u16string_view text, int count) {
  return text.substr(text.size() - std::min(Checked(count, 0), text.size()));
}

std::u16string_view Mid(std::u16string_view text, int start) {
  return text.substr(std::min(Checked(start, 1) - 1, text.size()));
}

std::u16string_view Mid(std::u16string_view text, int start, int count) {
  return Mid(text, start).substr(0, Checked(count, 0));
}

int InStr(std::u16string_view text, std::u16string_view part, int start, Compare compare) {
  const std::size_t from = Checked(start, 1) - 1;
  if (from >= text.size()) return 0;  // also an empty part in an empty text
  return ToPosition(Find(text, part, from, compare));
}

int InStrRev(std::u16string_view text, std::u16string_view part) {
  return text.empty() ? 0 : part.empty() ? static_cast<int>(text.size()) : ToPosition(text.rfind(part));
}

std::u16string Replace(std::u16string_view text, std::u16string_view part, std::u16string_view by,
                       Compare compare) {
  if (part.empty()) return std::u16string(text);
  std::u16string result;
  std::size_t from = 0;
  for (std::size_t at = 0; (at = Find(text, part, from, compare)) != std::u16string_view::npos;) {
    (result += text.substr(from, at - from)) += by;
    from = at + part.size();
  }
  return result += text.substr(from);
}

std::vector<std::u16string> Split(std::u16string_view text, std::u16string_view separator) {
  std::vector<std::u16string> pieces;
  if (text.empty()) return pieces;
  std::size_t from = 0;
  if (!separator.empty()) {
    for (std::size_t at = 0; (at = text.find(separator, from)) != std::u16string_view::npos;) {
      pieces.emplace_back(text.substr(from, at - from));
      from = at + separator.size();
    }
  }
  pieces.emplace_back(text.substr(from));
  return pieces;
}

char16_t UCase(char16_t letter) {
  if (letter < 0x80) return letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - 32) : letter;
  for (const SmallLetters& run : kSmallLetters) {
    if (letter > run.last) continue;
    const bool small = letter >= run.first && (letter - run.first) % run.step == 0;
    return small ? static_cast<char16_t>(letter + run.distance) : letter;
  }
  return letter;
}

std::u16string UCase(std::u16string_view text) {
  std::u16string result(text);
  std::ranges::transform(result, result.begin(), [](char16_t letter) { return UCase(letter); });
  return result;
}

bool EqualFolded(std::u16string_view a, std::u16string_view b) {
  return std::ranges::equal(a, b, [](char16_t x, char16_t y) { return x == y || UCase(x) == UCase(y); });
}

}  // namespace qm::runtime
