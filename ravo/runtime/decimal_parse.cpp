#include <ravo/runtime/decimal_parse.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

namespace ravo {
namespace {

constexpr std::int64_t kFarthestPlace = 1'000'000;
// Larger than the length of any text, so leading or trailing zeros cannot compensate for it.
constexpr std::int64_t kLargestExponent = std::int64_t{1} << 60;

constexpr bool IsDigit(char16_t ch) { return ch >= u'0' && ch <= u'9'; }

std::u16string_view WithoutBlanks(std::u16string_view text) {
  while (!text.empty() && text.front() == u' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
  return text;
}

// Removes a leading sign; returns whether it was "-".
bool TakeSign(std::u16string_view& rest) {
  const bool is_negative = rest.starts_with(u'-');
  if (is_negative || rest.starts_with(u'+')) rest.remove_prefix(1);
  return is_negative;
}

std::u16string_view TakeDigits(std::u16string_view& rest) {
  const auto end = std::ranges::find_if_not(rest, IsDigit);
  const auto digits = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(digits.size());
  return digits;
}

void Append(std::string& digits, std::u16string_view text) {
  for (const char16_t ch : text) digits.push_back(static_cast<char>(ch));
}

// Returns the exponent if all of `rest` is one, else no value.
std::optional<std::int64_t> ReadExponent(std::u16string_view rest) {
  if (rest.empty()) return 0;
  if (AsciiLower(rest.front()) != u'e') return std::nullopt;
  rest.remove_prefix(1);
  const bool is_negative = TakeSign(rest);
  const std::u16string_view digits = TakeDigits(rest);
  if (digits.empty() || !rest.empty()) return std::nullopt;
  std::int64_t exponent = 0;
  for (const char16_t ch : digits) exponent = std::min(exponent * 10 + (ch - u'0'), kLargestExponent / 10);
  return is_negative ? -exponent : exponent;
}

DecimalNumber Normalized(bool is_negative, const std::string& digits, std::int64_t point) {
  const std::size_t first = digits.find_first_not_of('0');
  if (first == std::string::npos) return {is_negative, {}, 0};
  const std::size_t end = digits.find_last_not_of('0') + 1;
  point = std::clamp(point - static_cast<std::int64_t>(first), -kFarthestPlace, kFarthestPlace);
  return {is_negative, digits.substr(first, end - first), static_cast<int>(point)};
}

}  // namespace

std::optional<DecimalNumber> TryParseDecimal(std::u16string_view text, char16_t decimal_separator) {
  std::u16string_view rest = WithoutBlanks(text);
  const bool is_negative = TakeSign(rest);
  std::string digits;
  Append(digits, TakeDigits(rest));
  const auto whole_digits = static_cast<std::int64_t>(digits.size());
  if (rest.starts_with(decimal_separator)) {
    rest.remove_prefix(1);
    Append(digits, TakeDigits(rest));
  }
  if (digits.empty()) return std::nullopt;
  const std::optional<std::int64_t> exponent = ReadExponent(rest);
  if (!exponent) return std::nullopt;
  return Normalized(is_negative, digits, whole_digits + *exponent);
}

}  // namespace ravo
