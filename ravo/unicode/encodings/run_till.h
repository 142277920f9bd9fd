#pragma once

#include <ravo/unicode/encodings/runs.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// Runs that end before a given character, for encodings whose bytes below 0x80 are ASCII wherever they stand,
/// and only these: the end is found among the bytes.
namespace ravo::DIUnicode {

/// The characters of ASCII that end a run, some of them repeated.
using EndBytes = std::array<std::uint8_t, 3>;

constexpr bool IsEnd(const EndBytes& ends, std::uint8_t byte) noexcept {
  return byte == ends[0] || byte == ends[1] || byte == ends[2];
}

/// Whether more than the last character of a run can be a line break.
enum class Lines : std::uint32_t { One, MayBeMore };

/// How much of a run was done. It fits in two registers.
struct RunTill {
  std::size_t taken = 0;   ///< bytes
  std::uint32_t made = 0;  ///< characters, not more than a source has bytes
  Lines lines = Lines::One;
};

/// Decodes as `DecodeRun`, up to the first of `ends`, which stays.
using DecodeTill = RunTill (*)(std::span<const std::uint8_t> bytes, std::span<char16_t> text,
                               const EndBytes& ends);

/// Null where the encoding has no runs or does not keep ASCII apart.
[[nodiscard]] DecodeTill DecodeTillOf(const TDIUnicodeReadMethods& methods) noexcept;

/// By the blocks of an encoding's own run.
[[nodiscard]] RunTill DecodeTillByBlocks(DecodeRun decode, std::span<const std::uint8_t> bytes,
                                         std::span<char16_t> text, const EndBytes& ends);

}  // namespace ravo::DIUnicode
