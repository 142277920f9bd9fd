#pragma once

#include <ravo/codec/kernels/kernel_choice.h>
#include <ravo/codec/kernels/run.h>
#include <ravo/codec/kernels/single_byte_table.h>

#include <span>
#include <string_view>

/// All vector code of the library: conversions of whole runs, searches, counts. It lives in this folder and
/// nowhere else (the carry-less CRC-32 aside). What every processor of a target has is `Block` (block.h),
/// which other rooms use by themselves; what a processor must be asked for is a function of a `KernelSet`.
///
/// Start with utf8_blocks.cpp, the simplest set. A source names the instructions that it needs: ..._ssse3,
/// ..._avx2, ..._avx512. The sets give identical results: each converts a prefix, stops at a character
/// boundary before whatever needs a decision (a malformed sequence, one of four bytes, the end of the source
/// or of the room), and leaves that to the engine of one character. Nothing here throws or allocates.
namespace ravo::codec {

/// Of `places` places of a text, how many from the front can be skipped: at each of them the unit is not the
/// first one of `ends`, or the one in the same place of `last_text` is not the second. Not all that could be
/// are.
template <class Char>
using SkipPlaces = std::size_t (*)(const Char* text, const Char* last_text, std::size_t places,
                                   const Char (&ends)[2]) noexcept;

/// One way to do all jobs. A conversion may write past what it made, within the room.
struct KernelSet {
  std::string_view name;
  bool (*runs_here)() noexcept;

  /// Sequences of one to three bytes, surrogates too; and each unit by itself.
  Run (*decode_utf8)(ByteSpan bytes, TextRoom text) noexcept;
  Run (*encode_utf8)(TextSpan text, ByteRoom bytes) noexcept;
  /// How many bytes `encode_utf8` makes of the whole text.
  std::size_t (*utf8_length)(TextSpan text) noexcept;
  /// Up to the first of `ends`, which stays. Null: by the function without an end.
  RunUntil (*decode_utf8_until)(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept;

  /// For tables with ASCII.
  Run (*decode_single_byte)(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;
  RunUntil (*decode_single_byte_until)(const ByteTable& table, ByteSpan bytes, TextRoom text,
                                       EndBytes ends) noexcept;
  /// `ascii` as `HasAscii` of the table. Stops before a block with a character that has no byte, and before
  /// one with U+0000.
  Run (*encode_single_byte)(const ReverseTable& table, bool ascii, TextSpan text, ByteRoom bytes) noexcept;

  /// Units of two bytes, their bytes exchanged if `swap`. Stop before a block with surrogates if
  /// `plain_only`.
  Run (*decode_units)(bool swap, bool plain_only, ByteSpan bytes, TextRoom text) noexcept;
  Run (*encode_units)(bool swap, bool plain_only, TextSpan text, ByteRoom bytes) noexcept;

  SkipPlaces<char> skip_bytes;
  SkipPlaces<char16_t> skip_units;
};

extern constinit KernelChoice<KernelSet> kernel_choice;

/// All of them, the plain one first and the fastest last.
[[nodiscard]] inline std::span<const KernelSet> KernelSets() noexcept { return kernel_choice.All(); }
[[nodiscard]] inline const KernelSet& ChosenKernels() noexcept { return kernel_choice.Chosen(); }

/// Puts a set in use for as long as this object lives. For tests, one thread at a time.
class ScopedKernels : public ScopedKernel<KernelSet> {
 public:
  explicit ScopedKernels(const KernelSet& kernels) noexcept : ScopedKernel(kernel_choice, kernels) {}
};

/// Single bytes by any table, with ASCII or not, on every processor.
[[nodiscard]] Run DecodeSingleByteBlocks(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;

}  // namespace ravo::codec
