#include "print/printer_page.h"

#include "print/paper_forms.h"

namespace qm::print {

namespace {

constexpr double kTwipsPerCm = 567;
constexpr double kExtraHeight = 10;  // the paper is that much longer than the page, and no wider, on purpose

void SetPaper(platform::PrinterSurface& printer, double pageWidth, double pageHeight,
              const Environment& environment) {
  if (!environment.spooler.SupportsForms()) return printer.SetPageSize(pageWidth, pageHeight);

  platform::Paper paper{.code = 0,
                        .formName = std::u16string(kFormName),
                        .widthTwips = pageWidth,
                        .heightTwips = pageHeight + kExtraHeight};
  PaperForms forms(environment.paperForms, environment.spooler, environment.prompts);
  paper.code = forms.PaperCodeForSize(printer.DeviceName(), paper.widthTwips / kTwipsPerCm,
                                      paper.heightTwips / kTwipsPerCm, kFormName);
  printer.SetPaper(paper);
}

}  // namespace

std::unique_ptr<platform::PrinterSurface> OpenPrinter(const PageSettings& settings,
                                                      const Environment& environment) {
  return settings.printer ? environment.printers.Open(*settings.printer) : environment.printers.OpenDefault();
}

void BeginJob(platform::PrinterSurface& printer, double pageWidth, double pageHeight,
              const Environment& environment) {
  SetPaper(printer, pageWidth, pageHeight, environment);
  printer.PrintText({0, 0}, u" ");  // starts the job: a model without fields gives a page too
}

std::unique_ptr<platform::Picture> LoadBackground(const PageSettings& settings,
                                                  const Environment& environment) {
  return settings.background ? environment.pictures.Load(*settings.background) : nullptr;
}

void PaintBackground(platform::Surface& surface, const platform::Picture* background) {
  if (background) surface.PaintPicture(*background, {0, 0});
}

}  // namespace qm::print
