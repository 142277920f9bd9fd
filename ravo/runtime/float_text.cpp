#include <ravo/runtime/binary_float.h>
#include <ravo/runtime/float_text.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace ravo {
namespace {

constexpr int kLowestPlainPoint = -4;
constexpr int kGroup = 3;

std::u16string_view SignOf(const DecimalNumber& number) {
  return number.negative && !number.digits.empty() ? u"-" : u"";
}

// Returns the digits from `from` up to but not including `to`, counted from the decimal point; missing digits
// are zeros.
std::u16string DigitsBetween(const DecimalNumber& number, std::int64_t from, std::int64_t to) {
  std::u16string text;
  for (std::int64_t i = from + number.point; i < to + number.point; ++i) {
    const bool is_inside = i >= 0 && std::cmp_less(i, number.digits.size());
    text.push_back(static_cast<char16_t>(is_inside ? number.digits[static_cast<std::size_t>(i)] : '0'));
  }
  return text;
}

std::u16string WholePart(const DecimalNumber& number) {
  return number.point > 0 ? DigitsBetween(number, -number.point, 0) : u"0";
}

std::u16string Decimals(char16_t decimal_separator, const std::u16string& digits) {
  return digits.empty() ? digits : decimal_separator + digits;
}

std::u16string PlainText(const DecimalNumber& number, int decimals, char16_t decimal_separator) {
  return WholePart(number) + Decimals(decimal_separator, DigitsBetween(number, 0, decimals));
}

std::u16string ShortestPlainText(const DecimalNumber& number, char16_t decimal_separator) {
  const int decimals = static_cast<int>(number.digits.size()) - number.point;
  return PlainText(number, decimals, decimal_separator);
}

std::u16string ShortestScientificText(DecimalNumber number, char16_t decimal_separator) {
  const std::int64_t exponent = std::int64_t{number.point} - 1;
  number.point = 1;
  return ShortestPlainText(number, decimal_separator) + u'E' + ToText(exponent);
}

// Rounds once, at whichever limit comes first: a second rounding could take the result of the first for a
// half and carry.
DecimalNumber RoundedForFixed(const DecimalNumber& number, int decimals) {
  return std::int64_t{number.point} + decimals > kFloatDigits ? RoundedToDigits(number, kFloatDigits)
                                                              : RoundedToPlaces(number, decimals);
}

std::u16string Grouped(const std::u16string& whole, std::u16string_view thousands_separator) {
  std::u16string text;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (i != 0 && (whole.size() - i) % kGroup == 0) text += thousands_separator;
    text.push_back(whole[i]);
  }
  return text;
}

}  // namespace

std::u16string ExactText(const DecimalNumber& number, char16_t decimal_separator) {
  return std::u16string(SignOf(number)) + ShortestPlainText(number, decimal_separator);
}

std::u16string GeneralText(const DecimalNumber& number, char16_t decimal_separator, int digits) {
  const DecimalNumber rounded = RoundedToDigits(number, digits);
  if (rounded.digits.empty()) return u"0";
  const bool is_plain = rounded.point >= kLowestPlainPoint && rounded.point <= digits;
  if (is_plain) return ExactText(rounded, decimal_separator);
  return std::u16string(SignOf(rounded)) + ShortestScientificText(rounded, decimal_separator);
}

std::u16string ScientificText(const DecimalNumber& number, int digits, char16_t decimal_separator) {
  digits = std::max(digits, 1);
  DecimalNumber rounded = RoundedToDigits(number, digits);
  const int exponent = rounded.digits.empty() ? 0 : rounded.point - 1;
  rounded.point = 1;
  const std::u16string size = ToText(std::int64_t{std::abs(exponent)});
  return std::u16string(SignOf(rounded)) + PlainText(rounded, digits - 1, decimal_separator) +
         (exponent < 0 ? u"E-" : u"E+") + std::u16string(size.size() < 3 ? 3 - size.size() : 0, u'0') + size;
}

std::u16string GeneralText(Extended value, char16_t decimal_separator) {
  using Bits = FloatBits<Extended>;
  switch (Bits::Kind(value)) {
    case FloatKind::Infinite:
      return Bits::IsNegative(value) ? u"-INF" : u"INF";
    case FloatKind::NotANumber:
      return u"NAN";
    case FloatKind::Finite:
      break;
  }
  return GeneralText(ToDecimal(value), decimal_separator);
}

std::u16string FixedText(const DecimalNumber& number, int decimals, char16_t decimal_separator) {
  return NumberText(number, decimals, decimal_separator, u"");
}

std::u16string NumberText(const DecimalNumber& number, int decimals, char16_t decimal_separator,
                          std::u16string_view thousands_separator) {
  decimals = std::max(decimals, 0);
  const DecimalNumber rounded = RoundedForFixed(number, decimals);
  std::u16string text(SignOf(rounded));
  text += Grouped(WholePart(rounded), thousands_separator);
  text += Decimals(decimal_separator, DigitsBetween(rounded, 0, decimals));
  return text;
}

}  // namespace ravo
