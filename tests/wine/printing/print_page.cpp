// print_page.cpp: prints one page with plain GDI calls, with nothing of the component in between, to show
// what the prefix's printers do.
//
//   print_page PRINTER PAPER LEFT TOP TEXT     PAPER: a name of the printer's paper list, or "" for its
//   default
//
// LEFT and TOP are twips from the printable area's corner. Prints "width height dpi" of that area (twips and
// dots an inch) and the results of the four calls of a job; exits 0, or 3 when the end of the document
// failed.
#include <windows.h>

#include <winspool.h>

#include <cstdio>
#include <cwchar>
#include <string>
#include <vector>

namespace {

// The code of a named paper, or 0.
short PaperCode(const wchar_t* printer, const std::wstring& name) {
  constexpr int kNameLength = 64;
  const int count = DeviceCapabilitiesW(printer, nullptr, DC_PAPERS, nullptr, nullptr);
  if (count <= 0) return 0;
  std::vector<WORD> codes(static_cast<size_t>(count));
  std::vector<wchar_t> names(static_cast<size_t>(count) * kNameLength);
  DeviceCapabilitiesW(printer, nullptr, DC_PAPERS, reinterpret_cast<wchar_t*>(codes.data()), nullptr);
  DeviceCapabilitiesW(printer, nullptr, DC_PAPERNAMES, names.data(), nullptr);
  for (size_t i = 0; i < codes.size(); ++i) {
    if (name == &names[i * kNameLength]) return static_cast<short>(codes[i]);
  }
  return 0;
}

std::vector<BYTE> DeviceMode(wchar_t* printer, short paper) {
  HANDLE handle = nullptr;
  if (!OpenPrinterW(printer, &handle, nullptr)) return {};
  const LONG size = DocumentPropertiesW(nullptr, handle, printer, nullptr, nullptr, 0);
  std::vector<BYTE> buffer(static_cast<size_t>(size));
  auto* mode = reinterpret_cast<DEVMODEW*>(buffer.data());
  DocumentPropertiesW(nullptr, handle, printer, mode, nullptr, DM_OUT_BUFFER);
  if (paper != 0) {
    mode->dmFields |= DM_PAPERSIZE;
    mode->dmPaperSize = paper;
  }
  ClosePrinter(handle);
  return buffer;
}

int Print(HDC dc, int leftTwips, int topTwips, const wchar_t* text) {
  const int dpi = GetDeviceCaps(dc, LOGPIXELSX);
  std::printf("%d %d %d\n", MulDiv(GetDeviceCaps(dc, HORZRES), 1440, dpi),
              MulDiv(GetDeviceCaps(dc, VERTRES), 1440, dpi), dpi);
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = L"print_page";
  const int startDoc = StartDocW(dc, &document);
  const int startPage = StartPage(dc);
  HFONT font = CreateFontW(-MulDiv(12, dpi, 72), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                           OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"Arial");
  HGDIOBJ previous = SelectObject(dc, font);
  TextOutW(dc, MulDiv(leftTwips, dpi, 1440), MulDiv(topTwips, dpi, 1440), text,
           static_cast<int>(std::wcslen(text)));
  SelectObject(dc, previous);
  DeleteObject(font);
  const int endPage = EndPage(dc);
  const int endDoc = EndDoc(dc);
  std::printf("StartDoc %d StartPage %d EndPage %d EndDoc %d\n", startDoc > 0, startPage > 0, endPage > 0,
              endDoc > 0);
  return endDoc > 0 ? 0 : 3;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 6) {
    std::fprintf(stderr, "usage: print_page PRINTER PAPER LEFT TOP TEXT\n");
    return 2;
  }
  const short paper = *argv[2] ? PaperCode(argv[1], argv[2]) : short{0};
  if (*argv[2] && paper == 0) {
    std::fprintf(stderr, "print_page: the printer has no such paper\n");
    return 1;
  }
  const std::vector<BYTE> mode = DeviceMode(argv[1], paper);
  HDC dc = mode.empty()
               ? nullptr
               : CreateDCW(nullptr, argv[1], nullptr, reinterpret_cast<const DEVMODEW*>(mode.data()));
  if (!dc) {
    std::fprintf(stderr, "print_page: no such printer\n");
    return 1;
  }
  const int result = Print(dc, _wtoi(argv[3]), _wtoi(argv[4]), argv[5]);
  DeleteDC(dc);
  return result;
}
