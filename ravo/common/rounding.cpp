#include <ravo/common/rounding.h>
#include <ravo/common/rounding_reference.h>

#include <array>
#include <cstdlib>
#include <limits>

namespace ravo::RavoInterfaceCommon {
namespace {

constexpr int kMostDecimals = 4;

// Ten-thousandths in one unit of the kept precision, for 0 to 4 decimals.
constexpr std::array<std::int64_t, kMostDecimals + 1> kUnits{10000, 1000, 100, 10, 1};

// The integer form below equals the arithmetic of the 80-bit format as long as raw x 10^(Decimals + 4) fits
// into 63 bits. Then that product is exact in a 64-bit mantissa. rtUp and rtDown divide it by 10^4, which
// leaves the integer raw x 10^Decimals. rtMath divides it by 10^8: whole quotients are exact, and others have
// at most four decimal places and are below 2^37, so that their error (below 2^-27) cannot move the fraction
// when it is rounded to four places. The way back, units / scale x 10^8, is an integer below 2^50 with an
// error below 2^-12.
template <int kDecimals>
constexpr std::int64_t Most() {
  return std::numeric_limits<std::int64_t>::max() / (kUnits[0] * (kUnits[0] / kUnits[kDecimals]));
}

template <int kDecimals>
Currency RoundExact(std::int64_t raw, TRoundType type) {
  constexpr std::int64_t kUnit = kUnits[kDecimals];
  constexpr std::int64_t kHalf = (kUnit + 1) / 2;
  const std::int64_t whole = raw / kUnit;
  const std::int64_t rest = raw % kUnit;
  const std::int64_t away = raw >= 0 ? 1 : -1;
  if (type == rtMath) return {(whole + (std::abs(rest) >= kHalf ? away : 0)) * kUnit};
  const std::int64_t units = std::abs(whole) + (type == rtUp && rest != 0 ? 1 : 0);
  return {away * static_cast<std::int32_t>(static_cast<std::uint32_t>(units)) * kUnit};
}

template <int kDecimals>
bool TryRound(Currency& value, TRoundType type) {
  if (value.raw > Most<kDecimals>() || value.raw < -Most<kDecimals>()) return false;
  value = RoundExact<kDecimals>(value.raw, type);
  return true;
}

bool TryRound(Currency& value, TRoundType type, int decimals) {
  switch (decimals) {
    case 0:
      return TryRound<0>(value, type);
    case 1:
      return TryRound<1>(value, type);
    case 2:
      return TryRound<2>(value, type);
    case 3:
      return TryRound<3>(value, type);
    case 4:
      return TryRound<4>(value, type);
    default:
      return false;
  }
}

// To the nearest 0.50, quarters away from zero.
Currency RoundToHalves(Currency value) {
  const std::int64_t whole = value.raw / Currency::kScale;
  const std::int64_t fraction = std::abs(value.raw % Currency::kScale);
  const std::int64_t halves = fraction >= 7500 ? 2 : fraction >= 2500 ? 1 : 0;
  const std::int64_t step = halves * (Currency::kScale / 2);
  return {whole * Currency::kScale + (value.raw > 0 ? step : -step)};
}

}  // namespace

Currency RoundValue(Currency Value, TRoundType RoundType, std::int8_t Decimals) {
  if (RoundType != rtUp && RoundType != rtDown && RoundType != rtMath) return Value;
  return TryRound(Value, RoundType, Decimals) ? Value : RoundValueReference(Value, RoundType, Decimals);
}

Currency RoundDPH(Currency Value, char16_t Kind) {
  switch (Kind) {
    case u'H':
      return RoundValue(Value, rtMath, 2);
    case u'D':
      return RoundValue(Value, rtMath, 1);
    case u'P':
      return RoundToHalves(Value);
    case u'N':
      return RoundValue(Value, rtUp, 1);
    case u'M':
      return RoundValue(Value, rtMath, 0);
    default:
      return Value;
  }
}

}  // namespace ravo::RavoInterfaceCommon
