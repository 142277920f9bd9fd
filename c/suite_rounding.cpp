#include "support.h"
#include <ravo/common/rounding.h>

#include <cmath>

using ravo::c::Computed;
using ravo::c::FailNullResult;
using ravo::c::FailRange;
namespace suite = ravo::RavoInterfaceCommon;

namespace {

constexpr std::string_view kNoRoom = "the scaled amount or the result does not fit 64 bits";

// A direction of any other number leaves values as they are.
bool Rounds(std::uint8_t direction) { return direction <= RAVO_SUITE_ROUND_MATH; }

}  // namespace

ravo_status ravo_suite_round_value(ravo_money amount, uint8_t direction, int8_t decimals, ravo_money* result,
                                   ravo_error* error) {
  if (result == nullptr) return FailNullResult(error);
  if (Rounds(direction) && (decimals < -4 || decimals > 14))
    return FailRange(error, "the decimals are not -4 to 14");
  return Computed(
      result, error,
      [&] { return suite::RoundValue({amount}, static_cast<suite::TRoundType>(direction), decimals).raw; },
      kNoRoom);
}

ravo_status ravo_suite_round_value_float(double value, uint8_t direction, int8_t decimals, double* result,
                                         ravo_error* error) {
  if (result == nullptr) return FailNullResult(error);
  if (Rounds(direction) && !std::isfinite(value)) return FailRange(error, "the value is not finite");
  return Computed(
      result, error,
      [&] { return suite::RoundValueFloat(value, static_cast<suite::TRoundType>(direction), decimals); },
      "the value with its decimals does not fit 64 bits");
}

ravo_status ravo_suite_round_dph(ravo_money amount, int32_t letter, ravo_money* result, ravo_error* error) {
  // Letters past a unit of UTF-16 are none of the five either.
  const bool is_unit = letter >= 0 && letter <= 0xFFFF;
  return Computed(
      result, error,
      [&] { return suite::RoundDPH({amount}, is_unit ? static_cast<char16_t>(letter) : u' ').raw; }, kNoRoom);
}
