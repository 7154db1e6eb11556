#include "platform/win32/printer_surface.h"

#include "platform/win32/errors.h"
#include "platform/win32/pictures.h"

namespace qm::platform::win32 {
namespace {

using runtime::ErrorNumber;

constexpr double kTwipsPerInch = 1440;
constexpr wchar_t kDocumentName[] = L"Modelo de impresión";

bool SamePaper(const Paper& a, const Paper& b) {
  return a.code == b.code && a.formName == b.formName && a.widthTwips == b.widthTwips &&
         a.heightTwips == b.heightTwips;
}

OwnedDc DcOf(const std::u16string& device, const DEVMODEW& mode) {
  OwnedDc dc(CreateDCW(L"WINSPOOL", Wide(device), nullptr, &mode));
  if (!dc) Throw(ErrorNumber::PrinterError);
  return dc;
}

}  // namespace

GdiPrinterSurface::GdiPrinterSurface(std::u16string deviceName)
    : deviceName_(std::move(deviceName)),
      settings_(deviceName_),
      dc_(DcOf(deviceName_, settings_.Mode())),
      canvas_(dc_.Get(), GetDeviceCaps(dc_.Get(), LOGPIXELSX), GetDeviceCaps(dc_.Get(), LOGPIXELSY),
              DEFAULT_QUALITY) {}

GdiPrinterSurface::~GdiPrinterSurface() { AbandonJob(); }

void GdiPrinterSurface::StartJob() {
  if (inJob_) return;
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = kDocumentName;
  if (StartDocW(dc_.Get(), &document) <= 0) Throw(ErrorNumber::PrinterError);
  inJob_ = true;
  if (StartPage(dc_.Get()) <= 0) {
    AbandonJob();
    Throw(ErrorNumber::PrinterError);
  }
}

void GdiPrinterSurface::AbandonJob() noexcept {
  if (!inJob_) return;
  AbortDoc(dc_.Get());
  canvas_.ForgetTexts();
  inJob_ = false;
}

void GdiPrinterSurface::PrintText(Point topLeft, std::u16string_view text) {
  StartJob();
  canvas_.AddText(topLeft, text);
}

void GdiPrinterSurface::PaintPicture(const Picture& picture, Point topLeft) {
  const Bitmap24& bitmap = BitmapOf(picture);
  StartJob();
  if (!canvas_.Paint(bitmap, topLeft)) Throw(ErrorNumber::PrinterError);
}

void GdiPrinterSurface::NewPage() {
  if (!inJob_ || !canvas_.DrawTexts() || EndPage(dc_.Get()) <= 0 || StartPage(dc_.Get()) <= 0)
    Throw(ErrorNumber::PrinterError);
}

void GdiPrinterSurface::EndDoc() {
  if (!inJob_) return;  // nothing was printed, so there is no page
  const bool drawn = canvas_.DrawTexts();
  const bool ended = EndPage(dc_.Get()) > 0 && ::EndDoc(dc_.Get()) > 0;
  if (!ended) {
    AbandonJob();
  } else {
    inJob_ = false;
  }
  if (!drawn || !ended) Throw(ErrorNumber::PrinterError);
}

void GdiPrinterSurface::SetPaper(const Paper& paper) {
  if (inJob_) Throw(ErrorNumber::PrinterError);
  if (paperChosen_ && SamePaper(paper, paper_)) return;
  settings_.Choose(paper);
  if (!ResetDCW(dc_.Get(), &settings_.Mode())) Throw(ErrorNumber::PrinterError);
  paper_ = paper;
  paperChosen_ = true;
}

void GdiPrinterSurface::SetPageSize(double widthTwips, double heightTwips) {
  SetPaper({.code = 0, .formName = {}, .widthTwips = widthTwips, .heightTwips = heightTwips});
}

double GdiPrinterSurface::ScaleWidth() const {
  return GetDeviceCaps(dc_.Get(), HORZRES) * kTwipsPerInch / GetDeviceCaps(dc_.Get(), LOGPIXELSX);
}

}  // namespace qm::platform::win32
