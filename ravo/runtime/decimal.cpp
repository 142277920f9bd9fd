#include <ravo/runtime/big_natural.h>
#include <ravo/runtime/binary_float.h>
#include <ravo/runtime/decimal.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/nearest_float.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <utility>

namespace ravo {
namespace {

using ExtendedBits = FloatBits<Extended>;

DecimalNumber Zero(bool negative) { return {negative, {}, 0}; }

// Trailing zeros are dropped, so that equal numbers have equal digits.
DecimalNumber WithoutTrailingZeros(DecimalNumber number) {
  number.digits.erase(number.digits.find_last_not_of('0') + 1);
  return number.digits.empty() ? Zero(number.negative) : number;
}

// Adds one to the last digit. Digits that carry over become trailing zeros.
void Increment(DecimalNumber& number) {
  const std::size_t last = number.digits.find_last_not_of('9');
  if (last == std::string::npos) {
    number.digits = "1";
    ++number.point;
    return;
  }
  ++number.digits[last];
  number.digits.erase(last + 1);
}

// Rounds to the first `kept` digits; with 0, to the place directly before the first digit.
DecimalNumber Rounded(DecimalNumber number, std::int64_t kept) {
  if (kept < 0) return Zero(number.negative);
  if (std::cmp_less(kept, number.digits.size())) {
    const auto end = static_cast<std::size_t>(kept);
    const bool is_up = number.digits[end] >= '5';
    number.digits.resize(end);
    if (is_up) Increment(number);
  }
  return WithoutTrailingZeros(std::move(number));
}

}  // namespace

DecimalNumber ToDecimal(Extended value) {
  if (ExtendedBits::Kind(value) != FloatKind::Finite) throw FloatError(u"Invalid floating point operation");
  BinaryFloat parts = ExtendedBits::Split(value);
  if (parts.mantissa == 0) return Zero(parts.negative);
  const int zeros = std::countr_zero(parts.mantissa);
  const int exponent = parts.exponent + zeros;
  BigDecimalNatural natural(parts.mantissa >> zeros);
  if (exponent >= 0) natural.MultiplyByPowerOf2(exponent);
  if (exponent < 0) natural.MultiplyByPowerOf5(-exponent);
  DecimalNumber number{parts.negative, natural.Digits(), std::min(exponent, 0)};
  number.point += static_cast<int>(number.digits.size());
  return WithoutTrailingZeros(std::move(number));
}

DecimalNumber ToDecimal(std::int64_t value, int decimals) {
  const auto bits = static_cast<std::uint64_t>(value);
  DecimalNumber number{value < 0, BigDecimalNatural(value < 0 ? 0 - bits : bits).Digits(), -decimals};
  number.point += static_cast<int>(number.digits.size());
  return WithoutTrailingZeros(std::move(number));
}

DecimalNumber RoundedToDigits(DecimalNumber number, int digits) {
  return Rounded(std::move(number), digits > 0 ? digits : -1);
}

DecimalNumber RoundedToPlaces(DecimalNumber number, int places) {
  const std::int64_t kept = std::int64_t{number.point} + places;
  return Rounded(std::move(number), kept);
}

Extended ToExtended(const DecimalNumber& number) {
  const std::optional<Extended> value = NearestFloat<Extended>(number);
  if (!value) throw ConvertError(u"Floating point overflow");
  return *value;
}

}  // namespace ravo
