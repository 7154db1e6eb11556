#pragma once
// The size that a picture file says it has, read without decoding it.

#include <cstdint>
#include <optional>
#include <string_view>

namespace qm::platform {

struct PixelSize {
  std::int64_t width = 0;
  std::int64_t height = 0;

  bool operator==(const PixelSize&) const = default;
};

// Of BMP, JPEG and GIF files; nothing for others and for those that end before they say it.
[[nodiscard]] std::optional<PixelSize> SizeInHeader(std::string_view bytes);

// Whether a picture of that size can be decoded and worked on in the memory of a 32-bit host.
[[nodiscard]] bool IsWithinMeans(const PixelSize& size);

}  // namespace qm::platform
