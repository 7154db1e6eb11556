#pragma once
// A picture as a drawing surface: a white page of 24 bits a pixel at 96 dots per inch, 15 twips a pixel.
// Errors: RuntimeError 7 for a page that memory has no room for.
// It has no page until SetPageSize gives it one; every SetPageSize gives a new, white page.

#include <memory>
#include <optional>
#include <string>

#include "platform/picture_page.h"
#include "platform/win32/canvas.h"

namespace qm::platform::win32 {

class PictureSurface : public PicturePage {
 public:
  PictureSurface();
  PictureSurface(const PictureSurface&) = delete;
  PictureSurface& operator=(const PictureSurface&) = delete;
  ~PictureSurface() override;

  [[nodiscard]] Font CurrentFont() const override { return canvas_.CurrentFont(); }
  void SetFont(const Font& font) override { canvas_.SetFont(font); }
  void SetForeColor(std::int32_t color) override { canvas_.SetForeColor(color); }
  [[nodiscard]] TextExtent Measure(std::u16string_view text) override { return canvas_.Measure(text); }
  void PrintText(Point topLeft, std::u16string_view text) override;
  void PaintPicture(const Picture& picture, Point topLeft) override;
  void SetPageSize(double widthTwips, double heightTwips) override;
  [[nodiscard]] double ScaleWidth() const override;

  // The page with all that was drawn so far; null before SetPageSize. Valid until the next drawing.
  [[nodiscard]] const Bitmap24* Page();
  [[nodiscard]] PageImage Image() override;       // valid until the next drawing
  [[nodiscard]] std::string BmpBytes() override;  // empty before SetPageSize

 private:
  OwnedDc dc_;
  HGDIOBJ formerBitmap_;
  Canvas canvas_;
  std::optional<Bitmap24> page_;
};

class Win32PicturePages : public PicturePages {
 public:
  [[nodiscard]] std::unique_ptr<PicturePage> New() override { return std::make_unique<PictureSurface>(); }
};

}  // namespace qm::platform::win32
