#include "platform/deflater.h"

#include <zlib.h>

#include <memory>

#include "runtime/error.h"

namespace qm::platform {
namespace {

constexpr std::size_t kFirstRoom = std::size_t{64} * 1024;

}  // namespace

Deflater::Deflater(int level) : output_(kFirstRoom, '\0') {
  auto stream = std::make_unique<z_stream>();
  if (deflateInit(stream.get(), level) != Z_OK)
    throw runtime::RuntimeError(runtime::ErrorNumber::OutOfMemory);
  stream_ = stream.release();
}

Deflater::~Deflater() {
  deflateEnd(stream_);
  delete stream_;
}

void Deflater::Write(const std::uint8_t* bytes, std::size_t count) {
  stream_->next_in = const_cast<Bytef*>(bytes);  // the library only reads
  stream_->avail_in = static_cast<uInt>(count);
  Run(Z_NO_FLUSH);
}

std::string Deflater::Finish() {
  stream_->avail_in = 0;
  Run(Z_FINISH);
  output_.resize(used_);
  return std::move(output_);
}

void Deflater::Run(int flush) {
  do {
    if (used_ == output_.size()) output_.resize(2 * used_);
    stream_->next_out = reinterpret_cast<Bytef*>(output_.data() + used_);
    stream_->avail_out = static_cast<uInt>(output_.size() - used_);
    deflate(stream_, flush);
    used_ = output_.size() - stream_->avail_out;
  } while (stream_->avail_out == 0);
}

std::string Deflated(std::string_view bytes, int level) {
  Deflater deflater(level);
  deflater.Write(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return deflater.Finish();
}

}  // namespace qm::platform
