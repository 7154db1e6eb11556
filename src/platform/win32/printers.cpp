#include "platform/win32/printers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "platform/win32/errors.h"
#include "platform/win32/handles.h"
#include "platform/win32/printer_paper.h"
#include "platform/win32/printer_surface.h"

namespace qm::platform::win32 {
namespace {

// Asked for with room enough for most machines; the list can grow between two calls.
std::vector<std::byte> PrinterList(DWORD& count) {
  constexpr DWORD kWhich = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  constexpr std::size_t kRoom = 8192;
  std::vector<std::byte> buffer(kRoom);
  for (int attempt = 0; attempt < 5; ++attempt) {
    DWORD needed = 0;
    count = 0;
    if (EnumPrintersW(kWhich, nullptr, 4, reinterpret_cast<BYTE*>(buffer.data()),
                      static_cast<DWORD>(buffer.size()), &needed, &count))
      return buffer;
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) break;
    buffer.resize(needed);
  }
  count = 0;
  return {};
}

// What can be asked of a printer without printing.
OwnedDc InformationOf(const std::u16string& device, const DEVMODEW* mode) {
  OwnedDc dc(CreateICW(L"WINSPOOL", Wide(device), nullptr, mode));
  if (!dc) Throw(runtime::ErrorNumber::PrinterError);
  return dc;
}

int CALLBACK CollectFamily(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM list) noexcept {
  try {
    const std::u16string name = Text(font->lfFaceName);
    if (!name.starts_with(u'@')) reinterpret_cast<std::vector<std::u16string>*>(list)->push_back(name);
    return TRUE;
  } catch (...) {
    return FALSE;
  }
}

PageSize WholePage(HDC dc) {
  constexpr double kTwipsPerInch = 1440;
  return {GetDeviceCaps(dc, PHYSICALWIDTH) * kTwipsPerInch / GetDeviceCaps(dc, LOGPIXELSX),
          GetDeviceCaps(dc, PHYSICALHEIGHT) * kTwipsPerInch / GetDeviceCaps(dc, LOGPIXELSY)};
}

bool IsAbout(double got, double wanted) {
  constexpr double kMillimetre = 1440 / 25.4;
  return std::abs(got - wanted) <= kMillimetre;
}

}  // namespace

std::vector<std::u16string> Win32Printers::DeviceNames() {
  DWORD count = 0;
  const std::vector<std::byte> buffer = PrinterList(count);
  const auto* printers = reinterpret_cast<const PRINTER_INFO_4W*>(buffer.data());
  std::vector<std::u16string> names;
  for (DWORD i = 0; i < count; ++i) names.push_back(Text(printers[i].pPrinterName));
  return names;
}

std::unique_ptr<PrinterSurface> Win32Printers::Open(std::u16string_view deviceName) {
  // A list asked for beforehand, once in a process, makes Wine read its printers.
  [[maybe_unused]] static const std::vector<std::u16string> kRead = DeviceNames();
  return std::make_unique<GdiPrinterSurface>(std::u16string(deviceName));
}

std::unique_ptr<PrinterSurface> Win32Printers::OpenDefault() {
  DWORD length = 0;
  GetDefaultPrinterW(nullptr, &length);
  std::u16string name(length, u'\0');
  if (length < 2 || !GetDefaultPrinterW(WideBuffer(name), &length)) Throw(runtime::ErrorNumber::PrinterError);
  return Open(name.substr(0, name.find(u'\0')));
}

std::vector<std::u16string> Win32Printers::FontNames(std::u16string_view deviceName) {
  const OwnedDc dc = InformationOf(std::u16string(deviceName), nullptr);
  std::vector<std::u16string> names;
  EnumFontFamiliesW(dc.Get(), nullptr, CollectFamily, reinterpret_cast<LPARAM>(&names));
  std::sort(names.begin(), names.end(), [](const std::u16string& a, const std::u16string& b) {
    return CompareStringOrdinal(Wide(a), -1, Wide(b), -1, TRUE) == CSTR_LESS_THAN;
  });
  names.erase(std::unique(names.begin(), names.end()), names.end());  // some are told once for every style
  wchar_t first[LF_FACESIZE] = L"";
  GetTextFaceW(dc.Get(), LF_FACESIZE, first);
  names.insert(names.begin(), Text(first));
  return names;
}

std::vector<std::int16_t> Win32Printers::PaperCodes(std::u16string_view deviceName) {
  std::vector<std::int16_t> codes;
  for (const PrinterPaper& paper : PrintSettings(std::u16string(deviceName)).Papers())
    codes.push_back(paper.code);
  return codes;
}

// A printer that takes no free sizes keeps its own paper, which shows in the page.
std::optional<PageSize> Win32Printers::PageOf(std::u16string_view deviceName, const Paper& paper) {
  const std::u16string device(deviceName);
  PrintSettings settings(device);
  if (paper.code > 0) {
    if (!settings.Take(paper.code)) return std::nullopt;
  } else {
    settings.Choose(paper);
  }
  const PageSize page = WholePage(InformationOf(device, &settings.Mode()).Get());
  if (paper.code > 0) return page;
  const bool taken =
      IsAbout(page.widthTwips, paper.widthTwips) && IsAbout(page.heightTwips, paper.heightTwips);
  return taken ? std::optional(page) : std::nullopt;
}

}  // namespace qm::platform::win32
