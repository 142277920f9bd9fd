#include <ravo/common/rounding.h>
#include <ravo/common/rounding_steps.h>

#include <cstdlib>

namespace ravo::RavoInterfaceCommon::detail {
namespace {

// Rounds to the nearest 0.50, quarters away from zero.
Currency RoundToHalves(Currency value) {
  const std::int64_t whole = value.raw / Currency::kScale;
  const std::int64_t fraction = std::abs(value.raw % Currency::kScale);
  const std::int64_t halves = fraction >= 7500 ? 2 : fraction >= 2500 ? 1 : 0;
  const std::int64_t step = halves * (Currency::kScale / 2);
  return {whole * Currency::kScale + (value.raw > 0 ? step : -step)};
}

}  // namespace

Currency RoundValueOutOfLine(Currency value, TRoundType type, std::int8_t decimals) {
  return common::RoundValueReference(value, type, decimals);
}

Currency RoundDPHOutOfLine(Currency value, char16_t kind) {
  switch (kind) {
    case u'H':
      return common::RoundValueReference(value, rtMath, 2);
    case u'D':
      return common::RoundValueReference(value, rtMath, 1);
    case u'P':
      return RoundToHalves(value);
    case u'N':
      return common::RoundValueReference(value, rtUp, 1);
    case u'M':
      return common::RoundValueReference(value, rtMath, 0);
    // Untested: the inline form handles every other letter.
    default:
      return value;
  }
}

}  // namespace ravo::RavoInterfaceCommon::detail
