#pragma once

#include <ravo/codec/kernels/block.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Loops over bytes on the hot path of tokenizer and loader.
namespace ravo::xml {

/// The number of readable bytes that the searches need after the end of their text.
inline constexpr std::size_t kReadAhead = codec::kBlockBytes;

/// Returns the first `one` or `two` from `at` on. One of them must occur, with `kReadAhead` readable bytes
/// after it.
[[nodiscard]] inline char* FindEither(char* at, char one, char two) noexcept {
  using Bytes = codec::Block<char>;
  const Bytes ones(one);
  const Bytes twos(two);
  for (;; at += codec::kBlockBytes) {
    const Bytes bytes = Bytes::Load(at);
    const auto found = (bytes.EqualTo(ones) | bytes.EqualTo(twos)).AsHits();
    if (!found.None()) return at + found.First();
  }
}

/// Returns the first byte from `at` on that is a control character, "&", "<", ">", a double quote or the
/// second of two blanks, or `end`. A blank before `at` does not count. `kReadAhead` bytes after `end` must be
/// readable.
[[nodiscard]] inline const char* EndOfOrdinary(const char* at, const char* end) noexcept {
  using Bytes = codec::Block<char>;
  unsigned blank_before = 0;
  for (; at < end; at += codec::kBlockBytes) {
    const Bytes bytes = Bytes::Load(at);
    // "<" and ">" differ in one bit, and so do the double quote and "&" in another.
    const Bytes brackets = (bytes | Bytes('\x02')).EqualTo('>');
    const Bytes quotes = (bytes | Bytes('\x04')).EqualTo('&');
    const Bytes special = bytes.Within('\0', '\x1F') | brackets | quotes;
    const unsigned blanks = bytes.EqualTo(' ').AsHits().Bits();
    const codec::Hits<char> ends(special.AsHits().Bits() | (blanks & (blanks << 1 | blank_before)));
    blank_before = blanks >> 15;
    if (!ends.None()) {
      const char* const found = at + ends.First();
      return found < end ? found : end;
    }
  }
  return end;
}

/// Returns true only if `Normalise` changes nothing; false also for any other text with a line feed.
[[nodiscard]] bool IsNormalised(std::string_view bytes) noexcept;

/// Removes CR LF pairs, then LF CR pairs, then makes each run of blanks one.
void Normalise(std::string& bytes);

[[nodiscard]] constexpr bool IsBlankByte(char ch) noexcept { return static_cast<unsigned char>(ch) <= 0x20; }

/// `bytes` without the bytes 0 to 32 at both ends.
[[nodiscard]] constexpr std::string_view TrimmedBytes(std::string_view bytes) noexcept {
  while (!bytes.empty() && IsBlankByte(bytes.front())) bytes.remove_prefix(1);
  while (!bytes.empty() && IsBlankByte(bytes.back())) bytes.remove_suffix(1);
  return bytes;
}

[[nodiscard]] constexpr char LowerByte(char ch) noexcept {
  return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + ('a' - 'A')) : ch;
}

}  // namespace ravo::xml
