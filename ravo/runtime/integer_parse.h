#pragma once

#include <ravo/runtime/text.h>

#include <concepts>
#include <cstddef>
#include <limits>
#include <string_view>
#include <type_traits>

namespace ravo {

/// The result of reading an integer. `error` is 0 if the whole text is an integer; otherwise `value` is 0 and
/// `error` is the 1-based position where reading failed: the first character that is not a digit, the digit
/// that takes the value out of range, or one past the end of a text without digits.
template <std::signed_integral Integer>
struct ParsedInteger {
  Integer value = 0;
  std::size_t error = 0;
};

/// Returns the value of the digits of `text` from `at` to its end, at most `limit`.
template <std::unsigned_integral Bits, class Char>
[[nodiscard]] constexpr Bits ReadDigits(std::basic_string_view<Char> text, std::size_t at, unsigned base,
                                        Bits limit, std::size_t& error) noexcept {
  Bits value = 0;
  do {
    const int digit =
        at < text.size() ? HexDigitValue(static_cast<std::make_unsigned_t<Char>>(text[at])) : -1;
    const auto add = static_cast<Bits>(digit);
    if (digit < 0 || add >= base || value > (limit - add) / base) {
      error = at + 1;
      return 0;
    }
    value = static_cast<Bits>(value * base + add);
  } while (++at < text.size());
  error = 0;
  return value;
}

/// Returns the position past "$", "x" or "0x" (either case) at `at`; `at` if there is no such prefix.
template <class Char>
[[nodiscard]] constexpr std::size_t SkipHexPrefix(std::basic_string_view<Char> text,
                                                  std::size_t at) noexcept {
  const auto is_x = [&](std::size_t place) {
    return place < text.size() && (text[place] == Char{'x'} || text[place] == Char{'X'});
  };
  if (at < text.size() && text[at] == Char{'$'}) return at + 1;
  if (is_x(at)) return at + 1;
  return at < text.size() && text[at] == Char{'0'} && is_x(at + 1) ? at + 2 : at;
}

/// Reads a text that is a signed integer as a whole: leading blanks (U+0020), an optional sign, then decimal
/// digits, or "$", "x" or "0x" (either case) and hexadecimal digits. Hexadecimal values that fill the type
/// are the bits of the result, which a "-" then negates modulo the type. Trailing characters are not allowed.
template <std::signed_integral Integer, class Char>
[[nodiscard]] constexpr ParsedInteger<Integer> ReadInteger(std::basic_string_view<Char> text) noexcept {
  using Bits = std::make_unsigned_t<Integer>;
  std::size_t at = 0;
  while (at < text.size() && text[at] == Char{' '}) ++at;
  const bool is_negative = at < text.size() && text[at] == Char{'-'};
  if (is_negative || (at < text.size() && text[at] == Char{'+'})) ++at;
  const std::size_t digits = SkipHexPrefix(text, at);
  const bool is_hex = digits != at;
  const auto most = static_cast<Bits>(static_cast<Bits>(std::numeric_limits<Integer>::max()) + is_negative);
  ParsedInteger<Integer> result;
  const Bits value =
      ReadDigits(text, digits, is_hex ? 16 : 10, is_hex ? static_cast<Bits>(-1) : most, result.error);
  result.value = static_cast<Integer>(is_negative ? static_cast<Bits>(0 - value) : value);
  return result;
}

}  // namespace ravo
