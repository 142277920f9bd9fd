#pragma once

#include <ravo/codec/byte_spans.h>
#include <ravo/codec/encoding.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>

/// The reference of the engines: single characters, without runs.
namespace ravo::test {

inline codec::ByteSpan AsBytes(std::string_view bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

inline std::string TextOf(codec::ByteSpan bytes) { return {bytes.begin(), bytes.end()}; }

/// Returns every character up to the end of the data.
inline std::u16string ReadOneByOne(const codec::Encoding& encoding, std::string_view bytes) {
  codec::State state;
  codec::SpanSource source(AsBytes(bytes));
  std::u16string text;
  for (char16_t ch = 0; encoding.decode_one(source, state, ch);) text += ch;
  return text;
}

/// Returns the bytes of a text after a flush; nothing if a character is refused.
inline std::optional<std::string> WriteOneByOne(const codec::Encoding& encoding, std::u16string_view text) {
  codec::State state;
  std::string bytes;
  std::array<std::uint8_t, codec::kMostBytesAtOnce> room{};
  for (const char16_t ch : text) {
    codec::SpanTarget target(room);
    if (!encoding.encode_one(target, state, ch)) return std::nullopt;
    bytes += TextOf(std::span(room).first(target.Count()));
  }
  return bytes + TextOf(std::span(room).first(codec::Flush(encoding, state, room)));
}

}  // namespace ravo::test
