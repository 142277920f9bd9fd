#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Small text helpers on UTF-16 that every room needs. Positions here are 0-based; `npos` means not found.
namespace ravo {

/// UTF-16 to UTF-8. An unpaired surrogate becomes U+FFFD.
[[nodiscard]] RAVO_API std::string ToUtf8(std::u16string_view text);

/// UTF-8 to UTF-16. Each maximal ill-formed piece becomes one U+FFFD.
[[nodiscard]] RAVO_API std::u16string FromUtf8(std::string_view bytes);

/// `text` without the code units U+0000 to U+0020 at both ends.
[[nodiscard]] RAVO_API std::u16string_view Trimmed(std::u16string_view text) noexcept;

/// `ch` with A to Z made lower case, every other code unit as it is.
[[nodiscard]] constexpr char16_t AsciiLower(char16_t ch) noexcept {
  return ch >= u'A' && ch <= u'Z' ? static_cast<char16_t>(ch + (u'a' - u'A')) : ch;
}

/// Whether `ch` is one of A to Z or a to z.
[[nodiscard]] constexpr bool IsAsciiLetter(char16_t ch) noexcept {
  return AsciiLower(ch) >= u'a' && AsciiLower(ch) <= u'z';
}

/// Whether two texts are equal when A to Z and a to z count as the same.
[[nodiscard]] RAVO_API bool SameAsciiText(std::u16string_view left, std::u16string_view right) noexcept;

/// `text` with the first `what` replaced by `with`; unchanged where `what` is empty or absent.
[[nodiscard]] RAVO_API std::u16string ReplaceFirst(std::u16string_view text, std::u16string_view what,
                                                   std::u16string_view with);

/// `text` with every `what` replaced by `with`, searched from left to right; unchanged where `what` is empty.
[[nodiscard]] RAVO_API std::u16string ReplaceAll(std::u16string_view text, std::u16string_view what,
                                                 std::u16string_view with);

/// Decimal text, "-" in front of negative values.
[[nodiscard]] RAVO_API std::u16string ToText(std::int64_t value);
[[nodiscard]] RAVO_API std::u16string ToText(std::uint64_t value);

/// `value` in upper-case hexadecimal digits, padded with zeros to at least `digits`.
[[nodiscard]] RAVO_API std::u16string ToHex(std::uint64_t value, int digits);

/// The value of a hexadecimal digit of either case, or -1.
[[nodiscard]] constexpr int HexDigitValue(char16_t ch) noexcept {
  if (ch >= u'0' && ch <= u'9') return ch - u'0';
  const char16_t lower = AsciiLower(ch);
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

}  // namespace ravo
