#include <ravo/common/rounding_steps.h>

namespace ravo::common {
namespace {

// Kept: ceiling and floor wrap at 32 bits; stored amounts depend on it. Test:
// RoundValue.CeilingAndFloorWrapAt32Bits
std::int32_t Wrapped(std::int64_t units) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(units));
}

}  // namespace

std::int32_t Ceiling32(const SoftExtended& value) {
  const SoftExtended fraction = value.Fraction();
  return Wrapped(value.ToIntegerTruncated() + (fraction.IsZero() || fraction.IsNegative() ? 0 : 1));
}

std::int32_t Floor32(const SoftExtended& value) {
  // Untested: callers pass no negative value.
  return Wrapped(value.ToIntegerTruncated() - (value.Fraction().IsNegative() ? 1 : 0));
}

}  // namespace ravo::common
