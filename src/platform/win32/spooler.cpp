#include "platform/win32/spooler.h"

#include <cstddef>

#include "platform/win32/handles.h"

namespace qm::platform::win32 {
namespace {

OwnedPrinter OpenWith(std::u16string device, ACCESS_MASK access) {
  PRINTER_DEFAULTSW defaults{nullptr, nullptr, access};
  OwnedPrinter printer;
  HANDLE handle = nullptr;
  if (OpenPrinterW(WideBuffer(device), &handle, access ? &defaults : nullptr)) printer.Reset(handle);
  return printer;
}

OwnedPrinter OpenToRead(std::u16string_view device) { return OpenWith(std::u16string(device), 0); }

OwnedPrinter OpenToChange(std::u16string_view device) {
  OwnedPrinter printer = OpenWith(std::u16string(device), PRINTER_ALL_ACCESS);
  return printer ? std::move(printer) : OpenToRead(device);
}

SpoolerOutcome Outcome(BOOL succeeded) {
  return {true, succeeded ? 0 : static_cast<std::uint32_t>(GetLastError())};
}

}  // namespace

bool Win32Spooler::SupportsForms() const {
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  return GetVersionExW(&version) && version.dwPlatformId == VER_PLATFORM_WIN32_NT;
}

std::optional<std::vector<std::u16string>> Win32Spooler::FormNames(std::u16string_view device) {
  const OwnedPrinter printer = OpenToRead(device);
  if (!printer) return std::nullopt;
  std::vector<std::byte> buffer;
  DWORD count = 0;
  // Another program may add a form between asking for the size and asking for the list.
  for (int attempt = 0; attempt < 5; ++attempt) {
    DWORD needed = 0;
    if (EnumFormsW(printer.Get(), 1, reinterpret_cast<BYTE*>(buffer.data()),
                   static_cast<DWORD>(buffer.size()), &needed, &count))
      break;
    count = 0;
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) break;
    buffer.resize(needed);
  }
  const auto* forms = reinterpret_cast<const FORM_INFO_1W*>(buffer.data());
  std::vector<std::u16string> names;
  for (DWORD i = 0; i < count; ++i) names.push_back(Text(forms[i].pName));
  return names;
}

SpoolerOutcome Win32Spooler::AddForm(std::u16string_view device, const PaperForm& form) {
  const OwnedPrinter printer = OpenToChange(device);
  if (!printer) return {};
  std::u16string name = form.name;
  FORM_INFO_1W info{};
  info.Flags = FORM_USER;
  info.pName = WideBuffer(name);
  info.Size = {form.width, form.height};
  info.ImageableArea = {0, 0, form.width, form.height};
  return Outcome(AddFormW(printer.Get(), 1, reinterpret_cast<BYTE*>(&info)));
}

SpoolerOutcome Win32Spooler::DeleteForm(std::u16string_view device, std::u16string_view name) {
  const OwnedPrinter printer = OpenToChange(device);
  if (!printer) return {};
  std::u16string form(name);
  return Outcome(DeleteFormW(printer.Get(), WideBuffer(form)));
}

}  // namespace qm::platform::win32
