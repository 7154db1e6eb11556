#pragma once
// From twips of the page to pixels and back, at one resolution and zoom.
// Units: pixels of the page are counted from its top-left corner.

#include <algorithm>
#include <cmath>

#include "designer/layout.h"
#include "platform/surface.h"
#include "platform/win32/wide.h"

namespace qm::designer::win32 {

class PageTransform {
 public:
  // Text is drawn at a whole number of dots per inch, so all else is as well.
  explicit PageTransform(int dotsPerInch = 96) : dotsPerInch_(dotsPerInch) {}
  PageTransform(int screenDpi, double zoom)
      : PageTransform(std::max(1, static_cast<int>(std::lround(screenDpi * zoom)))) {}

  [[nodiscard]] int DotsPerInch() const { return dotsPerInch_; }
  [[nodiscard]] int Pixels(double twips) const {
    return static_cast<int>(std::lround(std::clamp(twips, -kFarthest, kFarthest) * dotsPerInch_ / kPerInch));
  }
  [[nodiscard]] double Twips(double pixels) const { return pixels * kPerInch / dotsPerInch_; }
  [[nodiscard]] RECT PixelsOf(const Box& box) const {
    return {Pixels(box.left), Pixels(box.top), Pixels(box.Right()), Pixels(box.Bottom())};
  }
  [[nodiscard]] RECT PageOf(const Layout& layout) const {
    return {0, 0, Pixels(layout.canvasWidth), Pixels(layout.canvasHeight)};
  }

  bool operator==(const PageTransform&) const = default;

 private:
  static constexpr double kPerInch = 1440;
  static constexpr double kFarthest = 1e6;  // beyond any page, and safe to add to

  int dotsPerInch_;
};

}  // namespace qm::designer::win32
