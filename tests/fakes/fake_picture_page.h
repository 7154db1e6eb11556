#pragma once
// Picture pages that draw nothing: every page is white, and its bitmap file is "BMP" followed by the log of
// what was drawn on it.

#include <memory>
#include <vector>

#include "platform/picture_page.h"
#include "tests/fakes/recording_surface.h"

namespace qm::fakes {

class FakePicturePage : public Recording<platform::PicturePage> {
 public:
  void SetPageSize(double widthTwips, double heightTwips) override {
    Recording::SetPageSize(widthTwips, heightTwips);
    width_ = static_cast<int>(widthTwips / 15);
    height_ = static_cast<int>(heightTwips / 15);
    pixels_.assign(static_cast<std::size_t>(width_ * height_) * 3, 0xFF);
  }
  [[nodiscard]] platform::PageImage Image() override { return {width_, height_, width_ * 3, pixels_.data()}; }
  [[nodiscard]] std::string BmpBytes() override { return "BMP\n" + Log(); }

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint8_t> pixels_;
};

class FakePicturePages : public platform::PicturePages {
 public:
  int made = 0;

  [[nodiscard]] std::unique_ptr<platform::PicturePage> New() override {
    ++made;
    return std::make_unique<FakePicturePage>();
  }
};

}  // namespace qm::fakes
