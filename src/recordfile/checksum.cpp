#include "recordfile/checksum.h"

#include <array>

namespace qm::recordfile {

namespace {

consteval std::array<std::uint32_t, 256> MakeTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t value = byte;
    for (int bit = 0; bit < 8; ++bit) value = (value >> 1) ^ (value & 1 ? 0xEDB88320U : 0U);
    table[byte] = value;
  }
  return table;
}

constexpr std::array<std::uint32_t, 256> kTable = MakeTable();

}  // namespace

std::uint32_t Crc32(std::string_view bytes, std::uint32_t before) noexcept {
  std::uint32_t value = ~before;
  for (const char byte : bytes)
    value = kTable[(value ^ static_cast<std::uint8_t>(byte)) & 0xFFU] ^ (value >> 8);
  return ~value;
}

}  // namespace qm::recordfile
