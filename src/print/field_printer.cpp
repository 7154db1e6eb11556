#include "print/field_printer.h"

#include "data/value_lookup.h"
#include "runtime/code_page.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::print {

namespace {

constexpr std::u16string_view kScratchPicture = u"fotosocio.jpg";
constexpr double kTwipsPerPixel = 15;
constexpr double kLineGap = 10;
// A line that ends exactly at the bottom must not fall by the last bit of a printer's fractions of twips.
constexpr double kRoundingTwips = 1e-6;

// A side of a picture's box in pixels; a box without extent leaves the picture's own.
int BoxPixels(std::int16_t twips, int ownPixels) {
  const std::int32_t pixels = runtime::CLng(twips / kTwipsPerPixel);
  return pixels > 0 ? pixels : ownPixels;
}

}  // namespace

FieldPrinter::FieldPrinter(platform::Surface& surface, platform::Files& files, platform::Pictures& pictures)
    : surface_(surface),
      files_(files),
      pictures_(pictures),
      font_(surface.CurrentFont()),
      oemLetters_(text::HasDigit(font_.name)) {}

void FieldPrinter::Print(const FieldState& field, platform::Point topLeft, std::u16string_view value,
                         std::int16_t kind) {
  ApplyFont(field);
  if (value.empty()) return;
  switch (kind) {
    case data::kPlainText:
    case data::kLiteralText:
      return PrintWrapped(field, topLeft, value);
    case data::kPictureData:
      return PrintPicture(field, topLeft, value);
    default:
      return PrintLine(field, topLeft, value);
  }
}

void FieldPrinter::ApplyFont(const FieldState& field) {
  if (field.font != font_) {
    surface_.SetFont(field.font);
    font_ = field.font;
    oemLetters_ = text::HasDigit(font_.name);
  }
  if (field.foreColor && field.foreColor != foreColor_) {
    surface_.SetForeColor(*field.foreColor);
    foreColor_ = field.foreColor;
  }
}

void FieldPrinter::PrintLine(const FieldState& field, platform::Point at, std::u16string_view value) {
  PrintAligned(field, at, text::FitLine(surface_, value, field.width, at.x, false));
}

void FieldPrinter::PrintWrapped(const FieldState& field, platform::Point at, std::u16string_view value) {
  const double bottom = at.y + field.height;
  bool first = true;
  for (text::Line& line : text::SplitLines(surface_, value, field.width)) {
    if (!first && at.y + line.height > bottom + kRoundingTwips) break;
    first = false;
    const double height = line.height;
    PrintAligned(field, at, std::move(line));
    at.y += height + kLineGap;
  }
}

void FieldPrinter::PrintPicture(const FieldState& field, platform::Point at, std::u16string_view data) {
  std::u16string path = files_.ScratchFolder();
  path += kScratchPicture;
  const std::string bytes = runtime::ToBytes(data);
  files_.Replace(path, bytes);
  const auto picture = pictures_.Decode(bytes);  // by now the file may be another host's
  const auto scaled = pictures_.Scaled(*picture, BoxPixels(field.width, picture->WidthPixels()),
                                       BoxPixels(field.height, picture->HeightPixels()));
  surface_.PaintPicture(*pictures_.ThroughClipboard(*scaled), at);  // and it stays there afterwards
}

// The line's width holds for its text as it was fitted; it is measured again only where the text changes
// here.
void FieldPrinter::PrintAligned(const FieldState& field, platform::Point at, text::Line line) {
  bool measured = true;
  const auto become = [&](std::u16string_view changed) {
    if (changed == line.text) return;
    line.text = std::u16string(changed);
    measured = false;
  };
  if (oemLetters_) become(text::ToOemLetters(line.text));
  if (field.alignment == kAlignCentre) become(runtime::Trim(line.text));
  if (line.text.empty()) return;

  if (field.alignment == kAlignRight || field.alignment == kAlignCentre) {
    const double width = measured ? line.width : surface_.Measure(line.text).Width();
    const double room = field.width - width;
    at.x += field.alignment == kAlignRight ? room : room / 2;
  }
  surface_.PrintText(at, line.text);
}

}  // namespace qm::print
