#include "platform/win32/device_font.h"

#include <algorithm>
#include <cmath>

#include "platform/win32/errors.h"

namespace qm::platform::win32 {
namespace {

constexpr std::int32_t kUnknown = -1;

bool IsControl(char16_t letter) { return letter < 32; }
bool IsHighSurrogate(char16_t letter) { return (letter & 0xFC00) == 0xD800; }
bool IsLowSurrogate(char16_t letter) { return (letter & 0xFC00) == 0xDC00; }

// Characters whose width does not depend on their neighbours, so that many are measured in one call. In
// other scripts Windows joins and stacks letters.
bool StandsAlone(char16_t letter) {
  return letter < 0x0250 || (letter >= 0x0370 && letter < 0x0483) || (letter >= 0x2010 && letter < 0x2027) ||
         (letter >= 0x20A0 && letter < 0x20D0);
}

LOGFONTW Description(const Font& font, double dotsPerPoint, BYTE quality) {
  LOGFONTW description{};
  const double height = std::clamp(font.sizePoints * dotsPerPoint, 1.0, 100000.0);
  description.lfHeight = -static_cast<LONG>(std::lround(height));
  description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.italic ? TRUE : FALSE;
  description.lfUnderline = font.underline ? TRUE : FALSE;
  description.lfStrikeOut = font.strikethru ? TRUE : FALSE;
  description.lfCharSet = DEFAULT_CHARSET;
  description.lfQuality = quality;
  const std::size_t length = std::min<std::size_t>(font.name.size(), LF_FACESIZE - 1);
  std::copy_n(font.name.begin(), length, description.lfFaceName);
  return description;
}

}  // namespace

DeviceFont::DeviceFont(HDC dc, const Font& font, double dotsPerPoint, BYTE quality) {
  const LOGFONTW description = Description(font, dotsPerPoint, quality);
  handle_.Reset(CreateFontIndirectW(&description));
  if (!handle_) Throw(runtime::ErrorNumber::OutOfMemory);
  const SelectedObject selected(dc, handle_.Get());
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  lineHeight_ = static_cast<int>(metrics.tmHeight);
}

std::int32_t& DeviceFont::WidthOf(char16_t letter) {
  std::unique_ptr<Block>& block = blocks_[letter >> 8];
  if (!block) {
    block = std::make_unique<Block>();
    block->fill(kUnknown);
  }
  return (*block)[letter & 0xFF];
}

void DeviceFont::Learn(HDC dc, std::u16string_view text) {
  unknown_.clear();
  for (const char16_t letter : text) {
    std::int32_t& width = WidthOf(letter);
    if (width != kUnknown) continue;
    width = 0;  // also of what has no width of its own: control characters, halves of pairs
    if (IsControl(letter) || IsHighSurrogate(letter) || IsLowSurrogate(letter)) continue;
    if (StandsAlone(letter)) {
      unknown_ += letter;
      continue;
    }
    SIZE size{};
    GetTextExtentPoint32W(dc, Wide(&letter), 1, &size);
    width = static_cast<std::int32_t>(size.cx);
  }
  if (unknown_.empty()) return;
  std::vector<int> ends(unknown_.size());
  SIZE size{};
  GetTextExtentExPointW(dc, Wide(unknown_), static_cast<int>(unknown_.size()), 0, nullptr, ends.data(),
                        &size);
  int start = 0;
  for (std::size_t i = 0; i < unknown_.size(); ++i) {
    WidthOf(unknown_[i]) = ends[i] - start;
    start = ends[i];
  }
}

int DeviceFont::WidthOfPair(HDC dc, char16_t high, char16_t low) {
  const std::uint32_t key = (std::uint32_t{high} << 16) | low;
  const auto [entry, isNew] = pairs_.try_emplace(key, 0);
  if (isNew) {
    const SelectedObject selected(dc, Handle());
    const char16_t pair[] = {high, low};
    SIZE size{};
    GetTextExtentPoint32W(dc, Wide(pair), 2, &size);
    entry->second = static_cast<int>(size.cx);
  }
  return entry->second;
}

void DeviceFont::Advances(HDC dc, std::u16string_view text, std::vector<int>& advances) {
  if (std::any_of(text.begin(), text.end(), [this](char16_t c) { return WidthOf(c) == kUnknown; })) {
    const SelectedObject selected(dc, Handle());
    Learn(dc, text);
  }
  advances.resize(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    advances[i] = pair ? WidthOfPair(dc, text[i], text[i + 1]) : WidthOf(text[i]);
  }
}

DeviceFonts::Entry& DeviceFonts::Get(HDC dc, const Font& font) {
  const auto known = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const std::unique_ptr<Entry>& entry) { return entry->font == font; });
  if (known != entries_.end()) return **known;
  entries_.push_back(
      std::make_unique<Entry>(Entry{font, FaceNumberOf(font), static_cast<int>(entries_.size()),
                                    DeviceFont(dc, font, dotsPerPoint_, quality_)}));
  return *entries_.back();
}

int DeviceFonts::FaceNumberOf(const Font& font) const {
  for (const std::unique_ptr<Entry>& entry : entries_) {
    const Font& other = entry->font;
    if (other.name == font.name && other.bold == font.bold && other.italic == font.italic)
      return entry->faceNumber;
  }
  return static_cast<int>(entries_.size());
}

}  // namespace qm::platform::win32
