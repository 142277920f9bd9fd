#include <ravo/common/rounding_steps.h>

namespace ravo::common {
namespace {

using RavoInterfaceCommon::rtDown;
using RavoInterfaceCommon::rtMath;
using RavoInterfaceCommon::rtUp;
using RavoInterfaceCommon::TRoundType;

// Returns units / scale * 10^8 as a stored amount: whole units of the rounded precision, in ten-thousandths.
Currency FromUnits(const SoftExtended& units, const SoftExtended& scale) {
  return {(units / scale * Scaled(100'000'000)).ToIntegerRounded()};
}

// Rounds to whole units; the fraction is first rounded to four places.
std::int64_t HalvesAwayFromZero(const SoftExtended& value) {
  constexpr std::int64_t kHalf = 5000;
  const std::int64_t fraction = (value.Fraction() * Scaled(10000)).ToIntegerRounded();
  if (fraction >= kHalf) return (value + Scaled(1)).ToIntegerTruncated();
  if (fraction <= -kHalf) return (value - Scaled(1)).ToIntegerTruncated();
  return value.ToIntegerTruncated();
}

}  // namespace

Currency RoundValueReference(Currency value, TRoundType type, std::int8_t decimals) {
  if (type != rtUp && type != rtDown && type != rtMath) return value;
  const std::int64_t scale = (SoftExtended::PowerOfTen(decimals) * Scaled(10000)).ToIntegerRounded();
  const SoftExtended product = Scaled(value.raw) * Scaled(scale);
  if (type == rtMath)
    return FromUnits(Scaled(HalvesAwayFromZero(product / Scaled(100'000'000))), Scaled(scale));
  const std::int64_t scaled = (product / Scaled(10000)).ToIntegerRounded();
  const SoftExtended magnitude = (Scaled(scaled) / Scaled(10000)).Magnitude();
  const SoftExtended units = Scaled(type == rtUp ? Ceiling32(magnitude) : Floor32(magnitude));
  return FromUnits(value.raw >= 0 ? units : Scaled(0) - units, Scaled(scale));
}

}  // namespace ravo::common
