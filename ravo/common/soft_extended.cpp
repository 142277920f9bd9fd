#include <ravo/common/soft_extended.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/wide_multiply.h>

#include <algorithm>
#include <bit>
#include <limits>

namespace ravo {
namespace {

constexpr std::uint64_t kTopBit = std::uint64_t{1} << 63;

constexpr int kDoubleBits = 53;
constexpr int kDoubleBias = 1075;

[[noreturn]] void RaiseInvalid() { throw FloatError(u"Invalid floating point operation"); }

}  // namespace

SoftExtended SoftExtended::FromInteger(std::int64_t value) noexcept {
  if (value == 0) return {};
  const auto bits = static_cast<std::uint64_t>(value);
  const std::uint64_t magnitude = value < 0 ? 0 - bits : bits;
  const int shift = std::countl_zero(magnitude);
  return {value < 0, magnitude << shift, -shift};
}

SoftExtended SoftExtended::FromDouble(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const bool negative = (bits >> 63) != 0;
  const int biased = static_cast<int>((bits >> 52) & 0x7FF);
  const std::uint64_t fraction = bits & ((std::uint64_t{1} << 52) - 1);
  if (biased == 0x7FF) RaiseInvalid();
  const std::uint64_t mantissa = biased == 0 ? fraction : fraction | std::uint64_t{1} << 52;
  if (mantissa == 0) return {};
  const int shift = std::countl_zero(mantissa);
  return {negative, mantissa << shift, (biased == 0 ? 1 : biased) - kDoubleBias - shift};
}

SoftExtended SoftExtended::PowerOfTen(int exponent) noexcept {
  constexpr int kExact = 27;  // 5^27 is the largest power of five below 2^64
  if (exponent < 0) return FromInteger(1) / PowerOfTen(-exponent);
  if (exponent > kExact) return PowerOfTen(exponent - kExact) * PowerOfTen(kExact);
  std::uint64_t fives = 1;
  for (int i = 0; i < exponent; ++i) fives *= 5;
  const int shift = std::countl_zero(fives);
  return {false, fives << shift, exponent - shift};
}

SoftExtended SoftExtended::Magnitude() const noexcept { return {false, mantissa_, exponent_}; }

SoftExtended SoftExtended::Truncated() const noexcept {
  if (exponent_ >= 0) return *this;
  if (exponent_ <= -64) return {};
  const std::uint64_t whole = mantissa_ >> -exponent_ << -exponent_;
  // Untested: the top bit of a mantissa is always set and survives the cut.
  return whole == 0 ? SoftExtended() : SoftExtended(negative_, whole, exponent_);
}

SoftExtended SoftExtended::Fraction() const noexcept { return *this - Truncated(); }

std::int64_t SoftExtended::Signed(std::uint64_t magnitude) const {
  if (magnitude > (negative_ ? kTopBit : kTopBit - 1)) RaiseInvalid();
  return static_cast<std::int64_t>(negative_ ? 0 - magnitude : magnitude);
}

std::int64_t SoftExtended::ToIntegerTruncated() const {
  if (exponent_ > 0) RaiseInvalid();
  return exponent_ <= -64 ? 0 : Signed(mantissa_ >> -exponent_);
}

std::int64_t SoftExtended::ToIntegerRounded() const {
  if (exponent_ > 0) RaiseInvalid();
  if (exponent_ == 0) return Signed(mantissa_);
  if (exponent_ < -64) return 0;
  const std::uint64_t whole = exponent_ == -64 ? 0 : mantissa_ >> -exponent_;
  const std::uint64_t rest = mantissa_
                             << (64 + exponent_);  // the bits after the point, from the top bit down
  const bool up = rest > kTopBit || (rest == kTopBit && (whole & 1) != 0);
  return Signed(whole + (up ? 1 : 0));
}

double SoftExtended::ToDouble() const noexcept {
  if (IsZero()) return 0.0;
  // A normal double keeps 53 bits; below the smallest normal one the position of the last bit is fixed.
  const int cut = std::max(64 - kDoubleBits, 1 - kDoubleBias - exponent_);
  std::uint64_t kept = cut > 63 ? 0 : mantissa_ >> cut;
  const std::uint64_t rest = cut > 64 ? 1 : mantissa_ << (64 - cut);
  if (rest > kTopBit || (rest == kTopBit && (kept & 1) != 0)) ++kept;
  const int exponent = exponent_ + cut + kDoubleBias;
  std::uint64_t bits = 0;
  if (kept != 0) {
    // Addition rather than a bitwise OR: a mantissa that rounded up carries into the exponent.
    bits = exponent == 1 && kept < std::uint64_t{1} << 52
               ? kept
               : (static_cast<std::uint64_t>(exponent - 1) << 52) + kept;
    // Untested: results of rounding stay far below the largest double.
    if (exponent >= 0x7FF || bits >= std::uint64_t{0x7FF} << 52) bits = std::uint64_t{0x7FF} << 52;
  }
  return std::bit_cast<double>(bits | (negative_ ? kTopBit : 0));
}

// Returns dividend * 2^65 / divisor: at least 65 bits, one more than the rounding to 64 bits keeps.
SoftExtended::Wide SoftExtended::Quotient(std::uint64_t dividend, std::uint64_t divisor) noexcept {
  const bool first = dividend >= divisor;
  std::uint64_t rest = first ? dividend - divisor : dividend;
  Wide quotient{0, first ? std::uint64_t{1} : 0, false};
#ifdef __SIZEOF_INT128__
  __extension__ using Uint128 = unsigned __int128;
  const Uint128 numerator = Uint128{rest} << 64;
  quotient = {quotient.low, static_cast<std::uint64_t>(numerator / divisor), false};
  rest = static_cast<std::uint64_t>(numerator % divisor);
  constexpr int kMore = 1;
#else
  constexpr int kMore = 65;
#endif
  for (int i = 0; i < kMore; ++i) {
    const bool bit = (rest & kTopBit) != 0 || rest << 1 >= divisor;
    rest = (rest << 1) - (bit ? divisor : 0);
    quotient.high = quotient.high << 1 | quotient.low >> 63;
    quotient.low = quotient.low << 1 | (bit ? 1 : 0);
  }
  quotient.sticky = rest != 0;
  return quotient;
}

// Returns mantissa * 2^64 >> bits.
SoftExtended::Wide SoftExtended::ShiftedRight(std::uint64_t mantissa, int bits) noexcept {
  if (bits == 0) return {mantissa, 0, false};
  if (bits < 64) return {mantissa >> bits, mantissa << (64 - bits), false};
  if (bits == 64) return {0, mantissa, false};
  if (bits < 128) return {0, mantissa >> (bits - 64), mantissa << (128 - bits) != 0};
  return {0, 0, mantissa != 0};
}

// Returns value * 2^exponent, rounded to a 64-bit mantissa.
SoftExtended SoftExtended::Rounded(bool negative, Wide value, int exponent) noexcept {
  // Untested: operands are normalized, so `low` is 0 if `high` is.
  if (value.high == 0 && value.low == 0) return {};
  // Untested: operands are normalized, so only 0 has no bit in `high`.
  if (value.high == 0) {
    value.high = value.low;
    value.low = 0;
    exponent -= 64;
  }
  const int shift = std::countl_zero(value.high);
  if (shift > 0) {
    value.high = value.high << shift | value.low >> (64 - shift);
    value.low <<= shift;
  }
  exponent += 64 - shift;
  const bool half = (value.low & kTopBit) != 0;
  const bool above = value.low << 1 != 0 || value.sticky;
  if (!half || (!above && (value.high & 1) == 0)) return {negative, value.high, exponent};
  if (value.high == std::numeric_limits<std::uint64_t>::max()) return {negative, kTopBit, exponent + 1};
  return {negative, value.high + 1, exponent};
}

bool SoftExtended::MagnitudeBelow(const SoftExtended& other) const noexcept {
  if (IsZero() || other.IsZero()) return IsZero() && !other.IsZero();
  return exponent_ != other.exponent_ ? exponent_ < other.exponent_ : mantissa_ < other.mantissa_;
}

SoftExtended SoftExtended::AddMagnitudes(bool negative, const SoftExtended& larger,
                                         const SoftExtended& smaller) noexcept {
  if (smaller.IsZero()) return {negative, larger.mantissa_, larger.exponent_};
  Wide sum = ShiftedRight(smaller.mantissa_, larger.exponent_ - smaller.exponent_);
  int exponent = larger.exponent_ - 64;
  sum.high += larger.mantissa_;
  if (sum.high < larger.mantissa_) {  // carry out of the top bit
    sum.sticky |= (sum.low & 1) != 0;
    sum.low = sum.low >> 1 | sum.high << 63;
    sum.high = sum.high >> 1 | kTopBit;
    ++exponent;
  }
  return Rounded(negative, sum, exponent);
}

SoftExtended SoftExtended::SubtractMagnitudes(bool negative, const SoftExtended& larger,
                                              const SoftExtended& smaller) noexcept {
  if (smaller.IsZero()) return {larger.IsZero() ? false : negative, larger.mantissa_, larger.exponent_};
  const Wide cut = ShiftedRight(smaller.mantissa_, larger.exponent_ - smaller.exponent_);
  // Bits cut off below the 128 borrow one from the last bit, and `sticky` stays set.
  Wide rest{0, 0 - cut.low - (cut.sticky ? 1 : 0), cut.sticky};
  const bool borrow = cut.low != 0 || cut.sticky;
  rest.high = larger.mantissa_ - cut.high - (borrow ? 1 : 0);
  return Rounded(negative, rest, larger.exponent_ - 64);
}

SoftExtended operator+(const SoftExtended& left, const SoftExtended& right) noexcept {
  const bool swap = left.MagnitudeBelow(right);
  const SoftExtended& larger = swap ? right : left;
  const SoftExtended& smaller = swap ? left : right;
  return left.negative_ == right.negative_
             ? SoftExtended::AddMagnitudes(larger.negative_, larger, smaller)
             : SoftExtended::SubtractMagnitudes(larger.negative_, larger, smaller);
}

SoftExtended operator-(const SoftExtended& left, const SoftExtended& right) noexcept {
  return left + SoftExtended(!right.negative_, right.mantissa_, right.exponent_);
}

SoftExtended operator*(const SoftExtended& left, const SoftExtended& right) noexcept {
  const Wide128 product = MultiplyWide(left.mantissa_, right.mantissa_);
  return SoftExtended::Rounded(left.negative_ != right.negative_, {product.high, product.low, false},
                               left.exponent_ + right.exponent_);
}

SoftExtended operator/(const SoftExtended& left, const SoftExtended& right) {
  if (right.IsZero()) throw FloatError(u"Floating point division by zero");
  if (left.IsZero()) return {};
  return SoftExtended::Rounded(left.negative_ != right.negative_,
                               SoftExtended::Quotient(left.mantissa_, right.mantissa_),
                               left.exponent_ - right.exponent_ - 65);
}

}  // namespace ravo
