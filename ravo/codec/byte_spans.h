#pragma once

#include <ravo/codec/kernels/run.h>

#include <cstddef>
#include <cstdint>

/// Sources and targets of engines in memory.
///
/// An engine reads from a source (`PeekByte`, `SkipByte`, `NextByte`) and writes to a target (`WriteByte`):
/// these two, or a caller's own that refills and flushes.
namespace ravo::codec {

/// A source that records whether a byte past the end was requested.
class SpanSource {
 public:
  explicit SpanSource(ByteSpan bytes) noexcept : bytes_(bytes) {}

  [[nodiscard]] bool PeekByte(std::uint8_t& byte) noexcept {
    if (position_ == bytes_.size()) {
      exhausted_ = true;
      return false;
    }
    byte = bytes_[position_];
    return true;
  }
  void SkipByte() noexcept { ++position_; }
  [[nodiscard]] bool NextByte(std::uint8_t& byte) noexcept {
    if (!PeekByte(byte)) return false;
    SkipByte();
    return true;
  }
  [[nodiscard]] std::size_t Position() const noexcept { return position_; }
  [[nodiscard]] bool Exhausted() const noexcept { return exhausted_; }

 private:
  ByteSpan bytes_;
  std::size_t position_ = 0;
  bool exhausted_ = false;
};

/// A target without bounds checks: the caller provides enough room.
class SpanTarget {
 public:
  explicit SpanTarget(ByteRoom bytes) noexcept : bytes_(bytes) {}

  void WriteByte(std::uint8_t byte) noexcept { bytes_[count_++] = byte; }
  [[nodiscard]] std::size_t Count() const noexcept { return count_; }
  [[nodiscard]] std::size_t Room() const noexcept { return bytes_.size() - count_; }

 private:
  ByteRoom bytes_;
  std::size_t count_ = 0;
};

}  // namespace ravo::codec
