#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace ravo::convert {

/// Bytes that are written in place. Room that was used once is not initialised again.
class ByteBuffer {
 public:
  /// Returns at least `size` bytes after the last one, to be written before `Add`.
  [[nodiscard]] std::span<std::uint8_t> Room(std::size_t size) {
    if (room_.size() - size_ < size) room_.resize(std::max(2 * room_.size(), size_ + size));
    return std::span(room_).subspan(size_);
  }
  void Add(std::size_t written) { size_ += written; }
  void Append(std::span<const std::uint8_t> bytes) {
    std::ranges::copy(bytes, Room(bytes.size()).begin());
    Add(bytes.size());
  }
  void Clear() { size_ = 0; }

  [[nodiscard]] std::string_view Text() const { return {reinterpret_cast<const char*>(room_.data()), size_}; }

 private:
  std::vector<std::uint8_t> room_;
  std::size_t size_ = 0;
};

}  // namespace ravo::convert
