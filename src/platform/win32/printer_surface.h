#pragma once
// A Windows printer as a drawing surface. Its origin is the corner of what the printer can print on.
// The texts of a page go to the printer when the page ends, grouped by font; a failure that they bring out
// shows then, or at the next picture.

#include "platform/printers.h"
#include "platform/win32/canvas.h"
#include "platform/win32/printer_paper.h"

namespace qm::platform::win32 {

class GdiPrinterSurface : public PrinterSurface {
 public:
  explicit GdiPrinterSurface(std::u16string deviceName);
  GdiPrinterSurface(const GdiPrinterSurface&) = delete;
  GdiPrinterSurface& operator=(const GdiPrinterSurface&) = delete;
  ~GdiPrinterSurface() override;

  [[nodiscard]] Font CurrentFont() const override { return canvas_.CurrentFont(); }
  void SetFont(const Font& font) override { canvas_.SetFont(font); }
  void SetForeColor(std::int32_t color) override { canvas_.SetForeColor(color); }
  [[nodiscard]] TextExtent Measure(std::u16string_view text) override { return canvas_.Measure(text); }
  void PrintText(Point topLeft, std::u16string_view text) override;
  void PaintPicture(const Picture& picture, Point topLeft) override;
  void SetPageSize(double widthTwips, double heightTwips) override;  // a paper of that size; between jobs
  [[nodiscard]] double ScaleWidth() const override;

  [[nodiscard]] std::u16string DeviceName() const override { return deviceName_; }
  void SetPaper(const Paper& paper) override;
  void NewPage() override;
  void EndDoc() override;

 private:
  void StartJob();  // unless there is one
  void AbandonJob() noexcept;

  std::u16string deviceName_;
  PrintSettings settings_;
  OwnedDc dc_;
  Canvas canvas_;
  Paper paper_;
  bool paperChosen_ = false;
  bool inJob_ = false;
};

}  // namespace qm::platform::win32
