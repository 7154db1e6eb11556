#include "platform/win32/settings.h"

#include "platform/win32/errors.h"
#include "platform/win32/handles.h"

namespace qm::platform::win32 {
namespace {

constexpr std::u16string_view kApplicationKey = u"Software\\TALVO";
constexpr std::size_t kUsualLength = 64;  // longer texts are read at the second attempt

struct RegistryKeyRule : NullHandle<HKEY> {
  static void Close(HKEY key) { RegCloseKey(key); }
};
using OwnedKey = Owned<RegistryKeyRule>;

std::u16string PathOf(std::u16string_view section) {
  std::u16string path(kApplicationKey);
  if (!section.empty()) path.append(u"\\").append(section);
  return path;
}

}  // namespace

std::u16string Win32Settings::Read(std::u16string_view section, std::u16string_view key,
                                   std::u16string_view defaultText) {
  const std::u16string path = PathOf(section);
  const std::u16string name(key);
  std::u16string text(kUsualLength, u'\0');
  LSTATUS status = ERROR_SUCCESS;
  for (;;) {
    auto bytes = static_cast<DWORD>(text.size() * sizeof(char16_t));
    status =
        RegGetValueW(HKEY_CURRENT_USER, Wide(path), Wide(name), RRF_RT_REG_SZ, nullptr, text.data(), &bytes);
    if (status != ERROR_MORE_DATA) break;
    text.resize(bytes / sizeof(char16_t) + 1);
  }
  if (status != ERROR_SUCCESS) return std::u16string(defaultText);
  return Text(Wide(text));  // up to its final zero
}

void Win32Settings::Save(std::u16string_view section, std::u16string_view key, std::u16string_view text) {
  OwnedKey application;
  LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, Wide(PathOf(section)), 0, nullptr, 0, KEY_SET_VALUE,
                                   nullptr, application.Receive(), nullptr);
  if (status == ERROR_SUCCESS) {
    const std::u16string value(text);
    status = RegSetValueExW(application.Get(), Wide(std::u16string(key)), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(value.c_str()),
                            static_cast<DWORD>((value.size() + 1) * sizeof(char16_t)));
  }
  if (status != ERROR_SUCCESS) ThrowFileError(static_cast<DWORD>(status));
}

}  // namespace qm::platform::win32
