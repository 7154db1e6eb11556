#include "print/text/references.h"

#include <optional>

#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace qm::text {
namespace {

using runtime::Compare;

constexpr std::size_t kNone = std::u16string_view::npos;

std::size_t FindName(std::u16string_view html, std::u16string_view name, std::size_t from) {
  const int found = runtime::InStr(html, name, static_cast<int>(from) + 1, Compare::Text);
  return found == 0 ? kNone : static_cast<std::size_t>(found) - 1;
}

// A value between the quotes at these places, and where the search for the next one goes on.
struct Reference {
  std::size_t openingQuote;
  std::size_t closingQuote;
  std::size_t next;

  [[nodiscard]] std::u16string_view ValueIn(std::u16string_view html) const {
    return html.substr(openingQuote + 1, closingQuote - openingQuote - 1);
  }
};

std::optional<Reference> FindReference(std::u16string_view html, std::u16string_view name, std::size_t from) {
  const std::size_t at = FindName(html, name, from);
  if (at == kNone) return std::nullopt;
  const std::size_t afterName = at + name.size();
  const std::size_t opening = html.find(u'"', afterName);
  if (opening == kNone) return std::nullopt;
  const std::size_t closing = html.find(u'"', opening + 1);
  if (closing == kNone) return std::nullopt;
  // A name without quotes of its own takes the next one's value; a name inside a value is none.
  const bool nameBeforeValue = FindName(html.substr(0, opening), name, afterName) != kNone;
  return Reference{opening, closing, nameBeforeValue ? afterName : closing + 1};
}

bool IsRemote(std::u16string_view value) { return runtime::EqualFolded(value.substr(0, 4), u"HTTP"); }

std::optional<int> HexDigit(char16_t letter) {
  if (letter >= u'0' && letter <= u'9') return letter - u'0';
  if (letter >= u'A' && letter <= u'F') return letter - u'A' + 10;
  if (letter >= u'a' && letter <= u'f') return letter - u'a' + 10;
  return std::nullopt;
}

// One pass from left to right; a "%" without two hexadecimal digits stays.
std::u16string Decoded(std::u16string_view value) {
  std::u16string result;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] == u'%' && i + 2 < value.size()) {
      const std::optional<int> high = HexDigit(value[i + 1]);
      const std::optional<int> low = HexDigit(value[i + 2]);
      if (high && low) {
        result += runtime::Chr(*high * 16 + *low);
        i += 2;
        continue;
      }
    }
    result += value[i];
  }
  return result;
}

// The value with its quotes cut after its first separator, or nothing when it names a bare file.
std::optional<std::u16string> Shortened(std::u16string_view quoted) {
  std::size_t separator = quoted.find(u'/');
  if (separator == kNone) separator = quoted.find(u'\\');
  if (separator == kNone) return std::nullopt;
  return std::u16string(u"\"").append(quoted.substr(separator + 1));
}

}  // namespace

std::u16string ReferencedFiles(std::u16string_view html, std::u16string_view folder) {
  std::u16string list;
  for (const std::u16string_view name : {u"SRC=", u"BACKGROUND="}) {
    std::size_t from = 0;
    while (const std::optional<Reference> found = FindReference(html, name, from)) {
      from = found->next;
      const std::u16string_view value = found->ValueIn(html);
      if (IsRemote(value)) continue;
      const std::u16string file = runtime::Replace(runtime::UCase(value), u"FILE:", u"");
      if (runtime::InStr(list, file, 1, Compare::Text) != 0) continue;
      if (!list.empty()) list += u';';
      list.append(folder).append(runtime::Replace(Decoded(file), u"/", u"\\"));
    }
  }
  return list;
}

std::u16string ShortenImageReferences(std::u16string_view html) {
  std::u16string text(html);
  for (const std::u16string_view name : {u"SRC", u"BACKGROUND"}) {
    std::size_t from = 0;
    while (const std::optional<Reference> found = FindReference(text, name, from)) {
      from = found->next;
      if (IsRemote(found->ValueIn(text))) continue;
      const std::u16string quoted =
          text.substr(found->openingQuote, found->closingQuote - found->openingQuote + 1);
      const std::optional<std::u16string> shorter = Shortened(quoted);
      if (!shorter) continue;
      // What stands before the place to go on from may shrink as well.
      from = runtime::Replace(std::u16string_view(text).substr(0, from), quoted, *shorter).size();
      text = runtime::Replace(text, quoted, *shorter);
    }
  }
  return text;
}

}  // namespace qm::text
