#include <ravo/codec/kernels/run_search.h>
#include <ravo/codec/run_until.h>

#include <algorithm>
#include <bit>

namespace ravo::codec {
namespace {

using Ends = OneOf<3>;

std::size_t WholeBlocksOf(std::size_t length) {
  return (length + kSearchBlock - 1) / kSearchBlock * kSearchBlock;
}

// Widens the ASCII before the first of `ends` and returns its length. Writes whole blocks.
std::size_t WidenAsciiBefore(ByteSpan bytes, TextRoom to, const Ends& ends) {
  const std::size_t most = std::min(bytes.size(), to.size());
  std::size_t at = 0;
  for (; most - at >= kSearchBlock; at += kSearchBlock) {
    const UnitBlock<std::uint8_t> block(bytes.data() + at);
    block.Widen(to.data() + at);
    if (const unsigned hits = ends.HitsIn(block) | block.NoAscii(); hits != 0)
      return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  for (; at < most && bytes[at] < 0x80 && !ends(bytes[at]); ++at) to[at] = bytes[at];
  return at;
}

// Decodes everything before the first of `ends`. To decode whole blocks it may go past that byte, and then
// counts only the characters before it.
Run DecodeMixedBefore(DecodeRun decode, ByteSpan bytes, TextRoom to, const Ends& ends) {
  const auto within = bytes.first(std::min(bytes.size(), to.size()));
  const std::size_t length = LengthBefore(within, ends);
  const Run run = decode(within.first(std::min(WholeBlocksOf(length), within.size())), to);
  if (run.taken <= length) return run;
  if (run.taken == run.made) return {length, length};
  const auto last = std::span<const char16_t>(to.first(run.made)).last(std::min(run.made, kSearchBlock));
  return {length, run.made - last.size() + LengthBefore(last, ends)};
}

}  // namespace

RunUntil DecodeUntilByBlocks(ByteSpan bytes, TextRoom text, EndBytes end_bytes, DecodeRun decode) {
  const Ends ends = OneOfEnds(end_bytes);
  const std::size_t ascii = WidenAsciiBefore(bytes, text, ends);
  Run run{ascii, ascii};
  if (ascii < bytes.size() && bytes[ascii] >= 0x80) {
    const Run mixed = DecodeMixedBefore(decode, bytes.subspan(ascii), text.subspan(ascii), ends);
    run = {ascii + mixed.taken, ascii + mixed.made};
  }
  return WithLineStarts(run, bytes, text, end_bytes);
}

}  // namespace ravo::codec
