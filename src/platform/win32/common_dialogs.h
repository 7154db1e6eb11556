#pragma once
// The system's own dialogs for files and colours, owned by the active window.
// Errors: none; what cannot be shown counts as cancelled.
// The current folder is the same afterwards, whatever the dialog did to it.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qm::platform::win32 {

// The filter as "Text (*.a;*.b)|*.a;*.b".
[[nodiscard]] std::optional<std::u16string> ShowOpenFile(std::u16string_view filter,
                                                         std::u16string_view initialFolder);
// What is typed without an extension gets that of the file name offered.
[[nodiscard]] std::optional<std::u16string> ShowSaveFile(std::u16string_view fileName);
[[nodiscard]] std::optional<std::int32_t> ShowColor(std::int32_t initial);

}  // namespace qm::platform::win32
