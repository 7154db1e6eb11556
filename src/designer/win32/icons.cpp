#include "designer/win32/icons.h"

#include <vector>

#include "designer/win32/palette.h"

namespace qm::designer::win32 {
namespace {

// Shapes on a grid of 20 by 20, one over the other; the first colour is the lines', the second the fill's.
struct Shape {
  double left, top, right, bottom;
  bool paper;  // white, otherwise in the icon's own colour
};

// A diskette, a printer with a sheet above and one below, a sheet with its measures.
constexpr Shape kDiskette[] = {{2, 2, 18, 18, false},
                               {3.25, 3.25, 16.75, 16.75, true},
                               {6, 2, 14, 8, false},
                               {7.25, 3.25, 12.75, 6.75, true},
                               {10.5, 3.5, 12, 6.5, false},
                               {5, 11, 15, 18, false},
                               {6.25, 12.25, 13.75, 16.75, true},
                               {7.5, 13.5, 12.5, 14.5, false},
                               {7.5, 15.25, 12.5, 16.25, false}};
constexpr Shape kPrinter[] = {{5, 2, 15, 9, false},
                              {6.25, 3.25, 13.75, 8, true},
                              {2, 7, 18, 15, false},
                              {3.25, 8.25, 16.75, 13.75, true},
                              {13.5, 9.5, 15.25, 11, false},
                              {5, 11.5, 15, 18.5, false},
                              {6.25, 12.75, 13.75, 17.25, true},
                              {7.5, 14, 12.5, 15, false}};
constexpr Shape kPaper[] = {{5, 2, 18, 18, false},      {6.25, 3.25, 16.75, 16.75, true},
                            {8.5, 6, 14.5, 7, false},   {8.5, 9, 14.5, 10, false},
                            {8.5, 12, 12.5, 13, false}, {1.5, 2, 3, 18, false},
                            {1, 2, 3.5, 3, false},      {1, 17, 3.5, 18, false}};
constexpr Shape kDots[] = {{5, 11, 7, 13, false}, {9, 11, 11, 13, false}, {13, 11, 15, 13, false}};

constexpr int kGrid = 20;
constexpr int kFiner = 4;  // samples a pixel, in either direction

std::vector<Shape> ShapesOf(Icon icon) {
  switch (icon) {
    case Icon::Grabar:
      return {std::begin(kDiskette), std::end(kDiskette)};
    case Icon::ImprimirPrueba:
      return {std::begin(kPrinter), std::end(kPrinter)};
    case Icon::Puntos:
      return {std::begin(kDots), std::end(kDots)};
    case Icon::Papel:
      break;
  }
  return {std::begin(kPaper), std::end(kPaper)};
}

enum class Sample { Clear, Line, Paper };

Sample SampleAt(const std::vector<Shape>& shapes, double x, double y) {
  Sample sample = Sample::Clear;
  for (const Shape& shape : shapes)
    if (x >= shape.left && x < shape.right && y >= shape.top && y < shape.bottom)
      sample = shape.paper ? Sample::Paper : Sample::Line;
  return sample;
}

Bitmap32 Drawn(Icon icon, int side, COLORREF color) {
  const std::vector<Shape> shapes = ShapesOf(icon);
  Bitmap32 bitmap(side, side);
  constexpr unsigned kSamples = kFiner * kFiner;
  const double unit = static_cast<double>(kGrid) / (side * kFiner);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      unsigned line = 0;
      unsigned paper = 0;
      for (int sample = 0; sample < static_cast<int>(kSamples); ++sample) {
        const int column = x * kFiner + sample % kFiner;
        const int row = y * kFiner + sample / kFiner;
        const Sample found = SampleAt(shapes, (column + 0.5) * unit, (row + 0.5) * unit);
        line += found == Sample::Line;
        paper += found == Sample::Paper;
      }
      const auto blend = [&](unsigned of) { return (of * line + 0xFF * paper) / kSamples; };
      bitmap.Row(y)[x] = 0xFF * (line + paper) / kSamples << 24 | blend(GetRValue(color)) << 16 |
                         blend(GetGValue(color)) << 8 | blend(GetBValue(color));
    }
  }
  return bitmap;
}

OwnedIcon IconOf(const Bitmap32& drawing, int side) {
  const std::vector<std::uint8_t> nothing(static_cast<std::size_t>((side + 15) / 16 * 2 * side));
  const platform::win32::OwnedBitmap mask(CreateBitmap(side, side, 1, 1, nothing.data()));
  ICONINFO description{};
  description.fIcon = TRUE;
  description.hbmMask = mask.Get();
  description.hbmColor = drawing.Handle();
  return OwnedIcon(CreateIconIndirect(&description));
}

}  // namespace

Bitmap32 NewIcon(Icon icon, int side) { return Drawn(icon, side, kIcon); }

OwnedIcon NewWindowIcon(int side) { return IconOf(NewIcon(Icon::ImprimirPrueba, side), side); }

OwnedIcon NewDotsIcon(int side) {
  return IconOf(Drawn(Icon::Puntos, side, GetSysColor(COLOR_BTNTEXT)), side);
}

}  // namespace qm::designer::win32
