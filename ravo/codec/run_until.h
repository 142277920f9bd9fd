#pragma once

#include <ravo/codec/kernels/run.h>

namespace ravo::codec {

/// Decodes as `DecodeRun`, up to the first of `ends`, which is not decoded, with the block function `decode`.
/// Only for encodings whose bytes below 0x80 are always ASCII.
[[nodiscard]] RunUntil DecodeUntilByBlocks(ByteSpan bytes, TextRoom text, EndBytes ends, DecodeRun decode);

}  // namespace ravo::codec
