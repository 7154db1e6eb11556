#pragma once
// Names of files and folders that come from texts of the user.
// Errors: 52 for a name that no file can have.

#include <string>
#include <string_view>

#include "platform/folders.h"

namespace qm::mail {

// What stands behind the last backslash, and all up to and including it.
[[nodiscard]] std::u16string_view BareName(std::u16string_view path);
[[nodiscard]] std::u16string_view FolderOf(std::u16string_view path);

// The text trimmed, with a blank for each character that file names cannot have. It keeps its length.
[[nodiscard]] std::u16string NombreArchivoValido(std::u16string_view text);

// Whether the path can name a file of a disk: devices, such as CON, and names with control characters cannot.
[[nodiscard]] bool CanNameFile(std::u16string_view path);

// Makes the folder and all that are missing above it. Nothing is told of what cannot be made.
void CrearCarpeta(std::u16string_view path, platform::Folders& folders);

[[noreturn]] void ThrowBadFileName();

}  // namespace qm::mail
