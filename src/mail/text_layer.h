#pragma once
// A drawing surface in front of another one: all that is drawn goes on to that one, and the texts are noted
// with the place and the widths they were drawn with.

#include <vector>

#include "platform/pdf_writer.h"
#include "platform/surface.h"

namespace qm::mail {

class TextLayer : public platform::Surface {
 public:
  explicit TextLayer(platform::Surface& surface) : surface_(surface) {}

  [[nodiscard]] const std::vector<platform::PageText>& Texts() const { return texts_; }

  [[nodiscard]] platform::Font CurrentFont() const override { return surface_.CurrentFont(); }
  void SetFont(const platform::Font& font) override { surface_.SetFont(font); }
  void SetForeColor(std::int32_t color) override { surface_.SetForeColor(color); }
  [[nodiscard]] platform::TextExtent Measure(std::u16string_view text) override {
    return surface_.Measure(text);
  }
  void PrintText(platform::Point topLeft, std::u16string_view text) override;
  void PaintPicture(const platform::Picture& picture, platform::Point topLeft) override {
    surface_.PaintPicture(picture, topLeft);
  }
  void SetPageSize(double widthTwips, double heightTwips) override;  // a new page, without texts
  [[nodiscard]] double ScaleWidth() const override { return surface_.ScaleWidth(); }

 private:
  platform::Surface& surface_;
  std::vector<platform::PageText> texts_;
};

}  // namespace qm::mail
