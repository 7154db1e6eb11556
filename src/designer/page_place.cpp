#include "designer/page_place.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace qm::designer {

namespace {

constexpr std::array kZooms = {0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 2.5, 3.0, 4.0};

int Limit(float canvasTwips) {
  constexpr double kMost = std::numeric_limits<std::int16_t>::max();
  return static_cast<int>(std::clamp(std::nearbyint(static_cast<double>(canvasTwips)), 0.0, kMost));
}

int Rounded(double twips) { return static_cast<int>(std::nearbyint(twips)); }

// The scroll value nearest to the present one that shows the span.
int Showing(int value, double from, double to, double viewport) {
  if (viewport <= 0) return value;
  if (from < value || to - from > viewport) return Rounded(from);
  return std::max(value, static_cast<int>(std::ceil(to - viewport)));
}

}  // namespace

int PagePlace::HorizontalMax(const Layout& layout) { return Limit(layout.canvasWidth); }
int PagePlace::VerticalMax(const Layout& layout) { return Limit(layout.canvasHeight); }

void PagePlace::ScrollTo(const Layout& layout, int horizontal, int vertical) {
  horizontal_ = std::clamp(horizontal, 0, HorizontalMax(layout));
  vertical_ = std::clamp(vertical, 0, VerticalMax(layout));
}

void PagePlace::ZoomBy(const Layout& layout, int steps, platform::Point around) {
  const double before = Zoom();
  zoom_ = std::clamp(zoom_ + steps, 0, static_cast<int>(kZooms.size()) - 1);
  const double shrunk = before / Zoom();
  ScrollTo(layout, Rounded(around.x - (around.x - horizontal_) * shrunk),
           Rounded(around.y - (around.y - vertical_) * shrunk));
}

void PagePlace::ZoomToActualSize(const Layout& layout) {
  ZoomBy(layout, kActualSize - zoom_, {static_cast<double>(horizontal_), static_cast<double>(vertical_)});
}

double PagePlace::Zoom() const { return kZooms[static_cast<std::size_t>(zoom_)]; }

void PagePlace::SetViewport(double width, double height) {
  viewportWidth_ = width;
  viewportHeight_ = height;
}

void PagePlace::Reveal(const Layout& layout, const Box& box) {
  ScrollTo(layout, Showing(horizontal_, box.left, box.Right(), viewportWidth_ / Zoom()),
           Showing(vertical_, box.top, box.Bottom(), viewportHeight_ / Zoom()));
}

}  // namespace qm::designer
