#include <ravo/runtime/checked.h>
#include <ravo/runtime/currency.h>
#include <ravo/runtime/wide_multiply.h>

namespace ravo {
namespace {

std::uint64_t MagnitudeOf(std::int64_t value) {
  const auto bits = static_cast<std::uint64_t>(value);
  return value < 0 ? 0 - bits : bits;
}

Currency WithSign(std::uint64_t magnitude, bool is_negative) {
  constexpr std::uint64_t kLeast = std::uint64_t{1} << 63;
  if (magnitude > kLeast - (is_negative ? 0 : 1)) throw OverflowError(u"Integer overflow");
  return {static_cast<std::int64_t>(is_negative ? 0 - magnitude : magnitude)};
}

// Whether the units above the quotient are those to take.
bool RoundsAway(std::uint64_t remainder, std::uint64_t divisor, Rounding rounding) {
  if (rounding == Rounding::HalfAwayFromZero) return remainder >= divisor - remainder;
  return rounding == Rounding::AwayFromZero && remainder != 0;
}

std::uint64_t Quotient(const Wide128& dividend, std::uint64_t divisor, Rounding rounding) {
  if (dividend.high >= divisor) throw OverflowError(u"Integer overflow");
  const WideQuotient exact = DivideWide(dividend, divisor);
  return CheckedAdd(exact.quotient, std::uint64_t{RoundsAway(exact.remainder, divisor, rounding)});
}

}  // namespace

Currency Currency::FromUnits(std::int64_t units) { return {CheckedMultiply(units, kScale)}; }

Currency operator+(Currency left, Currency right) { return {CheckedAdd(left.raw, right.raw)}; }

Currency operator-(Currency left, Currency right) { return {CheckedSubtract(left.raw, right.raw)}; }

Currency operator-(Currency value) { return {CheckedSubtract(std::int64_t{0}, value.raw)}; }

Currency operator*(Currency value, std::int64_t factor) { return {CheckedMultiply(value.raw, factor)}; }

Currency RoundedTo(Currency value, Currency step, Rounding rounding) {
  return TimesRatio(value, 1, 1, step, rounding);
}

Currency TimesRatio(Currency value, std::int64_t numerator, std::int64_t denominator, Currency step,
                    Rounding rounding) {
  if (step.raw <= 0) throw RangeError(u"Range check error");
  if (denominator == 0) throw DivisionByZero(u"Division by zero");
  const auto unit = static_cast<std::uint64_t>(step.raw);
  const std::uint64_t divisor = CheckedMultiply(MagnitudeOf(denominator), unit);
  const Wide128 product = MultiplyWide(MagnitudeOf(value.raw), MagnitudeOf(numerator));
  const bool is_negative = (value.raw < 0) != ((numerator < 0) != (denominator < 0));
  return WithSign(CheckedMultiply(Quotient(product, divisor, rounding), unit), is_negative);
}

Currency TimesRate(Currency value, Currency rate, Currency step, Rounding rounding) {
  return TimesRatio(value, rate.raw, Currency::kScale, step, rounding);
}

}  // namespace ravo
