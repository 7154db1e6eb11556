#include "model/xml_text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "runtime/code_page.h"

namespace qm::model {
namespace {

// ---- Out of the file

char16_t NamedCharacter(std::string_view name) {
  if (name == "amp") return u'&';
  if (name == "lt") return u'<';
  if (name == "gt") return u'>';
  return name == "quot" ? u'"' : u'\'';
}

// What stands between "&" and ";".
void AppendReferenced(std::u16string& out, std::string_view reference) {
  if (!reference.starts_with('#')) {
    out += NamedCharacter(reference);
    return;
  }
  const bool hexadecimal = reference.starts_with("#x");
  const std::string_view digits = reference.substr(hexadecimal ? 2 : 1);
  std::uint32_t point = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), point, hexadecimal ? 16 : 10);
  if (point >= 0x10000) {
    out += static_cast<char16_t>(0xD7C0 + (point >> 10));
    point = 0xDC00 + (point & 0x3FF);
  }
  out += static_cast<char16_t>(point);
}

bool IsPlain(char byte) { return static_cast<std::uint8_t>(byte) >= 0x20 && byte != '&'; }

enum class Part { ElementText, CharacterData, AttributeValue };

void Append(std::u16string& out, std::string_view raw, Part part) {
  const bool isValue = part == Part::AttributeValue;
  while (true) {
    const auto plain =
        static_cast<std::size_t>(std::find_if_not(raw.begin(), raw.end(), IsPlain) - raw.begin());
    runtime::AppendBytes(out, raw.substr(0, plain));
    if (plain == raw.size()) return;
    const char stop = raw[plain];
    raw.remove_prefix(plain + 1);
    if (stop == '&' && part != Part::CharacterData) {
      const std::string_view reference = raw.substr(0, raw.find(';'));
      AppendReferenced(out, reference);
      raw.remove_prefix(std::min(reference.size() + 1, raw.size()));
    } else if (stop == '\r') {
      if (raw.starts_with('\n')) raw.remove_prefix(1);
      out += isValue ? u' ' : u'\n';
    } else {
      out += isValue ? u' ' : static_cast<char16_t>(stop);
    }
  }
}

// ---- Into the file

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

void AppendElementText(std::u16string& out, std::string_view raw) { Append(out, raw, Part::ElementText); }

void AppendCharacterData(std::u16string& out, std::string_view raw) { Append(out, raw, Part::CharacterData); }

std::u16string AttributeText(std::string_view raw) {
  std::u16string text;
  Append(text, raw, Part::AttributeValue);
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
