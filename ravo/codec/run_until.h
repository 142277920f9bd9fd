#pragma once

#include <ravo/codec/runs.h>

/// Runs that end before a given character, for encodings whose bytes below 0x80 are ASCII wherever they
/// stand, and only these: the end is found among the bytes.
namespace ravo::codec {

/// By the blocks of an encoding's own run.
[[nodiscard]] RunUntil DecodeUntilByBlocks(DecodeRun decode, ByteSpan bytes, TextRoom text, EndBytes ends);

}  // namespace ravo::codec
