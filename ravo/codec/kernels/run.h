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

/// Returns whether `unit` is U+FFFD or a surrogate, which an engine may have made of other characters.
[[nodiscard]] constexpr bool IsSpecial(char16_t unit) noexcept {
  return IsSurrogate(unit) || unit == kReplacement;
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
  constexpr explicit EndBytes(std::uint8_t only) noexcept : EndBytes(only, only) {}
  constexpr EndBytes(std::uint8_t first, std::uint8_t second) noexcept : EndBytes(first, second, second) {
    if (first == '\r' && second == '\n') bytes_ |= kAreBreaks;
  }
  constexpr EndBytes(std::uint8_t first, std::uint8_t second, std::uint8_t third) noexcept
      : bytes_(std::uint32_t{first} | std::uint32_t{second} << 8 | std::uint32_t{third} << 16) {}

  [[nodiscard]] constexpr std::uint8_t First() const noexcept { return static_cast<std::uint8_t>(bytes_); }
  [[nodiscard]] constexpr std::uint8_t Second() const noexcept {
    return static_cast<std::uint8_t>(bytes_ >> 8);
  }
  [[nodiscard]] constexpr std::uint8_t Third() const noexcept {
    return static_cast<std::uint8_t>(bytes_ >> 16);
  }
  [[nodiscard]] constexpr bool Has(char16_t c) const noexcept {
    return c == First() || c == Second() || c == Third();
  }
  /// Returns whether all three are the same.
  [[nodiscard]] constexpr bool AreOne() const noexcept { return First() == Second() && First() == Third(); }
  /// Returns whether carriage return and line feed were given, and no others.
  [[nodiscard]] constexpr bool AreBreaks() const noexcept { return (bytes_ & kAreBreaks) != 0; }

 private:
  static constexpr std::uint32_t kAreBreaks = 1U << 24;

  std::uint32_t bytes_;
};

/// The progress of a run that ends before a given byte. Two integers, returned in registers: compilers gather
/// four members in memory.
class RunUntil {
 public:
  constexpr RunUntil(std::size_t taken, std::size_t made, std::size_t line_starts,
                     std::size_t last_line_start) noexcept
      : progress_(taken | std::uint64_t{made} << 32),
        lines_(line_starts | std::uint64_t{last_line_start} << 32) {}

  /// Returns the number of bytes.
  [[nodiscard]] constexpr std::uint32_t Taken() const noexcept { return Low(progress_); }
  /// Returns the number of units, at most as many as bytes.
  [[nodiscard]] constexpr std::uint32_t Made() const noexcept { return Low(progress_ >> 32); }
  /// Returns the number of units after a line break of the run, without a line feed of a pair.
  [[nodiscard]] constexpr std::uint32_t LineStarts() const noexcept { return Low(lines_); }
  /// Returns the index of the last of these units; 0 without one.
  [[nodiscard]] constexpr std::uint32_t LastLineStart() const noexcept { return Low(lines_ >> 32); }

 private:
  static constexpr std::uint32_t Low(std::uint64_t bits) { return static_cast<std::uint32_t>(bits); }

  std::uint64_t progress_;
  std::uint64_t lines_;
};

/// Decodes as `DecodeRun`, up to the first of `ends`, which is not decoded.
using DecodeUntil = RunUntil (*)(ByteSpan bytes, TextRoom text, EndBytes ends);

}  // namespace ravo::codec
