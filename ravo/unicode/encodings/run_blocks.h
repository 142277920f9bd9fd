#pragma once

#include <ravo/unicode/encodings/runs.h>
#include <ravo/unicode/encodings/single_byte.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// Fast paths of whole runs: blocks of characters at once. Each does as many blocks as it can, gives what the
/// engine of one character gives, and leaves what it does not take, and the end, to that.
namespace ravo::DIUnicode {

using ByteSpan = std::span<const std::uint8_t>;
using TextSpan = std::span<const char16_t>;
using ByteRoom = std::span<std::uint8_t>;
using TextRoom = std::span<char16_t>;

/// `ascii` as `HasAscii` of the table.
[[nodiscard]] Run DecodeSingleByteBlocks(const ByteTable& table, bool ascii, ByteSpan bytes,
                                         TextRoom text) noexcept;
/// Stops before a block with a character that has no byte, and before one with U+0000.
[[nodiscard]] Run EncodeSingleByteBlocks(const ReverseTable& table, bool ascii, TextSpan text,
                                         ByteRoom bytes) noexcept;

/// Units of two bytes, each passed or, where `swap`, with its bytes exchanged. Stops before a block with
/// surrogates where `plain_only`.
[[nodiscard]] Run DecodeUnitBlocks(bool swap, bool plain_only, ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUnitBlocks(bool swap, bool plain_only, TextSpan text, ByteRoom bytes) noexcept;

/// One way to do blocks of UTF-8.
struct Utf8Kernel {
  std::string_view name;
  Run (*decode)(ByteSpan bytes, TextRoom text) noexcept;
  Run (*encode)(TextSpan text, ByteRoom bytes) noexcept;
  bool (*runs_here)() noexcept;
};

/// All of them, the plain one first and the fastest last. For tests.
[[nodiscard]] std::span<const Utf8Kernel> Utf8Kernels() noexcept;
/// The fastest that runs here.
[[nodiscard]] const Utf8Kernel& BestUtf8Kernel() noexcept;

/// Blocks of sequences of one and two bytes: instructions of SSSE3, where `HasByteShuffle`.
[[nodiscard]] Run DecodeUtf8Shuffling(ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUtf8Shuffling(TextSpan text, ByteRoom bytes) noexcept;
[[nodiscard]] bool HasByteShuffle() noexcept;

}  // namespace ravo::DIUnicode
