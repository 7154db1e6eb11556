#include "platform/win32/picture_surface.h"

#include <algorithm>
#include <cmath>

#include "platform/win32/pictures.h"

namespace qm::platform::win32 {
namespace {

constexpr int kDotsPerInch = 96;
constexpr double kTwipsPerPixel = 15;
constexpr double kBeyondAnyPage = 1e9;

std::int64_t Pixels(double twips) {
  return std::llround(std::clamp(twips / kTwipsPerPixel, 1.0, kBeyondAnyPage));
}

}  // namespace

// Grey smoothing: the coloured fringes of screen smoothing would stay in the picture for good.
PictureSurface::PictureSurface()
    : dc_(CreateCompatibleDC(nullptr)),
      formerBitmap_(GetCurrentObject(dc_.Get(), OBJ_BITMAP)),
      canvas_(dc_.Get(), kDotsPerInch, kDotsPerInch, ANTIALIASED_QUALITY) {}

PictureSurface::~PictureSurface() { SelectObject(dc_.Get(), formerBitmap_); }

void PictureSurface::PrintText(Point topLeft, std::u16string_view text) {
  if (page_) canvas_.AddText(topLeft, text);
}

void PictureSurface::PaintPicture(const Picture& picture, Point topLeft) {
  if (page_) (void)canvas_.Paint(BitmapOf(picture), topLeft);
}

void PictureSurface::SetPageSize(double widthTwips, double heightTwips) {
  Bitmap24 page(Pixels(widthTwips), Pixels(heightTwips));
  canvas_.ForgetTexts();
  SelectObject(dc_.Get(), page.Handle());
  page_ = std::move(page);
}

double PictureSurface::ScaleWidth() const { return page_ ? page_->Width() * kTwipsPerPixel : 0; }

const Bitmap24* PictureSurface::Page() {
  (void)canvas_.DrawTexts();
  GdiFlush();
  return page_ ? &*page_ : nullptr;
}

PageImage PictureSurface::Image() {
  const Bitmap24* page = Page();
  if (!page) return {};
  return {page->Width(), page->Height(), -static_cast<std::ptrdiff_t>(page->Stride()), page->Row(0)};
}

std::string PictureSurface::BmpBytes() {
  const Bitmap24* page = Page();
  return page ? page->BmpBytes() : std::string();
}

}  // namespace qm::platform::win32
