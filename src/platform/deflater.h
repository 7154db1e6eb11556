#pragma once
// A zlib stream made piece by piece, so that what is to be compressed need never stand in memory whole.
// Errors: RuntimeError 7 when memory runs out.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

struct z_stream_s;

namespace qm::platform {

class Deflater {
 public:
  explicit Deflater(int level);
  Deflater(const Deflater&) = delete;
  Deflater& operator=(const Deflater&) = delete;
  ~Deflater();

  void Write(const std::uint8_t* bytes, std::size_t count);
  [[nodiscard]] std::string Finish();  // once, at the end

 private:
  void Run(int flush);

  z_stream_s* stream_;
  std::string output_;  // beyond used_ there is room
  std::size_t used_ = 0;
};

[[nodiscard]] std::string Deflated(std::string_view bytes, int level = 6);

}  // namespace qm::platform
