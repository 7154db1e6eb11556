#include "model/xml_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "runtime/code_page.h"

namespace qm::model {
namespace {

bool IsAscii(char byte) { return static_cast<std::uint8_t>(byte) < 0x80; }

const std::array<std::string, 256>& Utf8OfBytes() {
  static const auto texts = [] {
    std::array<std::string, 256> table;
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
      const char16_t letter = runtime::FromByte(static_cast<std::uint8_t>(byte));
      table[byte] = runtime::ToUtf8(std::u16string_view(&letter, 1));
    }
    return table;
  }();
  return texts;
}

bool IsForbidden(char16_t unit) {
  return (unit < 0x20 && unit != u'\t' && unit != u'\n' && unit != u'\r') || unit >= 0xFFFE;
}

void AppendReference(std::string& out, char32_t point) {
  out.append("&#").append(std::to_string(static_cast<std::uint32_t>(point))).append(";");
}

// What stands for an ASCII character, nothing for itself.
constexpr std::string_view Replacement(char c, Escape escape) {
  if (escape == Escape::None) return {};
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '\r':
      return "&#13;";
    default:
      break;
  }
  if (escape == Escape::Text) return {};
  switch (c) {
    case '"':
      return "&quot;";
    case '\t':
      return "&#9;";
    case '\n':
      return "&#10;";
    default:
      return {};
  }
}

using ByteTable = std::array<bool, 256>;

// The bytes that go out as they are.
constexpr ByteTable PlainBytes(Escape escape) {
  ByteTable plain{};
  for (std::size_t byte = 0; byte < 0x80; ++byte)
    plain[byte] = Replacement(static_cast<char>(byte), escape).empty();
  return plain;
}

constexpr ByteTable kPlain[] = {PlainBytes(Escape::Text), PlainBytes(Escape::AttributeValue),
                                PlainBytes(Escape::None)};

void AppendLetters(std::string& out, std::u16string_view letters, Escape escape) {
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const char16_t unit = letters[i];
    if (runtime::IsRepresentable(unit) || escape == Escape::None) {
      out += static_cast<char>(runtime::ToByte(unit));
    } else if ((unit & 0xFC00) == 0xD800 && i + 1 < letters.size()) {
      ++i;
      AppendReference(out, 0x10000U + ((unit & 0x3FFU) << 10) + (letters[i] & 0x3FFU));
    } else {
      AppendReference(out, unit);
    }
  }
}

}  // namespace

std::string Utf8FromCodePage(std::string_view bytes) {
  const auto& utf8 = Utf8OfBytes();
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 16);
  for (auto at = bytes.begin(); at != bytes.end();) {
    const auto run = std::find_if_not(at, bytes.end(), IsAscii);
    text.append(at, run);
    at = run;
    for (; at != bytes.end() && !IsAscii(*at); ++at) text += utf8[static_cast<std::uint8_t>(*at)];
  }
  return text;
}

std::string XmlUtf8(std::u16string_view text) {
  if (std::none_of(text.begin(), text.end(), IsForbidden)) return runtime::ToUtf8(text);
  std::u16string kept(text);
  std::erase_if(kept, IsForbidden);
  return runtime::ToUtf8(kept);
}

void AppendInCodePage(std::string& out, std::string_view utf8, Escape escape) {
  const ByteTable& plain = kPlain[static_cast<std::size_t>(escape)];
  const char* at = utf8.data();
  const char* const end = at + utf8.size();
  while (at != end) {
    const char* const run = at;
    while (at != end && plain[static_cast<std::uint8_t>(*at)]) ++at;
    out.append(run, at);
    if (at == end) return;
    if (IsAscii(*at)) {
      out += Replacement(*at++, escape);
    } else {
      const char* const foreign = at;
      at = std::find_if(at, end, IsAscii);
      AppendLetters(out, runtime::FromUtf8(std::string_view(foreign, at)), escape);
    }
  }
}

}  // namespace qm::model
