#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// Bytes in memory in the place of a reader's source and of a writer's data, for the engines of encodings.
namespace ravo::codec {

/// What every engine gives for bytes that mean nothing to it.
inline constexpr char16_t kReplacement = 0xFFFD;

[[nodiscard]] constexpr bool IsSurrogate(std::uint32_t unit) noexcept {
  return (unit & 0xFFFFF800) == 0xD800;
}

/// A source as `TDIUnicodeReader` is one. It remembers whether somebody asked for a byte behind the end.
class SpanSource {
 public:
  explicit SpanSource(std::span<const std::uint8_t> bytes) noexcept : bytes_(bytes) {}

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
  std::span<const std::uint8_t> bytes_;
  std::size_t position_ = 0;
  bool exhausted_ = false;
};

/// A target as `TDIUnicodeWriter` is one; whoever fills it sees to the room.
class SpanTarget {
 public:
  explicit SpanTarget(std::span<std::uint8_t> bytes) noexcept : bytes_(bytes) {}

  void WriteByte(std::uint8_t byte) noexcept { bytes_[count_++] = byte; }
  [[nodiscard]] std::size_t Count() const noexcept { return count_; }
  [[nodiscard]] std::size_t Room() const noexcept { return bytes_.size() - count_; }

 private:
  std::span<std::uint8_t> bytes_;
  std::size_t count_ = 0;
};

}  // namespace ravo::codec
