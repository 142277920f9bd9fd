#pragma once

#include <ravo/codec/kernels/run.h>

namespace ravo::codec {

/// Decodes as `DecodeRun`, up to the first of `ends`, which stays: by the blocks of `decode`. For encodings
/// whose bytes below 0x80 are ASCII wherever they are, and only these.
[[nodiscard]] RunUntil DecodeUntilByBlocks(DecodeRun decode, ByteSpan bytes, TextRoom text, EndBytes ends);

}  // namespace ravo::codec
