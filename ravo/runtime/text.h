// The types that every other room uses, and the exact arithmetic below them.
//
// Text is UTF-16 (text.h, string_list.h). Errors are the classes of error.h; checked.h throws them where
// integer arithmetic leaves its type. Numbers that are stored or shown are computed in integers: decimal.h
// holds an exact decimal number, nearest_float.h rounds it to a float, float_text.h writes it, number_parse.h
// and decimal_parse.h read it. Money is currency.h, dates are date_time.h and date_text.h, tagged values are
// variant.h, bytes are byte_stream.h. Interfaces of the platform's component runtime are component.h and
// dispatch.h, with component_ptr.h to hold a reference and component_object.h to implement one. wide_string.h
// is the text that travels through them.
//
// Start here, then read error.h and decimal.h. This room includes no other room and no system header. The
// results of its arithmetic depend neither on the floating-point types of the compiler nor on the state of
// the processor.
#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Helpers for UTF-16 text. Positions are 0-based.
namespace ravo {

/// Returns `text` in UTF-8. An unpaired surrogate becomes U+FFFD.
[[nodiscard]] RAVO_API std::string ToUtf8(std::u16string_view text);

/// Returns `bytes`, which are UTF-8, in UTF-16. Each maximal ill-formed subsequence becomes one U+FFFD.
[[nodiscard]] RAVO_API std::u16string FromUtf8(std::string_view bytes);

/// Returns `text` without leading and trailing code units U+0000 to U+0020. The view refers to the memory of
/// `text`.
[[nodiscard]] RAVO_API std::u16string_view Trimmed(std::u16string_view text) noexcept;

/// Returns the lower-case letter for A to Z, and `ch` itself for every other code unit.
[[nodiscard]] constexpr char16_t AsciiLower(char16_t ch) noexcept {
  return ch >= u'A' && ch <= u'Z' ? static_cast<char16_t>(ch + (u'a' - u'A')) : ch;
}

/// Returns whether `ch` is an ASCII letter: A to Z or a to z.
[[nodiscard]] constexpr bool IsAsciiLetter(char16_t ch) noexcept {
  return AsciiLower(ch) >= u'a' && AsciiLower(ch) <= u'z';
}

/// Returns whether two texts are equal, ignoring the case of ASCII letters only.
[[nodiscard]] RAVO_API bool SameAsciiText(std::u16string_view left, std::u16string_view right) noexcept;

/// Returns `text` with the first occurrence of `what` replaced by `with`; unchanged if `what` is empty or
/// absent.
[[nodiscard]] RAVO_API std::u16string ReplaceFirst(std::u16string_view text, std::u16string_view what,
                                                   std::u16string_view with);

/// Returns `text` with each occurrence of `what` replaced by `with`, searched from left to right; unchanged
/// if `what` is empty.
[[nodiscard]] RAVO_API std::u16string ReplaceAll(std::u16string_view text, std::u16string_view what,
                                                 std::u16string_view with);

/// Returns `value` in decimal digits, with a leading "-" if it is negative.
[[nodiscard]] RAVO_API std::u16string ToText(std::int64_t value);
[[nodiscard]] RAVO_API std::u16string ToText(std::uint64_t value);

/// Returns `value` in upper-case hexadecimal digits, zero-padded to at least `digits` digits.
[[nodiscard]] RAVO_API std::u16string ToHex(std::uint64_t value, int digits);

/// Returns the value of a hexadecimal digit of either case, or -1 if `ch` is not one.
[[nodiscard]] constexpr int HexDigitValue(char16_t ch) noexcept {
  if (ch >= u'0' && ch <= u'9') return ch - u'0';
  const char16_t lower = AsciiLower(ch);
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

}  // namespace ravo
