#include "mail/names.h"

#include <algorithm>
#include <array>

#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace qm::mail {
namespace {

constexpr int kBadFileName = 52;
constexpr std::string_view kForbidden = "\"*/:<>?\\|";

constexpr std::array<std::u16string_view, 7> kDevices{u"CON",    u"PRN",     u"AUX",   u"NUL",
                                                      u"CONIN$", u"CONOUT$", u"CLOCK$"};

// COM1 to COM9 and LPT1 to LPT9, with superscript digits as well.
bool IsPort(std::u16string_view name) {
  return name.size() == 4 && (name.starts_with(u"COM") || name.starts_with(u"LPT")) &&
         std::u16string_view(u"0123456789¹²³").find(name[3]) != std::u16string_view::npos;
}

// A device is meant whatever extension, colon or blanks follow its name.
bool IsDevice(std::u16string_view bareName) {
  const std::u16string_view stem = bareName.substr(0, bareName.find_first_of(u".:"));
  const std::u16string name = runtime::UCase(runtime::Trim(stem));
  return IsPort(name) || std::ranges::find(kDevices, name) != kDevices.end();
}

bool IsSeparator(char16_t letter) { return letter == u'\\' || letter == u'/'; }

// "\\.\" and "\\?\" lead to devices, but for "\\?\" before a drive or a server.
bool IsBeyondFiles(std::u16string_view path) {
  if (path.size() < 4 || !IsSeparator(path[0]) || !IsSeparator(path[1]) || !IsSeparator(path[3]))
    return false;
  if (path[2] == u'.') return true;
  const std::u16string_view rest = path.substr(4);
  const bool hasDrive = rest.size() > 2 && rest[1] == u':' && IsSeparator(rest[2]);
  return path[2] == u'?' && !hasDrive && !runtime::EqualFolded(rest.substr(0, 4), u"UNC\\");
}

}  // namespace

std::u16string_view BareName(std::u16string_view path) { return path.substr(FolderOf(path).size()); }

std::u16string_view FolderOf(std::u16string_view path) { return path.substr(0, path.rfind(u'\\') + 1); }

std::u16string NombreArchivoValido(std::u16string_view text) {
  std::u16string name(runtime::Trim(text));
  for (char16_t& letter : name) {
    // By its code of eight bits: that is how the name reaches the sender.
    const std::uint8_t code = runtime::ToByte(letter);
    if (code < 32 || kForbidden.find(static_cast<char>(code)) != std::string_view::npos) letter = u' ';
  }
  return name;
}

bool CanNameFile(std::u16string_view path) {
  if (IsBeyondFiles(path)) return false;
  if (std::ranges::any_of(path, [](char16_t letter) { return letter < u' '; })) return false;
  const std::size_t bare = path.find_last_of(u"\\/");
  return !IsDevice(bare == std::u16string_view::npos ? path : path.substr(bare + 1));
}

void CrearCarpeta(std::u16string_view path, platform::Folders& folders) {
  if (path.ends_with(u'\\')) path.remove_suffix(1);
  if (path.empty() || folders.Matches(path)) return;
  const std::size_t separator = path.rfind(u'\\');
  if (separator != std::u16string_view::npos && separator > 0) {
    CrearCarpeta(path.substr(0, separator), folders);
  }
  folders.Make(path);
}

void ThrowBadFileName() {
  throw runtime::RuntimeError(kBadFileName, u"Nombre o número de archivo incorrecto");
}

}  // namespace qm::mail
