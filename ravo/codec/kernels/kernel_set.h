#pragma once

#include <ravo/codec/run.h>
#include <ravo/codec/single_byte_table.h>

#include <atomic>
#include <span>
#include <string_view>

/// Fast paths of whole runs: blocks of characters at once. Each does as many blocks as it can, gives what the
/// engine of one character gives, and leaves what it does not take, and the end, to that.
namespace ravo::codec {

/// Any table, and one with ASCII.
[[nodiscard]] Run DecodeSingleByteBlocks(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run DecodeSingleByteAscii(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;
/// `ascii` as `HasAscii` of the table. Stops before a block with a character that has no byte, and before one
/// with U+0000.
[[nodiscard]] Run EncodeSingleByteBlocks(const ReverseTable& table, bool ascii, TextSpan text,
                                         ByteRoom bytes) noexcept;

/// Units of two bytes, each passed or, where `swap`, with its bytes exchanged. Stops before a block with
/// surrogates where `plain_only`.
[[nodiscard]] Run DecodeUnitBlocks(bool swap, bool plain_only, ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUnitBlocks(bool swap, bool plain_only, TextSpan text, ByteRoom bytes) noexcept;

/// One way to do blocks. A null `..._until` means: by the blocks of the other function.
struct KernelSet {
  std::string_view name;
  bool (*runs_here)() noexcept;
  Run (*decode_utf8)(ByteSpan bytes, TextRoom text) noexcept;
  Run (*encode_utf8)(TextSpan text, ByteRoom bytes) noexcept;
  /// For tables with ASCII.
  Run (*decode_single_byte)(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;
  Run (*encode_single_byte)(const ReverseTable& table, bool ascii, TextSpan text, ByteRoom bytes) noexcept;
  Run (*decode_units)(bool swap, bool plain_only, ByteSpan bytes, TextRoom text) noexcept;
  Run (*encode_units)(bool swap, bool plain_only, TextSpan text, ByteRoom bytes) noexcept;
  RunUntil (*decode_utf8_until)(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept;
  RunUntil (*decode_single_byte_until)(const ByteTable& table, ByteSpan bytes, TextRoom text,
                                       EndBytes ends) noexcept;
};

/// All of them, the plain one first and the fastest last.
[[nodiscard]] std::span<const KernelSet> KernelSets() noexcept;
/// Chooses the fastest that runs here when it is called for the first time; a call while another thread
/// chooses does not wait. What gives runs to others calls it first.
void ChooseKernels() noexcept;
/// The chosen one; before, one that runs everywhere.
extern constinit std::atomic<const KernelSet*> chosen_kernels;
[[nodiscard]] inline const KernelSet& ChosenKernels() noexcept {
  return *chosen_kernels.load(std::memory_order_relaxed);
}

/// Makes a kernel the chosen one while it lives. For tests, one at a time.
class ScopedKernels {
 public:
  explicit ScopedKernels(const KernelSet& kernel) noexcept;
  ~ScopedKernels();
  ScopedKernels(const ScopedKernels&) = delete;
  ScopedKernels& operator=(const ScopedKernels&) = delete;

 private:
  const KernelSet* previous_;
};

/// Blocks of ASCII.
[[nodiscard]] Run DecodeUtf8Ascii(ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUtf8Ascii(TextSpan text, ByteRoom bytes) noexcept;

/// Blocks of sequences of one and two bytes: instructions of SSSE3, where `HasByteShuffle`.
[[nodiscard]] Run DecodeUtf8Shuffling(ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUtf8Shuffling(TextSpan text, ByteRoom bytes) noexcept;
[[nodiscard]] bool HasByteShuffle() noexcept;

/// Blocks of sixty-four bytes: instructions of AVX-512, where `HasWideBlocks`. The ends may be any bytes of
/// ASCII.
[[nodiscard]] Run DecodeUtf8Wide(ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run DecodeSingleByteWide(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] RunUntil DecodeUtf8UntilWide(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept;
[[nodiscard]] RunUntil DecodeSingleByteUntilWide(const ByteTable& table, ByteSpan bytes, TextRoom text,
                                                 EndBytes ends) noexcept;
[[nodiscard]] bool HasWideBlocks() noexcept;

}  // namespace ravo::codec
