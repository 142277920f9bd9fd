#pragma once

#include <ravo/codec/kernels/kernel_choice.h>
#include <ravo/codec/kernels/run.h>
#include <ravo/codec/kernels/single_byte_table.h>

#include <span>
#include <string_view>

/// All vector code of the library: conversions of whole runs, searches, counts. It is in this folder only
/// (except the carry-less CRC-32). `Block` (block.h) uses what every processor of a target has, and other
/// rooms use it directly; a function that needs a check of the processor is in a `KernelSet`.
///
/// Start with utf8_blocks.cpp, the simplest set. The name of a source states the instructions that it needs:
/// ..._ssse3, ..._avx2, ..._avx512. All sets give identical results: each converts a prefix and stops at a
/// character boundary before anything that needs a decision (a malformed sequence, one of four bytes, the end
/// of the source or room), which the engine of one character handles. Nothing here throws or allocates.
namespace ravo::codec {

/// Returns how many of the first `places` positions of a text can be skipped. At a skipped position, the unit
/// is not the first of `ends`, or the unit at that position of `last_text` is not the second. It may skip
/// fewer than possible.
template <class Char>
using SkipPlaces = std::size_t (*)(const Char* text, const Char* last_text, std::size_t places,
                                   const Char (&ends)[2]) noexcept;

/// One implementation of all functions. A conversion may write past its result, within the room.
struct KernelSet {
  std::string_view name;
  bool (*runs_here)() noexcept;

  /// Convert sequences of one to three bytes, surrogates included; each unit by itself.
  Run (*decode_utf8)(ByteSpan bytes, TextRoom text) noexcept;
  Run (*encode_utf8)(TextSpan text, ByteRoom bytes) noexcept;
  /// Returns the number of bytes that `encode_utf8` makes of the whole text.
  std::size_t (*utf8_length)(TextSpan text) noexcept;
  /// Stops before the first of `ends`. Null: `decode_utf8` is used instead.
  RunUntil (*decode_utf8_until)(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept;

  /// Only for tables with ASCII.
  Run (*decode_single_byte)(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;
  /// The table comes last, so that a caller's arguments stay in their registers.
  RunUntil (*decode_single_byte_until)(ByteSpan bytes, TextRoom text, EndBytes ends,
                                       const ByteTable& table) noexcept;
  /// `ascii` is `HasAscii` of the table. Stops before a block that contains a character without a byte, or
  /// U+0000.
  Run (*encode_single_byte)(const ReverseTable& table, bool ascii, TextSpan text, ByteRoom bytes) noexcept;

  /// Convert units of two bytes, swapped if `swap`. If `plain_only`, they stop before a block with
  /// surrogates.
  Run (*decode_units)(bool swap, bool plain_only, ByteSpan bytes, TextRoom text) noexcept;
  Run (*encode_units)(bool swap, bool plain_only, TextSpan text, ByteRoom bytes) noexcept;

  /// Returns the index of the first special unit (`IsSpecial`), or the size of `text` without one.
  std::size_t (*find_special)(TextSpan text) noexcept;

  SkipPlaces<char> skip_bytes;
  SkipPlaces<char16_t> skip_units;
};

extern constinit KernelChoice<KernelSet> kernel_choice;

/// Returns all sets, the plain one first and the fastest last.
[[nodiscard]] inline std::span<const KernelSet> KernelSets() noexcept { return kernel_choice.All(); }
[[nodiscard]] inline const KernelSet& ChosenKernels() noexcept { return kernel_choice.Chosen(); }

/// Uses a set for the lifetime of this object. For tests; not thread-safe.
class ScopedKernels : public ScopedKernel<KernelSet> {
 public:
  explicit ScopedKernels(const KernelSet& kernels) noexcept : ScopedKernel(kernel_choice, kernels) {}
};

/// Decodes single bytes by any table, on every processor.
[[nodiscard]] Run DecodeSingleByteBlocks(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;

}  // namespace ravo::codec
