#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "runtime/code_page.h"

namespace qm::runtime {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsLeading(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsTrailing(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void AppendUtf8(std::string& bytes, char32_t point) {
  const auto append = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
  const auto continuation = [&](int shift) { append(0x80 | ((point >> shift) & 0x3F)); };
  if (point < 0x80) {
    append(point);
  } else if (point < 0x800) {
    append(0xC0 | (point >> 6));
    continuation(0);
  } else if (point < 0x10000) {
    append(0xE0 | (point >> 12));
    continuation(6);
    continuation(0);
  } else {
    append(0xF0 | (point >> 18));
    continuation(12);
    continuation(6);
    continuation(0);
  }
}

void AppendUtf16(std::u16string& text, char32_t point) {
  if (point >= 0x10000) {
    text += static_cast<char16_t>(0xD7C0 + (point >> 10));
    point = 0xDC00 + (point & 0x3FF);
  }
  text += static_cast<char16_t>(point);
}

// What a lead byte announces. The bounds of the second byte keep out overlong forms, surrogates and
// what lies beyond U+10FFFF.
struct Lead {
  int following = -1;
  std::uint8_t least = 0x80, most = 0xBF;
};

Lead LeadOf(std::uint8_t byte) {
  if (byte < 0x80) return {.following = 0};
  if (byte >= 0xC2 && byte <= 0xDF) return {.following = 1};
  if (byte == 0xE0) return {.following = 2, .least = 0xA0};
  if (byte == 0xED) return {.following = 2, .most = 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {.following = 2};
  if (byte == 0xF0) return {.following = 3, .least = 0x90};
  if (byte == 0xF4) return {.following = 3, .most = 0x8F};
  if (byte >= 0xF1 && byte <= 0xF3) return {.following = 3};
  return {};
}

}  // namespace

std::string ToUtf8(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    char32_t point = text[at];
    if (IsLeading(point) && at + 1 < text.size() && IsTrailing(text[at + 1])) {
      point = 0x10000 + ((point - 0xD800) << 10) + (text[++at] - 0xDC00U);
    } else if (IsLeading(point) || IsTrailing(point)) {
      point = kReplacement;
    }
    AppendUtf8(bytes, point);
  }
  return bytes;
}

std::u16string FromUtf8(std::string_view bytes) {
  std::u16string text;
  const auto ascii = std::find_if(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
  text.assign(bytes.begin(), ascii);  // most texts are nothing else
  if (ascii == bytes.end()) return text;
  text.reserve(bytes.size());
  for (auto at = static_cast<std::size_t>(ascii - bytes.begin()); at < bytes.size();) {
    const auto first = static_cast<std::uint8_t>(bytes[at++]);
    Lead lead = LeadOf(first);
    // The lead byte of n following bytes keeps 6 - n of its bits.
    char32_t point = lead.following > 0 ? first & (0x3FU >> lead.following) : first;
    bool whole = lead.following >= 0;
    for (; lead.following > 0 && whole; --lead.following) {
      const std::uint8_t next = at < bytes.size() ? static_cast<std::uint8_t>(bytes[at]) : std::uint8_t{0};
      whole = next >= lead.least && next <= lead.most;
      if (!whole) break;
      ++at;
      point = (point << 6) | (next & 0x3FU);
      lead.least = 0x80;
      lead.most = 0xBF;
    }
    AppendUtf16(text, whole ? point : kReplacement);
  }
  return text;
}

}  // namespace qm::runtime
