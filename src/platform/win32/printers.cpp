#include "platform/win32/printers.h"

#include <cstddef>

#include "platform/win32/errors.h"
#include "platform/win32/handles.h"
#include "platform/win32/printer_surface.h"

namespace qm::platform::win32 {
namespace {

// The list can grow between asking for its size and asking for the list.
std::vector<std::byte> PrinterList(DWORD& count) {
  constexpr DWORD kWhich = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  std::vector<std::byte> buffer;
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
  // A list asked for beforehand makes Wine read its printers; on Windows it costs next to nothing.
  DWORD count = 0;
  (void)PrinterList(count);
  return std::make_unique<GdiPrinterSurface>(std::u16string(deviceName));
}

std::unique_ptr<PrinterSurface> Win32Printers::OpenDefault() {
  DWORD length = 0;
  GetDefaultPrinterW(nullptr, &length);
  std::u16string name(length, u'\0');
  if (length < 2 || !GetDefaultPrinterW(WideBuffer(name), &length)) Throw(runtime::ErrorNumber::PrinterError);
  return Open(name.substr(0, name.find(u'\0')));
}

}  // namespace qm::platform::win32
