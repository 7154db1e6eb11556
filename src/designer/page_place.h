#pragma once
// Where the page lies under the viewport, and how large it is shown. Only the view changes by it: what is
// stored never depends on scroll bars or zoom.
// Units: twips of the page; scroll values are 16-bit integers.

#include "designer/layout.h"
#include "platform/surface.h"

namespace qm::designer {

class PagePlace {
 public:
  [[nodiscard]] int Horizontal() const { return horizontal_; }
  [[nodiscard]] int Vertical() const { return vertical_; }
  // The limits of the scroll bars for a page.
  [[nodiscard]] static int HorizontalMax(const Layout& layout);
  [[nodiscard]] static int VerticalMax(const Layout& layout);
  // Values beyond the limits become the limits.
  void ScrollTo(const Layout& layout, int horizontal, int vertical);

  // Up or down the list of zooms, from 25 to 400 percent. The point stays where it is on the screen, as far
  // as the limits of the scroll bars allow.
  void ZoomBy(const Layout& layout, int steps, platform::Point around);
  void ZoomToActualSize(const Layout& layout);
  [[nodiscard]] double Zoom() const;

  // The viewport's size at a zoom of 1; without one nothing is ever brought into sight.
  void SetViewport(double width, double height);
  // Scrolls no farther than is needed to show the box; of one larger than the viewport the top-left corner.
  void Reveal(const Layout& layout, const Box& box);

 private:
  static constexpr int kActualSize = 3;  // of the list of zooms

  int horizontal_ = 0;
  int vertical_ = 0;
  int zoom_ = kActualSize;
  double viewportWidth_ = 0;
  double viewportHeight_ = 0;
};

}  // namespace qm::designer
