// Any bytes as a picture file: its size is told or not, without reading beyond its end.

#include <cstdint>
#include <string_view>

#include "platform/picture_size.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto told = qm::platform::SizeInHeader({reinterpret_cast<const char*>(data), size});
  if (told) (void)qm::platform::IsWithinMeans(*told);
  return 0;
}
