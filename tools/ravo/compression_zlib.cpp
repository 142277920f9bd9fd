#include "compression.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>

#include <zlib.h>

namespace tool {
namespace {

constexpr std::size_t kInflateAtOnce = std::size_t{1} << 16;
constexpr int kWindow = 15;

// A stream of zlib that is open.
class InflateStream {
 public:
  explicit InflateStream(DeflateFrame frame) {
    // A negative window means that there is no header.
    if (inflateInit2(&stream_, frame == DeflateFrame::Zlib ? kWindow : -kWindow) != Z_OK)
      throw std::bad_alloc();
  }
  InflateStream(const InflateStream&) = delete;
  InflateStream& operator=(const InflateStream&) = delete;
  ~InflateStream() { inflateEnd(&stream_); }

  Inflated Run(std::string_view data, std::size_t limit) {
    Inflated result;
    int state = Z_OK;
    while (state == Z_OK) {
      Feed(data);
      state = Step(result.bytes);
      if (result.bytes.size() > limit) return {{}, InflateFault::TooLarge};
    }
    if (state != Z_STREAM_END) return {{}, InflateFault::Damaged};
    return result;
  }

 private:
  void Feed(std::string_view& data) {
    if (stream_.avail_in > 0) return;
    const std::size_t count = std::min<std::size_t>(data.size(), std::numeric_limits<uInt>::max());
    // The interface of zlib is older than const.
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    stream_.avail_in = static_cast<uInt>(count);
    data.remove_prefix(count);
  }

  // Without progress, as at an end that comes too soon, zlib answers that its buffer is at fault.
  int Step(std::string& bytes) {
    stream_.next_out = piece_.data();
    stream_.avail_out = static_cast<uInt>(piece_.size());
    const int state = inflate(&stream_, Z_NO_FLUSH);
    bytes.append(reinterpret_cast<const char*>(piece_.data()), piece_.size() - stream_.avail_out);
    return state;
  }

  z_stream stream_{};
  std::array<Bytef, kInflateAtOnce> piece_{};
};

}  // namespace

bool HasCompression() { return true; }

std::string Deflate(std::string_view bytes) {
  uLongf size = compressBound(static_cast<uLong>(bytes.size()));
  std::string data(size, '\0');
  const int state =
      compress2(reinterpret_cast<Bytef*>(data.data()), &size, reinterpret_cast<const Bytef*>(bytes.data()),
                static_cast<uLong>(bytes.size()), Z_BEST_COMPRESSION);
  if (state != Z_OK) throw std::bad_alloc();
  data.resize(size);
  return data;
}

Inflated Inflate(std::string_view data, DeflateFrame frame, std::size_t limit) {
  return InflateStream(frame).Run(data, limit);
}

}  // namespace tool
