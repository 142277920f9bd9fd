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
  /// Begins anew in memory of someone else. At the first bytes without room there, all move to own memory.
  void BeginIn(std::span<std::uint8_t> memory) {
    given_ = memory;
    size_ = 0;
  }
  /// Returns at least `size` bytes after the last one, to be written before `Add`.
  [[nodiscard]] std::span<std::uint8_t> Room(std::size_t size) {
    if (Memory().size() - size_ < size) Grow(size);
    return Memory().subspan(size_);
  }
  void Add(std::size_t written) { size_ += written; }
  void Append(std::span<const std::uint8_t> bytes) {
    std::ranges::copy(bytes, Room(bytes.size()).begin());
    Add(bytes.size());
  }
  void Clear() { size_ = 0; }

  [[nodiscard]] std::string_view Text() const {
    const std::uint8_t* const bytes = given_.empty() ? own_.data() : given_.data();
    return {reinterpret_cast<const char*>(bytes), size_};
  }

 private:
  [[nodiscard]] std::span<std::uint8_t> Memory() { return given_.empty() ? std::span(own_) : given_; }

  // Out of line: `Room` is inlined into the loop over the rows of a column.
  [[gnu::noinline, gnu::cold]] void Grow(std::size_t size) {
    const std::size_t least = size_ + size;
    if (given_.empty()) {
      own_.resize(std::max(2 * own_.size(), least));
      return;
    }
    own_.resize(std::max(own_.size(), least));
    std::ranges::copy(given_.first(size_), own_.begin());
    given_ = {};
  }

  std::vector<std::uint8_t> own_;
  std::span<std::uint8_t> given_;
  std::size_t size_ = 0;
};

}  // namespace ravo::convert
