#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// What engines and kernels take and give: spans of bytes and of UTF-16 units, and how much was done.
namespace ravo::codec {

using ByteSpan = std::span<const std::uint8_t>;
using TextSpan = std::span<const char16_t>;
using ByteRoom = std::span<std::uint8_t>;
using TextRoom = std::span<char16_t>;

/// What every engine gives for bytes that mean nothing to it.
inline constexpr char16_t kReplacement = 0xFFFD;

[[nodiscard]] constexpr bool IsSurrogate(std::uint32_t unit) noexcept {
  return (unit & 0xFFFFF800) == 0xD800;
}

/// How much of a run was done.
struct Run {
  std::size_t taken = 0;  ///< units of the source
  std::size_t made = 0;   ///< units of the result
};

/// Decodes characters from `bytes` into `text` while they are whole and there is room, U+FFFD for what is
/// malformed. Needs no state. May write beyond what it made, within `text`. May stop at any character
/// boundary, also at once.
using DecodeRun = Run (*)(ByteSpan bytes, TextRoom text);

/// Encodes `text` into `bytes` while the encoding has the characters and there is room for its longest one.
/// May write beyond what it made, within `bytes`.
using EncodeRun = Run (*)(TextSpan text, ByteRoom bytes);

/// The characters of ASCII that end a run, some of them repeated. One number, which is passed in a register:
/// a struct in memory would stall on store forwarding.
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
  /// Whether both line breaks are among them.
  [[nodiscard]] constexpr bool HasBreaks() const noexcept { return Has('\r') && Has('\n'); }

 private:
  std::uint32_t bytes_;
};

/// Whether more than the last character of a run can be a line break.
enum class Lines : std::uint32_t { One, MayBeMore };

/// How much of a run was done that ends before a byte. It fits in two registers.
struct RunUntil {
  std::size_t taken = 0;   ///< bytes
  std::uint32_t made = 0;  ///< units, at most as many as bytes
  Lines lines = Lines::One;
};

/// Decodes as `DecodeRun`, up to the first of `ends`, which stays.
using DecodeUntil = RunUntil (*)(ByteSpan bytes, TextRoom text, EndBytes ends);

}  // namespace ravo::codec
