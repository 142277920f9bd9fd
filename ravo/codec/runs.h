#pragma once

#include <ravo/codec/run.h>

#include <span>

/// Whole runs of characters at once. They give what the routines of one character give, U+FFFD for what is
/// malformed included, and stop before whatever those have to decide: what the end of `bytes` cuts short,
/// what ends the data, and what an encoding lacks.
namespace ravo::codec {

/// Decodes characters from `bytes` into `text` while they are whole and there is room. Needs no state. May
/// write beyond what it made, within `text`. May stop at any character boundary, also at once.
using DecodeRun = Run (*)(ByteSpan bytes, TextRoom text);

/// Decodes as `DecodeRun`, up to the first of `ends`, which stays.
using DecodeUntil = RunUntil (*)(ByteSpan bytes, TextRoom text, EndBytes ends);

/// Encodes `text` into `bytes` while the encoding has the characters and there is room for its longest
/// one. May write beyond what it made, within `bytes`.
using EncodeRun = Run (*)(TextSpan text, ByteRoom bytes);

/// The runs of an encoding; null if it has none.
struct Runs {
  DecodeRun decode = nullptr;
  DecodeUntil decode_until = nullptr;  ///< null also if bytes below 0x80 are more or less than ASCII
  EncodeRun encode = nullptr;
};

/// Those of all encodings, in the order of rows.inc.
[[nodiscard]] std::span<const Runs> RunsOfEncodings() noexcept;

}  // namespace ravo::codec
