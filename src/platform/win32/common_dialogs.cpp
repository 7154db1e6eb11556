#include "platform/win32/common_dialogs.h"

#include <algorithm>

#include "platform/win32/other_windows.h"
#include "platform/win32/visual_styles.h"
#include "platform/win32/wide.h"

#include <commdlg.h>

namespace qm::platform::win32 {
namespace {

constexpr std::size_t kLongestPath = 32767;
constexpr DWORD kInvalidFileName = 0x3002;  // FNERR_INVALIDFILENAME
constexpr std::uint32_t kSystemColorBit = 0x80000000;

// The process's current folder, put back at the end of a scope.
class KeptCurrentFolder {
 public:
  KeptCurrentFolder() : folder_(GetCurrentDirectoryW(0, nullptr), u'\0') {
    folder_.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder_.size()), WideBuffer(folder_)));
  }
  KeptCurrentFolder(const KeptCurrentFolder&) = delete;
  KeptCurrentFolder& operator=(const KeptCurrentFolder&) = delete;
  ~KeptCurrentFolder() { SetCurrentDirectoryW(Wide(folder_)); }

 private:
  std::u16string folder_;
};

using FileDialog = BOOL(WINAPI*)(OPENFILENAMEW*);

std::optional<std::u16string> Show(FileDialog dialog, OPENFILENAMEW& description,
                                   std::u16string_view initial) {
  const KeptCurrentFolder folder;
  const VisualStyles styles;
  const OtherWindows others(GetActiveWindow());
  std::u16string path(kLongestPath, u'\0');
  initial.copy(path.data(), kLongestPath - 1);
  description.lStructSize = sizeof description;
  description.hwndOwner = GetActiveWindow();
  description.lpstrFile = WideBuffer(path);
  description.nMaxFile = static_cast<DWORD>(path.size());
  description.Flags |= OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  bool chosen = dialog(&description) != FALSE;
  if (!chosen &&
      CommDlgExtendedError() == kInvalidFileName) {  // the name offered; better none than no dialog
    path[0] = u'\0';
    chosen = dialog(&description) != FALSE;
  }
  if (!chosen) return std::nullopt;
  path.resize(path.find(u'\0'));
  return path;
}

}  // namespace

std::optional<std::u16string> ShowOpenFile(std::u16string_view filter, std::u16string_view initialFolder) {
  std::u16string pairs(filter);
  std::replace(pairs.begin(), pairs.end(), u'|', u'\0');
  pairs.append(2, u'\0');
  const std::u16string folder(initialFolder);
  OPENFILENAMEW description{};
  description.lpstrFilter = Wide(pairs);
  description.lpstrInitialDir = Wide(folder);
  description.Flags = OFN_FILEMUSTEXIST;
  return Show(GetOpenFileNameW, description, {});
}

std::optional<std::u16string> ShowSaveFile(std::u16string_view fileName) {
  const std::size_t dot = fileName.find_last_of(u"\\/.");
  const bool hasExtension = dot != std::u16string_view::npos && fileName[dot] == u'.';
  const std::u16string extension(hasExtension ? fileName.substr(dot + 1) : std::u16string_view());
  OPENFILENAMEW description{};
  description.lpstrDefExt = hasExtension ? Wide(extension) : nullptr;
  description.Flags = OFN_OVERWRITEPROMPT;
  return Show(GetSaveFileNameW, description, fileName);
}

std::optional<std::int32_t> ShowColor(std::int32_t initial) {
  const auto bits = static_cast<std::uint32_t>(initial);
  COLORREF custom[16];
  std::fill(std::begin(custom), std::end(custom), RGB(255, 255, 255));
  CHOOSECOLORW description{};
  description.lStructSize = sizeof description;
  description.hwndOwner = GetActiveWindow();
  description.rgbResult =
      (bits & kSystemColorBit) != 0 ? GetSysColor(static_cast<int>(bits & 0xFF)) : bits & 0xFFFFFF;
  description.lpCustColors = custom;
  description.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
  const VisualStyles styles;
  const OtherWindows others(GetActiveWindow());
  if (!ChooseColorW(&description)) return std::nullopt;
  return static_cast<std::int32_t>(description.rgbResult);
}

}  // namespace qm::platform::win32
