#include "platform/win32/paths.h"

#include "platform/win32/wide.h"

namespace qm::platform::win32 {
namespace {

constexpr std::size_t kLongestPlainPath = MAX_PATH - 13;

}  // namespace

std::u16string AbsolutePath(std::u16string_view path) {
  std::u16string given(path);
  std::u16string full(given.size() + MAX_PATH, u'\0');
  DWORD length = GetFullPathNameW(Wide(given), static_cast<DWORD>(full.size()), WideBuffer(full), nullptr);
  if (length > full.size()) {
    full.resize(length);
    length = GetFullPathNameW(Wide(given), length, WideBuffer(full), nullptr);
  }
  if (length == 0 || length > full.size()) return given;
  full.resize(length);
  return full;
}

std::u16string SystemPath(std::u16string_view path) {
  if (path.size() <= kLongestPlainPath || path.starts_with(u"\\\\?\\")) return std::u16string(path);
  const std::u16string full = AbsolutePath(path);
  if (full.starts_with(u"\\\\")) return u"\\\\?\\UNC\\" + full.substr(2);
  return u"\\\\?\\" + full;
}

}  // namespace qm::platform::win32
