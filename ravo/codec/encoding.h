#pragma once

#include <ravo/codec/kernels/run.h>
#include <ravo/codec/kernels/single_byte_table.h>
#include <ravo/codec/utf7_state.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The room ravo/codec: conversion between text and bytes, for everything that reads or writes text.
///
/// An encoding is one row of rows.inc, an `Encoding` here. A row names an engine (single_byte.h, utf8.h,
/// wide_units.h, utf7.h, gb18030.h). An engine converts one character, from any source of bytes and to any
/// target. engine_runs.h makes it a function over spans: the kernels (kernels/kernel_set.h, chosen by the
/// processor) convert what they can, the engine the rest. policies.h lists what differs between callers of
/// one engine.
///
/// Start with `Decode` and `Encode` below; texts.h converts whole texts. Readers and writers use the engines
/// over their own sources, and the run functions of a row for speed.
///
/// The room has no readers, writers, streams or files, and never throws for foreign input: malformed bytes
/// give U+FFFD, and a character that an encoding lacks stops `Encode`.
namespace ravo::codec {

/// The state of an encoder or decoder between calls. The caller keeps one per text and direction; a new one
/// is the start of a text.
using State = Utf7State;

/// Why a step stopped.
enum class Stop : std::uint8_t {
  SourceUsed,    ///< the source is used up
  RoomUsed,      ///< the next character does not fit into the room
  CutShort,      ///< the rest of the source is an incomplete character
  EndOfData,     ///< the last taken bytes end the data, whatever follows
  NotEncodable,  ///< the encoding lacks the next unit
};

/// The progress of a step.
struct Step {
  std::size_t taken = 0;  ///< units of the source
  std::size_t made = 0;   ///< units of the result
  Stop stop = Stop::SourceUsed;
};

/// Whether more bytes follow the given ones.
enum class Input : std::uint8_t { MoreFollows, IsLast };

class SpanSource;
class SpanTarget;

/// One encoding. Functions that it lacks are null.
struct Encoding {
  std::string_view name;     ///< as exported, such as "Windows_1250"
  std::string_view label;    ///< the display name
  std::uint32_t code_page;   ///< Windows number; 0 if it has none
  std::string_view aliases;  ///< other names, separated by blanks
  std::string_view engine;   ///< "SingleByte", "Utf8", ...
  std::string_view notes;    ///< remarks; may be empty

  /// Convert one character.
  bool (*decode_one)(SpanSource& bytes, State& state, char16_t& ch);
  bool (*encode_one)(SpanTarget& bytes, State& state, char16_t ch);
  /// Writes pending output of the state.
  void (*flush)(SpanTarget& bytes, State& state);

  /// Convert whole runs; null also for encodings with state.
  DecodeRun decode_run;
  EncodeRun encode_run;
  /// Null also if bytes below 0x80 are not exactly ASCII.
  DecodeUntil decode_until;
  /// Whether every byte is a character, so that decoding gives no special unit (`IsSpecial`).
  bool has_every_byte;
  /// The characters of a single-byte encoding, U+FFFD for a byte without one; else null.
  const ByteTable* table;
};

/// All encodings, in the order of rows.inc.
[[nodiscard]] std::span<const Encoding> Encodings() noexcept;

/// Returns the encoding called `name`, which is a row's name, alias, code page number with or without "cp",
/// or label; null if it is unknown. Only ASCII letters and digits count, without regard to case.
[[nodiscard]] const Encoding* FindEncoding(std::string_view name) noexcept;
/// Returns the encoding with a Windows code page number; null if the number is unknown or 0.
[[nodiscard]] const Encoding* FindEncoding(std::uint32_t code_page) noexcept;

/// Decodes `bytes` into `text` and returns the progress. Malformed bytes give U+FFFD.
///
/// With `Input::MoreFollows`, up to eight last bytes may remain with `Stop::CutShort`: pass them again with
/// the bytes that follow. Only UTF-16 stops with `Stop::EndOfData`, after a low surrogate; the next call
/// continues after it. May write past the result, within `text`.
[[nodiscard]] Step Decode(const Encoding& encoding, State& state, ByteSpan bytes, TextRoom text,
                          Input input) noexcept;

/// Encodes `text` into `bytes`, up to the first unit that the encoding lacks, and returns the progress. May
/// write past the result, within `bytes`.
[[nodiscard]] Step Encode(const Encoding& encoding, State& state, TextSpan text, ByteRoom bytes) noexcept;

/// The maximum number of bytes from one unit or one `Flush`.
inline constexpr std::size_t kMostBytesAtOnce = 8;

/// Writes pending output of the encoder and returns the number of bytes.
std::size_t Flush(const Encoding& encoding, State& state,
                  std::span<std::uint8_t, kMostBytesAtOnce> bytes) noexcept;

}  // namespace ravo::codec
