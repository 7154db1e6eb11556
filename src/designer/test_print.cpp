#include "designer/test_print.h"

#include <algorithm>
#include <memory>

#include "print/printer_page.h"
#include "print/text/text_helpers.h"
#include "runtime/numbers.h"

namespace qm::designer {
namespace {

constexpr double kTwipsPerPixel = 15;

std::unique_ptr<platform::PrinterSurface> OpenPrinter(const Layout& layout, platform::Printers& printers) {
  const auto names = printers.DeviceNames();
  const bool installed = std::find(names.begin(), names.end(), layout.printer) != names.end();
  return installed ? printers.Open(layout.printer) : printers.OpenDefault();
}

// A side without extent keeps the picture's own.
int Pixels(float twips, int ownPixels) {
  const int pixels = runtime::CLng(static_cast<double>(twips) / kTwipsPerPixel);
  return pixels > 0 ? pixels : ownPixels;
}

void PaintInto(const Box& box, const platform::Picture& picture, platform::Surface& surface,
               platform::Pictures& pictures) {
  const auto scaled = pictures.Scaled(picture, Pixels(box.width, picture.WidthPixels()),
                                      Pixels(box.height, picture.HeightPixels()));
  surface.PaintPicture(*scaled, {box.left, box.top});
}

// At its Left and Top, wherever the text would stand within its box. Fonts with letters in the places of the
// DOS code page get them there, as on every page.
void PrintCaption(const Field& field, platform::Surface& surface) {
  if (field.caption.empty()) return;
  surface.SetFont({.name = field.font.name,
                   .sizePoints = field.font.size,
                   .bold = field.font.bold,
                   .italic = field.font.italic,
                   .underline = field.font.underline,
                   .strikethru = field.font.strikethru});
  surface.SetForeColor(field.font.foreColor);
  surface.PrintText({field.box.left, field.box.top},
                    text::HasDigit(field.font.name) ? text::ToOemLetters(field.caption) : field.caption);
}

}  // namespace

void PrintTest(const Layout& layout, const print::Environment& environment) {
  const auto printer = OpenPrinter(layout, environment.printers);
  print::BeginJob(*printer, layout.canvasWidth, layout.canvasHeight, environment);
  if (layout.background)
    PaintInto({0, 0, layout.canvasWidth, layout.canvasHeight}, *layout.background, *printer,
              environment.pictures);
  if (layout.logo && layout.logo->picture)
    PaintInto(layout.logo->box, *layout.logo->picture, *printer, environment.pictures);
  for (const FieldPointer& field : layout.men)
    if (field) PrintCaption(*field, *printer);
  printer->EndDoc();
}

}  // namespace qm::designer
