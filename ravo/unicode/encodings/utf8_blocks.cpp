#include <ravo/unicode/encodings/run_blocks.h>
#include <ravo/unicode/encodings/vector_block.h>

#include <array>

namespace ravo::DIUnicode {
namespace {

bool RunsEverywhere() noexcept { return true; }

Run DecodeNone(ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeNone(TextSpan, ByteRoom) noexcept { return {}; }

Run DecodeAscii(ByteSpan bytes, TextRoom text) noexcept {
  const std::size_t end = WholeBlocks(bytes.size(), text.size());
  std::size_t at = 0;
  while (at < end && WidenAsciiBlock(bytes.data() + at, text.data() + at)) at += kBlock;
  return {at, at};
}

Run EncodeAscii(TextSpan text, ByteRoom bytes) noexcept {
  const std::size_t end = WholeBlocks(text.size(), bytes.size());
  std::size_t at = 0;
  while (at < end && NarrowAsciiBlock(text.data() + at, bytes.data() + at)) at += kBlock;
  return {at, at};
}

constexpr std::array<Utf8Kernel, 3> kKernels = {
    {{"plain", DecodeNone, EncodeNone, RunsEverywhere},
     {"ascii", DecodeAscii, EncodeAscii, RunsEverywhere},
     {"shuffling", DecodeUtf8Shuffling, EncodeUtf8Shuffling, HasByteShuffle}}};

}  // namespace

std::span<const Utf8Kernel> Utf8Kernels() noexcept { return kKernels; }

const Utf8Kernel& BestUtf8Kernel() noexcept {
  static const Utf8Kernel& best = HasByteShuffle() ? kKernels.back() : kKernels[1];
  return best;
}

}  // namespace ravo::DIUnicode
