#pragma once
// CRC-32 with the reflected polynomial EDB88320, the checksum of PNG and ZIP: "123456789" gives CBF43926.

#include <cstdint>
#include <string_view>

namespace qm::recordfile {

// Of the bytes that come after those of which `before` is the checksum.
[[nodiscard]] std::uint32_t Crc32(std::string_view bytes, std::uint32_t before = 0) noexcept;

}  // namespace qm::recordfile
