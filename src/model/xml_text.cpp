#include "model/xml_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "runtime/code_page.h"

namespace qm::model {
namespace {

bool IsAscii(char byte) { return static_cast<std::uint8_t>(byte) < 0x80; }

bool IsForbidden(char16_t unit) {
  return (unit < 0x20 && unit != u'\t' && unit != u'\n' && unit != u'\r') || unit >= 0xFFFE;
}

void AppendReference(std::string& out, char32_t point) {
  out.append("&#").append(std::to_string(static_cast<std::uint32_t>(point))).append(";");
}

// What stands for a character of XML's own, nothing for any other.
std::string_view Replacement(char16_t c, Escape escape) {
  switch (c) {
    case u'&':
      return "&amp;";
    case u'<':
      return "&lt;";
    case u'>':
      return "&gt;";
    case u'\r':
      return "&#13;";
    default:
      break;
  }
  if (escape == Escape::Text) return {};
  switch (c) {
    case u'"':
      return "&quot;";
    case u'\t':
      return "&#9;";
    case u'\n':
      return "&#10;";
    default:
      return {};
  }
}

bool IsLeading(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool IsTrailing(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

}  // namespace

std::string Utf8FromCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 16);
  while (!bytes.empty()) {
    const auto ascii =
        static_cast<std::size_t>(std::find_if_not(bytes.begin(), bytes.end(), IsAscii) - bytes.begin());
    text += bytes.substr(0, ascii);
    if (ascii == bytes.size()) break;
    const char16_t letter = runtime::FromByte(static_cast<std::uint8_t>(bytes[ascii]));
    text += runtime::ToUtf8(std::u16string_view(&letter, 1));
    bytes.remove_prefix(ascii + 1);
  }
  return text;
}

void AppendEscaped(std::string& out, std::u16string_view text, Escape escape) {
  constexpr char32_t kReplacementCharacter = 0xFFFD;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsForbidden(unit)) continue;
    if (const std::string_view replacement = Replacement(unit, escape); !replacement.empty()) {
      out += replacement;
    } else if (runtime::IsRepresentable(unit)) {
      out += static_cast<char>(runtime::ToByte(unit));
    } else if (IsLeading(unit) && i + 1 < text.size() && IsTrailing(text[i + 1])) {
      ++i;
      AppendReference(out, 0x10000U + ((unit & 0x3FFU) << 10) + (text[i] & 0x3FFU));
    } else {
      AppendReference(out, IsLeading(unit) || IsTrailing(unit) ? kReplacementCharacter : unit);
    }
  }
}

}  // namespace qm::model
