#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/codec/kernels/vector_block.h>

namespace ravo::codec {
Run DecodeUtf8Ascii(ByteSpan bytes, TextRoom text) noexcept {
  const std::size_t end = WholeBlocks(bytes.size(), text.size());
  std::size_t at = 0;
  while (at < end && WidenAsciiBlock(bytes.data() + at, text.data() + at)) at += kBlock;
  return {at, at};
}

Run EncodeUtf8Ascii(TextSpan text, ByteRoom bytes) noexcept {
  const std::size_t end = WholeBlocks(text.size(), bytes.size());
  std::size_t at = 0;
  while (at < end && NarrowAsciiBlock(text.data() + at, bytes.data() + at)) at += kBlock;
  return {at, at};
}

}  // namespace ravo::codec
