#include <ravo/runtime/decimal_parse.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/nearest_float.h>
#include <ravo/runtime/number_parse.h>
#include <ravo/runtime/text.h>

#include <limits>
#include <string>

namespace ravo {
namespace {

constexpr std::int64_t kMost32Bits = 0xFFFFFFFF;

// Takes what announces hexadecimal digits off the front.
bool TakeHexPrefix(std::u16string_view& rest) {
  for (const std::u16string_view prefix : {u"$", u"x", u"0x"}) {
    if (!SameAsciiText(rest.substr(0, prefix.size()), prefix)) continue;
    rest.remove_prefix(prefix.size());
    return true;
  }
  return false;
}

// The value of one or more digits, and nothing else, up to FFFFFFFF.
std::optional<std::int64_t> ReadDigits(std::u16string_view digits, int base) noexcept {
  if (digits.empty()) return std::nullopt;
  std::int64_t value = 0;
  for (const char16_t ch : digits) {
    const int digit = HexDigitValue(ch);
    if (digit < 0 || digit >= base) return std::nullopt;
    value = value * base + digit;
    if (value > kMost32Bits) return std::nullopt;
  }
  return value;
}

std::optional<std::int32_t> Narrowed(std::int64_t value) noexcept {
  using Limits = std::numeric_limits<std::int32_t>;
  if (value < Limits::min() || value > Limits::max()) return std::nullopt;
  return static_cast<std::int32_t>(value);
}

}  // namespace

std::optional<std::int32_t> TryParseInteger(std::u16string_view text) noexcept {
  while (text.starts_with(u' ')) text.remove_prefix(1);
  const bool is_negative = text.starts_with(u'-');
  if (is_negative || text.starts_with(u'+')) text.remove_prefix(1);
  const bool is_hex = TakeHexPrefix(text);
  const std::optional<std::int64_t> magnitude = ReadDigits(text, is_hex ? 16 : 10);
  if (!magnitude) return std::nullopt;
  const std::int64_t value = is_negative ? -*magnitude : *magnitude;
  return is_hex ? static_cast<std::int32_t>(static_cast<std::uint32_t>(value)) : Narrowed(value);
}

std::int32_t ParseInteger(std::u16string_view text) {
  if (const auto value = TryParseInteger(text)) return *value;
  throw ConvertError(u"'" + std::u16string(text) + u"' is not a valid integer value");
}

std::optional<Extended> TryParseFloat(std::u16string_view text, char16_t decimal_separator) {
  const std::optional<DecimalNumber> number = TryParseDecimal(text, decimal_separator);
  return number ? NearestFloat<Extended>(*number) : std::nullopt;
}

Extended ParseFloat(std::u16string_view text, char16_t decimal_separator) {
  if (const auto value = TryParseFloat(text, decimal_separator)) return *value;
  throw ConvertError(u"'" + std::u16string(text) + u"' is not a valid floating point value");
}

}  // namespace ravo
