#pragma once
// Paths as Windows' own functions take them.

#include <string>
#include <string_view>

namespace qm::platform::win32 {

// Made absolute against the current folder; as it was when Windows can make nothing of it.
[[nodiscard]] std::u16string AbsolutePath(std::u16string_view path);

// Windows takes a path beyond 247 characters only in full and with a prefix that says so.
[[nodiscard]] std::u16string SystemPath(std::u16string_view path);

}  // namespace qm::platform::win32
