#include <cstddef>
#include <utility>

#include "print/text/text_helpers.h"
#include "runtime/strings.h"

namespace qm::text {
namespace {

using platform::TextExtent;

// Widths are sums and differences of doubles; a text that fits exactly must not fail by their last bit.
constexpr double kRoundingTwips = 1e-6;

bool Fits(double width, double limit) { return width <= limit + kRoundingTwips; }

bool IsHighSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool IsLowSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

bool IsInsidePair(std::u16string_view text, std::size_t at) {
  return at > 0 && at < text.size() && IsLowSurrogate(text[at]) && IsHighSurrogate(text[at - 1]);
}

// Drops characters from the end of the first `count` until what is left fits.
std::size_t DropUntilFits(std::u16string_view text, const TextExtent& extent, std::size_t count,
                          double limit) {
  while (count > 0 && (!Fits(extent.WidthOfFirst(count), limit) || IsInsidePair(text, count))) --count;
  return count;
}

// Padded up to the width or just beyond it, but no further than the last letter that can stay on the page.
void Pad(platform::Surface& surface, std::u16string& text, TextExtent& extent, double width, double room) {
  const double letterWidth = surface.Measure(u"X").Width();
  if (!(letterWidth > 0)) return;
  const double start = extent.Width();
  for (int letters = 1; !Fits(width, extent.Width()) && Fits(extent.Width(), room); ++letters) {
    text.push_back(u'X');
    extent.ends.push_back(start + letters * letterWidth);
  }
}

double WidthOf(const TextExtent& extent, std::size_t begin, std::size_t end) {
  return extent.WidthOfFirst(end) - extent.WidthOfFirst(begin);
}

// End of the longest part from `begin` that fits; at least one character.
std::size_t FittingEnd(std::u16string_view text, const TextExtent& extent, std::size_t begin, double width) {
  std::size_t end = begin + 1;
  while (end < text.size() && Fits(WidthOf(extent, begin, end + 1), width)) ++end;
  if (!IsInsidePair(text, end)) return end;
  return end - 1 > begin ? end - 1 : end + 1;
}

}  // namespace

Line FitLine(platform::Surface& surface, std::u16string_view text, double width, double left, bool pad) {
  const double room = surface.ScaleWidth() - left;
  TextExtent extent = surface.Measure(text);
  std::u16string fitted(text);
  std::size_t count = text.size();
  if (!Fits(extent.Width(), width)) {
    count = DropUntilFits(fitted, extent, count, width);
  } else if (pad) {
    Pad(surface, fitted, extent, width, room);
    count = fitted.size();
  }
  count = DropUntilFits(fitted, extent, count, room);
  fitted.resize(count);
  return {std::move(fitted), extent.WidthOfFirst(count), extent.height};
}

std::vector<Line> SplitLines(platform::Surface& surface, std::u16string_view text, double width) {
  if (text.empty()) return {};
  const TextExtent extent = surface.Measure(text);
  if (Fits(extent.Width(), width)) return {{std::u16string(text), extent.Width(), extent.height}};

  std::vector<Line> lines;
  const auto add = [&](std::size_t begin, std::size_t end) {
    lines.push_back(
        {std::u16string(text.substr(begin, end - begin)), WidthOf(extent, begin, end), extent.height});
  };
  const std::size_t stop = text.find_last_not_of(u' ') + 1;  // 0 for nothing but blanks
  const std::u16string_view rest = text.substr(0, stop);
  for (std::size_t begin = rest.find_first_not_of(u' '); begin < stop;) {
    if (Fits(WidthOf(extent, begin, stop), width)) {
      add(begin, stop);
      break;
    }
    std::size_t end = FittingEnd(rest, extent, begin, width);
    const std::size_t blank = rest.substr(begin, end - begin).find_last_of(u' ');
    if (blank != std::u16string_view::npos) end = begin + blank;
    add(begin, end);
    begin = rest.find_first_not_of(u' ', end);
  }
  return lines;
}

}  // namespace qm::text
