#include "designer/win32/picture_scaler.h"

#include <algorithm>
#include <vector>

namespace qm::designer::win32 {
namespace {

using platform::win32::Bitmap24;

constexpr int kMostSamples = 8;  // a side; of larger spans every so manieth pixel counts

// The pixels of the picture that fall on one pixel of the page, along one axis.
struct Span {
  int first;
  int last;
  int step;
};

std::vector<Span> Spans(LONG from, LONG to, LONG start, LONG extent, int pictureExtent) {
  std::vector<Span> spans;
  spans.reserve(static_cast<std::size_t>(std::max<LONG>(0, to - from)));
  const auto at = [&](LONG place) {
    return static_cast<int>(static_cast<std::int64_t>(place - start) * pictureExtent / extent);
  };
  for (LONG place = from; place < to; ++place) {
    const int first = std::clamp(at(place), 0, pictureExtent - 1);
    const int last = std::clamp(at(place + 1) - 1, first, pictureExtent - 1);
    spans.push_back({first, last, std::max(1, (last - first + 1) / kMostSamples)});
  }
  return spans;
}

Pixel Mean(const Bitmap24& picture, const Span& across, const Span& down) {
  unsigned blue = 0;
  unsigned green = 0;
  unsigned red = 0;
  unsigned count = 0;
  for (int y = down.first; y <= down.last; y += down.step) {
    const std::uint8_t* const row = picture.Row(y);
    for (int x = across.first; x <= across.last; x += across.step, ++count) {
      const std::uint8_t* const pixel = row + static_cast<std::size_t>(x) * 3;
      blue += pixel[0];
      green += pixel[1];
      red += pixel[2];
    }
  }
  return 0xFF000000U | red / count << 16 | green / count << 8 | blue / count;
}

}  // namespace

void DrawStretched(Bitmap32& target, POINT corner, const RECT& place, const Bitmap24& picture) {
  const RECT view{corner.x, corner.y, corner.x + target.Width(), corner.y + target.Height()};
  RECT part{};
  if (!IntersectRect(&part, &view, &place)) return;
  const std::vector<Span> columns =
      Spans(part.left, part.right, place.left, place.right - place.left, picture.Width());
  const std::vector<Span> rows =
      Spans(part.top, part.bottom, place.top, place.bottom - place.top, picture.Height());
  for (std::size_t y = 0; y < rows.size(); ++y) {
    Pixel* pixel =
        target.Row(static_cast<int>(part.top - corner.y) + static_cast<int>(y)) + (part.left - corner.x);
    for (const Span& column : columns) *pixel++ = Mean(picture, column, rows[y]);
  }
}

}  // namespace qm::designer::win32
