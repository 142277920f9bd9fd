#pragma once

#include <ravo/runtime/text.h>

#include <concepts>
#include <cstddef>
#include <limits>
#include <string_view>
#include <type_traits>

namespace ravo {

/// What was read, and the 1-based position of the character that ended the reading too early: the first that
/// is no digit, the digit with which the value leaves its range, the place behind a text that lacks digits. 0
/// where the whole text is an integer; the value is 0 where it is not.
template <std::signed_integral Integer>
struct ParsedInteger {
  Integer value = 0;
  std::size_t error = 0;
};

/// The digits of `text` from the place `at` to its end, up to `limit`.
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

/// The place behind "$", "x" or "0x" (either case) at the place `at`; `at` where none of them stands there.
template <class Char>
[[nodiscard]] constexpr std::size_t BehindHexPrefix(std::basic_string_view<Char> text,
                                                    std::size_t at) noexcept {
  const auto is_x = [&](std::size_t place) {
    return place < text.size() && (text[place] == Char{'x'} || text[place] == Char{'X'});
  };
  if (at < text.size() && text[at] == Char{'$'}) return at + 1;
  if (is_x(at)) return at + 1;
  return at < text.size() && text[at] == Char{'0'} && is_x(at + 1) ? at + 2 : at;
}

/// Reads a whole text as a signed integer: blanks (U+0020) in front, an optional sign, then decimal digits,
/// or hexadecimal digits behind "$", "x" or "0x" (either case). Hexadecimal values that fill the type are
/// taken as the bits of the result, which a "-" then negates within the type. Nothing may follow.
template <std::signed_integral Integer, class Char>
[[nodiscard]] constexpr ParsedInteger<Integer> ReadInteger(std::basic_string_view<Char> text) noexcept {
  using Bits = std::make_unsigned_t<Integer>;
  std::size_t at = 0;
  while (at < text.size() && text[at] == Char{' '}) ++at;
  const bool is_negative = at < text.size() && text[at] == Char{'-'};
  if (is_negative || (at < text.size() && text[at] == Char{'+'})) ++at;
  const std::size_t digits = BehindHexPrefix(text, at);
  const bool is_hex = digits != at;
  const auto most = static_cast<Bits>(static_cast<Bits>(std::numeric_limits<Integer>::max()) + is_negative);
  ParsedInteger<Integer> result;
  const Bits value =
      ReadDigits(text, digits, is_hex ? 16 : 10, is_hex ? static_cast<Bits>(-1) : most, result.error);
  result.value = static_cast<Integer>(is_negative ? static_cast<Bits>(0 - value) : value);
  return result;
}

}  // namespace ravo
