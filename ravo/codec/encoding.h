#pragma once

#include <ravo/codec/kernels/run.h>
#include <ravo/codec/utf7_state.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// Text as bytes, and bytes as text: the ground floor of everything that reads or writes text.
///
/// An encoding is one row of rows.inc, here an `Encoding`. A row names an engine (single_byte.h, utf8.h,
/// wide_units.h, utf7.h, gb18030.h); an engine is written once, for one character, from any source of bytes
/// and to any target. engine_runs.h makes it a function over spans, which lets the kernels
/// (kernels/kernel_set.h, chosen by the processor) do what they can and the engine decide the rest.
/// policies.h says where callers of one engine differ.
///
/// Start with `Decode` and `Encode` below; text in memory as a whole is texts.h. Readers and writers use the
/// engines over their own sources and the runs of a row for speed.
///
/// This room knows neither readers nor writers, neither streams nor files, and never raises an error: foreign
/// bytes give U+FFFD, and a character that an encoding lacks stops `Encode`.
namespace ravo::codec {

/// What an encoder or decoder remembers between calls. The caller keeps one for each text and direction; a
/// new one is at the start of a text.
using State = Utf7State;

/// Why a step came to its end.
enum class Stop : std::uint8_t {
  SourceUsed,    ///< nothing is left of the source
  RoomUsed,      ///< the next character does not fit into the room
  CutShort,      ///< what is left begins a character whose other bytes may follow
  EndOfData,     ///< the bytes that were taken last end the data, whatever follows
  NotEncodable,  ///< the encoding lacks the next unit
};

/// How far a step came.
struct Step {
  std::size_t taken = 0;  ///< units of the source
  std::size_t made = 0;   ///< units of the result
  Stop stop = Stop::SourceUsed;
};

/// Whether bytes follow those that are given.
enum class Input : std::uint8_t { MoreFollows, IsLast };

class SpanSource;
class SpanTarget;

/// One encoding. What it cannot do is null.
struct Encoding {
  std::string_view name;     ///< as exported, such as "Windows_1250"
  std::string_view label;    ///< for people
  std::uint32_t code_page;   ///< its number on Windows; 0 if it has none
  std::string_view aliases;  ///< other names, separated by blanks
  std::string_view engine;   ///< "SingleByte", "Utf8", ...
  std::string_view notes;    ///< what is worth knowing; may be empty

  /// One character.
  bool (*decode_one)(SpanSource& bytes, State& state, char16_t& ch);
  bool (*encode_one)(SpanTarget& bytes, State& state, char16_t ch);
  /// Ends what the state holds back.
  void (*flush)(SpanTarget& bytes, State& state);

  /// Whole runs; null also for an encoding with state.
  DecodeRun decode_run;
  EncodeRun encode_run;
  /// Null also if bytes below 0x80 are more or less than ASCII.
  DecodeUntil decode_until;
};

/// All encodings, in the order of rows.inc.
[[nodiscard]] std::span<const Encoding> Encodings() noexcept;

/// Returns the encoding of a name: a row's name, alias, code page number with or without "cp", or label,
/// whatever its case, letters and digits of ASCII alone. Null if it is unknown.
[[nodiscard]] const Encoding* FindEncoding(std::string_view name) noexcept;
/// Returns the encoding of a Windows code page; null if it is unknown, and for 0.
[[nodiscard]] const Encoding* FindEncoding(std::uint32_t code_page) noexcept;

/// Decodes from `bytes` into `text`. What is malformed gives U+FFFD.
///
/// At most the last eight bytes stay with `Stop::CutShort`, and only if `Input::MoreFollows`: give them again
/// with what follows them. `Stop::EndOfData` comes from UTF-16 alone, after a low surrogate; the next call
/// goes on after it. May write beyond what it made, within `text`.
[[nodiscard]] Step Decode(const Encoding& encoding, State& state, ByteSpan bytes, TextRoom text,
                          Input input) noexcept;

/// Encodes `text` into `bytes`, up to the first unit that the encoding lacks. May write beyond what it made,
/// within `bytes`.
[[nodiscard]] Step Encode(const Encoding& encoding, State& state, TextSpan text, ByteRoom bytes) noexcept;

/// The most bytes that one unit or `Flush` makes.
inline constexpr std::size_t kMostBytesAtOnce = 8;

/// Ends what the encoder holds back: the number of bytes written.
std::size_t Flush(const Encoding& encoding, State& state,
                  std::span<std::uint8_t, kMostBytesAtOnce> bytes) noexcept;

}  // namespace ravo::codec
