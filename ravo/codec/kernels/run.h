#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// The types of engines and kernels: spans of bytes and UTF-16 units, and progress of a run.
namespace ravo::codec {

using ByteSpan = std::span<const std::uint8_t>;
using TextSpan = std::span<const char16_t>;
using ByteRoom = std::span<std::uint8_t>;
using TextRoom = std::span<char16_t>;

/// The result of every engine for malformed bytes.
inline constexpr char16_t kReplacement = 0xFFFD;

[[nodiscard]] constexpr bool IsSurrogate(std::uint32_t unit) noexcept {
  return (unit & 0xFFFFF800) == 0xD800;
}

/// The progress of a run.
struct Run {
  std::size_t taken = 0;  ///< units of the source
  std::size_t made = 0;   ///< units of the result
};

/// Decodes complete characters from `bytes` into `text` while there is room, with U+FFFD for malformed bytes.
/// Needs no state. May stop at any character boundary, even at once. May write past the result, within
/// `text`.
using DecodeRun = Run (*)(ByteSpan bytes, TextRoom text);

/// Encodes `text` into `bytes` while the encoding has the characters and there is room for its longest one.
/// May write past the result, within `bytes`.
using EncodeRun = Run (*)(TextSpan text, ByteRoom bytes);

/// The ASCII characters that end a run, padded by repetition. One integer, passed in a register: a struct in
/// memory would stall on store forwarding.
class EndBytes {
 public:
  constexpr EndBytes(std::uint8_t first, std::uint8_t second, std::uint8_t third) noexcept
      : bytes_(std::uint32_t{first} | std::uint32_t{second} << 8 | std::uint32_t{third} << 16) {}

  [[nodiscard]] constexpr std::uint8_t First() const noexcept { return static_cast<std::uint8_t>(bytes_); }
  [[nodiscard]] constexpr std::uint8_t Second() const noexcept {
    return static_cast<std::uint8_t>(bytes_ >> 8);
  }
  [[nodiscard]] constexpr std::uint8_t Third() const noexcept {
    return static_cast<std::uint8_t>(bytes_ >> 16);
  }
  [[nodiscard]] constexpr bool Has(std::uint8_t byte) const noexcept {
    return byte == First() || byte == Second() || byte == Third();
  }
  /// Returns whether both line breaks are among them.
  [[nodiscard]] constexpr bool HasBreaks() const noexcept { return Has('\r') && Has('\n'); }

 private:
  std::uint32_t bytes_;
};

/// Whether characters other than the last one of a run may be line breaks.
enum class Lines : std::uint32_t { One, MayBeMore };

/// The progress of a run that ends before a given byte. It fits two registers.
struct RunUntil {
  std::size_t taken = 0;   ///< bytes
  std::uint32_t made = 0;  ///< units, at most as many as bytes
  Lines lines = Lines::One;
};

/// Decodes as `DecodeRun`, up to the first of `ends`, which is not decoded.
using DecodeUntil = RunUntil (*)(ByteSpan bytes, TextRoom text, EndBytes ends);

}  // namespace ravo::codec
