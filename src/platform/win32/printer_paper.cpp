#include "platform/win32/printer_paper.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/win32/errors.h"

namespace qm::platform::win32 {
namespace {

using runtime::ErrorNumber;

constexpr double kTenthsPerTwip = 254.0 / 1440;
constexpr double kLongestPaper = 32767;  // the settings keep sizes in 16 bits
constexpr int kTolerance = 10;
constexpr std::size_t kPaperNameLength = 64;
constexpr DWORD kPaperFields = DM_PAPERSIZE | DM_PAPERWIDTH | DM_PAPERLENGTH | DM_FORMNAME;

DEVMODEW* ModeIn(std::vector<std::byte>& bytes) { return reinterpret_cast<DEVMODEW*>(bytes.data()); }

void AskForPortrait(DEVMODEW& mode) {
  mode.dmFields |= DM_ORIENTATION;
  mode.dmOrientation = DMORIENT_PORTRAIT;
}

std::u16string PortOf(HANDLE printer) {
  constexpr DWORD kRoom = 8192;  // enough for most, so that one call does
  DWORD needed = kRoom;
  for (int attempt = 0; attempt < 2; ++attempt) {
    std::vector<std::byte> buffer(needed);
    if (GetPrinterW(printer, 2, reinterpret_cast<BYTE*>(buffer.data()), static_cast<DWORD>(buffer.size()),
                    &needed))
      return Text(reinterpret_cast<const PRINTER_INFO_2W*>(buffer.data())->pPortName);
  }
  return {};
}

// One list of what a driver can do; empty when it does not say.
template <typename Element>
std::vector<Element> Capability(const std::u16string& device, const std::u16string& port, WORD which,
                                std::size_t elementsPerEntry = 1) {
  const int count = DeviceCapabilitiesW(Wide(device), Wide(port), which, nullptr, nullptr);
  if (count <= 0) return {};
  std::vector<Element> list(static_cast<std::size_t>(count) * elementsPerEntry);
  if (DeviceCapabilitiesW(Wide(device), Wide(port), which, reinterpret_cast<wchar_t*>(list.data()), nullptr) <
      count)
    return {};
  return list;
}

}  // namespace

int TenthsOfMillimetre(double twips) {
  return static_cast<int>(std::lround(std::clamp(twips * kTenthsPerTwip, 1.0, kLongestPaper)));
}

std::optional<std::int16_t> CodeOfSize(const Paper& paper, const std::vector<PrinterPaper>& papers) {
  const int width = TenthsOfMillimetre(paper.widthTwips);
  const int height = TenthsOfMillimetre(paper.heightTwips);
  std::optional<std::int16_t> ofThatSize;
  for (const PrinterPaper& candidate : papers) {
    if (std::abs(candidate.width - width) > kTolerance || std::abs(candidate.height - height) > kTolerance)
      continue;
    if (candidate.name == paper.formName) return candidate.code;
    if (!ofThatSize) ofThatSize = candidate.code;
  }
  return ofThatSize;
}

PrintSettings::PrintSettings(const std::u16string& deviceName) : deviceName_(deviceName) {
  if (!OpenPrinterW(WideBuffer(deviceName_), printer_.Receive(), nullptr)) Throw(ErrorNumber::PrinterError);
  usersOwn_ = Completed(nullptr);
  mode_ = usersOwn_;
}

std::vector<std::byte> PrintSettings::Completed(DEVMODEW* changed) const {
  auto* const device = const_cast<wchar_t*>(Wide(deviceName_));
  const LONG size = DocumentPropertiesW(nullptr, printer_.Get(), device, nullptr, nullptr, 0);
  if (size < static_cast<LONG>(sizeof(DEVMODEW))) Throw(ErrorNumber::PrinterError);
  std::vector<std::byte> bytes(static_cast<std::size_t>(size));
  const DWORD mode = changed ? DM_IN_BUFFER | DM_OUT_BUFFER : DM_OUT_BUFFER;
  if (DocumentPropertiesW(nullptr, printer_.Get(), device, ModeIn(bytes), changed, mode) < 0)
    Throw(ErrorNumber::PrinterError);
  return bytes;
}

bool PrintSettings::Accepts(std::int16_t code, bool upright) {
  std::vector<std::byte> changed = mode_;
  DEVMODEW& mode = *ModeIn(changed);
  mode.dmFields = (mode.dmFields & ~kPaperFields) | DM_PAPERSIZE;
  mode.dmPaperSize = code;
  if (upright) AskForPortrait(mode);
  std::vector<std::byte> completed = Completed(&mode);
  if (ModeIn(completed)->dmPaperSize != code) return false;
  mode_ = std::move(completed);
  return true;
}

void PrintSettings::TakeSize(const Paper& paper) {
  std::vector<std::byte> changed = mode_;
  DEVMODEW& mode = *ModeIn(changed);
  mode.dmFields = (mode.dmFields & ~kPaperFields) | DM_PAPERWIDTH | DM_PAPERLENGTH;
  mode.dmPaperSize = 0;
  mode.dmPaperWidth = static_cast<short>(TenthsOfMillimetre(paper.widthTwips));
  mode.dmPaperLength = static_cast<short>(TenthsOfMillimetre(paper.heightTwips));
  AskForPortrait(mode);
  mode_ = Completed(&mode);
}

std::vector<PrinterPaper> PrintSettings::Papers() const {
  const std::u16string port = PortOf(printer_.Get());
  const auto codes = Capability<WORD>(deviceName_, port, DC_PAPERS);
  const auto sizes = Capability<POINT>(deviceName_, port, DC_PAPERSIZE);
  const auto names = Capability<wchar_t>(deviceName_, port, DC_PAPERNAMES, kPaperNameLength);
  const std::size_t count = std::min(codes.size(), sizes.size());
  std::vector<PrinterPaper> papers(count);
  for (std::size_t i = 0; i < count; ++i) {
    papers[i].code = static_cast<std::int16_t>(codes[i]);
    papers[i].width = static_cast<int>(sizes[i].x);
    papers[i].height = static_cast<int>(sizes[i].y);
    if ((i + 1) * kPaperNameLength > names.size()) continue;
    const wchar_t* const name = names.data() + i * kPaperNameLength;
    papers[i].name = Text(name, wcsnlen(name, kPaperNameLength));
  }
  return papers;
}

void PrintSettings::Choose(const Paper& paper) {
  mode_ = usersOwn_;
  if (paper.code > 0 && Accepts(paper.code, false)) return;
  const std::optional<std::int16_t> own = CodeOfSize(paper, Papers());
  if (own && Accepts(*own, true)) return;
  TakeSize(paper);
}

}  // namespace qm::platform::win32
