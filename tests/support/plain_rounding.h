#pragma once

#include <ravo/common/rounding.h>
#include <ravo/runtime/error.h>

#include <cfloat>
#include <cmath>
#include <cstdlib>

/// Rounding by the textbook, in the processor's own 80-bit arithmetic: the witness of the tests and a rival
/// of the benchmarks. Exact only if `long double` has a 64-bit mantissa and the processor is in its default
/// state.
namespace ravo::test::plain {

inline constexpr bool kHasExtended = LDBL_MANT_DIG == 64;

inline std::int64_t Checked(long double whole) {
  if (!(whole >= -9223372036854775808.0L && whole < 9223372036854775808.0L)) throw FloatError(u"invalid");
  return static_cast<std::int64_t>(whole);
}

inline std::int64_t Round(long double value) { return Checked(std::rint(value)); }
inline std::int64_t Trunc(long double value) { return Checked(std::trunc(value)); }
inline long double Frac(long double value) { return value - std::trunc(value); }

inline std::int32_t Ceil32(long double value) {
  const std::int64_t whole = Trunc(value) + (Frac(value) > 0 ? 1 : 0);
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(whole));
}

inline std::int32_t Floor32(long double value) {
  const std::int64_t whole = Trunc(value) - (Frac(value) < 0 ? 1 : 0);
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(whole));
}

inline long double PowerOfTen(int exponent) {
  long double power = 1;
  for (int i = std::abs(exponent); i > 0; --i) power *= 10;
  return exponent < 0 ? 1 / power : power;
}

inline Currency RoundValue(Currency value, RavoInterfaceCommon::TRoundType type, int decimals) {
  using namespace RavoInterfaceCommon;
  if (type > rtMath) return value;
  const std::int64_t scale = Round(PowerOfTen(decimals) * 10000);
  if (scale == 0) throw FloatError(u"division by zero");
  const auto s = static_cast<long double>(scale);
  const long double product = static_cast<long double>(value.raw) * s;
  if (type == rtMath) {
    const long double x = product / 100'000'000;
    const std::int64_t f = Round(Frac(x) * 10000);
    const std::int64_t units = f >= 5000 ? Trunc(x + 1) : f <= -5000 ? Trunc(x - 1) : Trunc(x);
    return {Round(static_cast<long double>(units) / s * 100'000'000)};
  }
  const long double magnitude = std::fabs(static_cast<long double>(Round(product / 10000)) / 10000);
  const long double sign = value.raw >= 0 ? 1 : -1;
  const long double units = type == rtUp ? Ceil32(magnitude) : Floor32(magnitude);
  return {Round(sign * units / s * 100'000'000)};
}

inline double RoundValueFloat(double value, RavoInterfaceCommon::TRoundType type, int decimals) {
  using namespace RavoInterfaceCommon;
  if (type > rtMath) return value;
  const long double power = static_cast<double>(PowerOfTen(decimals));
  const long double scaled = static_cast<long double>(value) * power;
  if (type == rtUp)
    return static_cast<double>(Ceil32(static_cast<double>(scaled)) / power * (value >= 0 ? 1 : -1));
  if (type == rtDown) return static_cast<double>(static_cast<long double>(Round(scaled - 0.5L)) / power);
  const auto fraction = static_cast<double>(Frac(scaled));
  const int step = fraction >= 0.5 ? 1 : fraction <= -0.5 ? -1 : 0;
  return static_cast<double>(static_cast<long double>(Trunc(scaled + step)) / power);
}

inline Currency RoundDPH(Currency value, char16_t kind) {
  using namespace RavoInterfaceCommon;
  switch (kind) {
    case u'H':
      return RoundValue(value, rtMath, 2);
    case u'D':
      return RoundValue(value, rtMath, 1);
    case u'N':
      return RoundValue(value, rtUp, 1);
    case u'M':
      return RoundValue(value, rtMath, 0);
    case u'P':
      break;
    default:
      return value;
  }
  const long double amount = static_cast<long double>(value.raw) / 10000;
  const std::int64_t fraction = Round(std::fabs(Frac(amount)) * 10000);
  const long double step = fraction >= 7500 ? 1.0L : fraction >= 2500 ? 0.5L : 0.0L;
  const auto whole = static_cast<long double>(Trunc(amount));
  return {Round((value.raw > 0 ? whole + step : whole - step) * 10000)};
}

}  // namespace ravo::test::plain
