#pragma once

#include <ravo/unicode/encodings/runs.h>

#include <cstddef>
#include <cstdint>
#include <span>

/// Runs that end before a given character, for encodings whose bytes below 0x80 are ASCII wherever they
/// stand, and only these: the end is found among the bytes.
namespace ravo::DIUnicode {

/// The characters of ASCII that end a run, some of them repeated. One number, which is passed in a register:
/// what is put together in memory would be waited for.
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

/// How much of a run was done. It fits in two registers.
struct RunTill {
  std::size_t taken = 0;   ///< bytes
  std::uint32_t made = 0;  ///< characters, not more than a source has bytes
  Lines lines = Lines::One;
};

/// Decodes as `DecodeRun`, up to the first of `ends`, which stays.
using DecodeTill = RunTill (*)(std::span<const std::uint8_t> bytes, std::span<char16_t> text, EndBytes ends);

/// Null where the encoding has no runs or does not keep ASCII apart.
[[nodiscard]] DecodeTill DecodeTillOf(const TDIUnicodeReadMethods& methods) noexcept;

/// By the blocks of an encoding's own run.
[[nodiscard]] RunTill DecodeTillByBlocks(DecodeRun decode, std::span<const std::uint8_t> bytes,
                                         std::span<char16_t> text, EndBytes ends);

}  // namespace ravo::DIUnicode
