// print_scene edges PRINTER WIDTH HEIGHT    prints the scene of 60 fields through the surface on a paper of
//                                           that size in twips, and writes where each text must stand, from
//                                           the paper's own corner: text, "left", "right" or "centre", that
//                                           edge, and the top, in twips, separated by tabs
// print_scene surface PRINTER               prints overlapping texts and a picture through the surface
// print_scene plain PRINTER                 the same by plain calls of Windows in the order of the document
#include <cstdio>
#include <string>

#include "bench/raw_scene.h"
#include "bench/scene.h"
#include "platform/win32/pictures.h"
#include "platform/win32/printer_paper.h"
#include "platform/win32/printers.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace {

using namespace qm;
using platform::win32::Bitmap24;

constexpr double kOverlappingRows = 90;
constexpr std::size_t kFieldsBeforePicture = 30;
constexpr platform::Point kPictureAt{3000, 300};

std::vector<bench::SceneField> OverlappingScene() {
  std::vector<bench::SceneField> fields = bench::Scene(kOverlappingRows);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    fields[i].color = static_cast<std::int32_t>(i * 2654435 & 0xFFFFFF);
    fields[i].font.sizePoints *= 2;
  }
  return fields;
}

Bitmap24 Chequers() {
  Bitmap24 bitmap(120, 40);
  const platform::win32::BitmapDc dc(bitmap.Handle());
  for (int x = 0; x < 120; x += 20) PatBlt(dc.Get(), x, x / 20 % 2 * 20, 10, 20, BLACKNESS);
  return bitmap;
}

std::vector<bench::SceneField> Part(const std::vector<bench::SceneField>& fields, bool first) {
  const auto middle = fields.begin() + kFieldsBeforePicture;
  return first ? std::vector(fields.begin(), middle) : std::vector(middle, fields.end());
}

void PrintThroughSurface(const std::u16string& device) {
  const std::vector<bench::SceneField> fields = OverlappingScene();
  const auto printer = platform::win32::Win32Printers().Open(device);
  bench::Draw(*printer, Part(fields, true));
  printer->PaintPicture(platform::win32::BitmapPicture(Chequers()), kPictureAt);
  bench::Draw(*printer, Part(fields, false));
  printer->EndDoc();
}

void PrintByPlainCalls(const std::u16string& device) {
  const std::vector<bench::SceneField> fields = OverlappingScene();
  const platform::win32::OwnedDc dc(CreateDCW(L"WINSPOOL", platform::win32::Wide(device), nullptr, nullptr));
  const int dotsPerInch = GetDeviceCaps(dc.Get(), LOGPIXELSX);
  const auto units = [=](double twips) { return static_cast<int>(std::lround(twips * dotsPerInch / 1440)); };
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = L"plain";
  StartDocW(dc.Get(), &document);
  StartPage(dc.Get());
  bench::RawScene(Part(fields, true), dotsPerInch, DEFAULT_QUALITY).Draw(dc.Get());
  const Bitmap24 bitmap = Chequers();
  (void)bitmap.PaintOn(dc.Get(), units(kPictureAt.x), units(kPictureAt.y), units(bitmap.Width() * 15.0),
                       units(bitmap.Height() * 15.0));
  bench::RawScene(Part(fields, false), dotsPerInch, DEFAULT_QUALITY).Draw(dc.Get());
  EndPage(dc.Get());
  EndDoc(dc.Get());
}

void PrintForEdges(const std::u16string& device, double width, double height) {
  const std::vector<bench::SceneField> fields = bench::Scene();
  const auto printer = platform::win32::Win32Printers().Open(device);
  printer->SetPaper({0, u"PS", width, height});
  bench::Draw(*printer, fields);
  printer->EndDoc();

  platform::win32::PrintSettings settings(device);
  settings.Choose({0, u"PS", width, height});
  const platform::win32::OwnedDc dc(
      CreateDCW(L"WINSPOOL", platform::win32::Wide(device), nullptr, &settings.Mode()));
  const double marginX =
      GetDeviceCaps(dc.Get(), PHYSICALOFFSETX) * 1440.0 / GetDeviceCaps(dc.Get(), LOGPIXELSX);
  const double marginY =
      GetDeviceCaps(dc.Get(), PHYSICALOFFSETY) * 1440.0 / GetDeviceCaps(dc.Get(), LOGPIXELSY);
  for (const bench::SceneField& field : fields) {
    const bool right = field.alignment == bench::Alignment::Right;
    const bool centre = field.alignment == bench::Alignment::Centre;
    const double edge = field.left + (right ? field.width : centre ? field.width / 2 : 0);
    std::printf("%s\t%s\t%.1f\t%.1f\n", runtime::ToUtf8(field.text).c_str(),
                right    ? "right"
                : centre ? "centre"
                         : "left",
                marginX + edge, marginY + field.top);
  }
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  const std::wstring mode = argc > 2 ? argv[1] : L"";
  try {
    if (mode == L"edges" && argc == 5) {
      PrintForEdges(platform::win32::Text(argv[2]), std::stod(argv[3]), std::stod(argv[4]));
    } else if (mode == L"surface") {
      PrintThroughSurface(platform::win32::Text(argv[2]));
    } else if (mode == L"plain") {
      PrintByPlainCalls(platform::win32::Text(argv[2]));
    } else {
      std::fprintf(stderr,
                   "usage: print_scene edges PRINTER WIDTH HEIGHT | surface PRINTER | plain PRINTER\n");
      return 2;
    }
  } catch (const runtime::RuntimeError& error) {
    std::fprintf(stderr, "print_scene: error %d\n", error.number());
    return 1;
  }
  return 0;
}
