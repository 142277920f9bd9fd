#include <ravo/runtime/nearest_float.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace ravo {
namespace {

// Every value of a supported format is between 10^-5000 and 10^5000. Numbers outside are not computed, so the
// work is bounded for any exponent.
constexpr int kFarthestPoint = 5000;

// Rounding changes only at the midpoints between neighbouring values of the format. The longest midpoints are
// odd multiples of 2^-16446 below 2^65 times that: k * 5^16446 / 10^16446, at most 11516 significant digits.
// So no midpoint lies strictly between two numbers that differ only in the 12000th digit, and one extra digit
// can replace any non-zero tail after it.
constexpr std::size_t kSignificantDigits = 12000;

std::string DigitsThatMatter(std::string_view digits) {
  std::string result(digits.substr(0, kSignificantDigits));
  const bool has_tail = digits.find_first_not_of('0', result.size()) != std::string_view::npos;
  if (has_tail) result.push_back('1');
  return result;
}

// Returns the first `count` bits of numerator / denominator, which is at least 1 and less than 2. The
// remainder is left in `numerator`: numerator / denominator halves of the last bit.
std::uint64_t TakeBits(BigNatural& numerator, const BigNatural& denominator, int count) {
  std::uint64_t bits = 0;
  for (; count > 0; --count) {
    bits <<= 1;
    if (numerator >= denominator) {
      numerator.Subtract(denominator);
      bits |= 1;
    }
    numerator.ShiftLeft(1);
  }
  return bits;
}

// Shifts the quotient to at least 1 and less than 2; returns the exponent of 2 that this removed.
int Normalize(BigNatural& numerator, BigNatural& denominator) {
  int exponent = numerator.BitLength() - denominator.BitLength();
  (exponent > 0 ? denominator : numerator).ShiftLeft(exponent > 0 ? exponent : -exponent);
  if (numerator < denominator) {
    numerator.ShiftLeft(1);
    --exponent;
  }
  return exponent;
}

void RoundUp(BinaryFloat& value, const BinaryFormat& format) {
  const std::uint64_t largest = ~std::uint64_t{0} >> (64 - format.bits);
  if (value.mantissa == largest) {
    value.mantissa = std::uint64_t{1} << (format.bits - 1);
    ++value.exponent;
  } else {
    ++value.mantissa;
  }
}

BigNatural Aligned(const BinaryFloat& value, int exponent) {
  BigNatural result(value.mantissa);
  result.ShiftLeft(value.exponent - exponent);
  return result;
}

}  // namespace

std::optional<BinaryFloat> NearestBinary(BigNatural numerator, BigNatural denominator, int exponent,
                                         const BinaryFormat& format) {
  if (numerator.IsZero()) return BinaryFloat{false, 0, format.lowest_exponent};
  const int highest_bit = exponent + Normalize(numerator, denominator);
  BinaryFloat value{false, 0, std::max(format.lowest_exponent, highest_bit - format.bits + 1)};
  const int bits = highest_bit - value.exponent + 1;
  if (bits < 0) return value;  // less than half of the smallest value
  value.mantissa = TakeBits(numerator, denominator, bits);
  const bool is_tie = numerator == denominator;
  if (numerator > denominator || (is_tie && value.mantissa % 2 != 0)) RoundUp(value, format);
  if (value.exponent > format.highest_exponent) return std::nullopt;
  return value;
}

std::optional<BinaryFloat> NearestBinary(const DecimalNumber& number, const BinaryFormat& format) {
  const BinaryFloat zero{number.negative, 0, format.lowest_exponent};
  if (number.digits.empty() || number.point < -kFarthestPoint) return zero;
  if (number.point > kFarthestPoint) return std::nullopt;
  const std::string digits = DigitsThatMatter(number.digits);
  const int exponent = number.point - static_cast<int>(digits.size());
  BigNatural numerator(digits);
  BigNatural denominator(1);
  (exponent >= 0 ? numerator : denominator).MultiplyByPowerOf5(exponent >= 0 ? exponent : -exponent);
  auto value = NearestBinary(std::move(numerator), std::move(denominator), exponent, format);
  if (value) value->negative = number.negative;
  return value;
}

std::optional<std::int64_t> NearestInteger(const DecimalNumber& number) {
  constexpr BinaryFormat kIntegers{64, 0, 0};
  const std::optional<BinaryFloat> parts = NearestBinary(number, kIntegers);
  const std::uint64_t most = (std::uint64_t{1} << 63) - (number.negative ? 0 : 1);
  if (!parts || parts->mantissa > most) return std::nullopt;
  return static_cast<std::int64_t>(number.negative ? 0 - parts->mantissa : parts->mantissa);
}

double NearestQuotient(std::uint64_t numerator, std::uint32_t denominator) {
  using Bits = FloatBits<double>;
  return Bits::Join(*NearestBinary(BigNatural(numerator), BigNatural(denominator), 0, Bits::kFormat));
}

std::optional<double> NearestSum(double left, double right) {
  using Bits = FloatBits<double>;
  const BinaryFloat a = Bits::Split(left);
  const BinaryFloat b = Bits::Split(right);
  const int exponent = std::min(a.exponent, b.exponent);
  BigNatural greater = Aligned(a, exponent);
  BigNatural lesser = Aligned(b, exponent);
  const bool is_swapped = greater < lesser;
  if (is_swapped) std::swap(greater, lesser);
  if (a.negative == b.negative) {
    greater.Add(lesser);
  } else {
    greater.Subtract(lesser);
  }
  const bool is_zero = greater.IsZero();
  auto sum = NearestBinary(std::move(greater), BigNatural(1), exponent, Bits::kFormat);
  if (!sum) return std::nullopt;
  // Opposite values cancel to positive zero.
  sum->negative = is_zero ? a.negative && b.negative : (is_swapped ? b : a).negative;
  return Bits::Join(*sum);
}

}  // namespace ravo
