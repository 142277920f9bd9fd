#include "support.h"
#include <ravo/common/rounding.h>

using ravo::c::Computed;
namespace suite = ravo::RavoInterfaceCommon;

ravo_status ravo_suite_round_value(ravo_money amount, uint8_t direction, int8_t decimals, ravo_money* result,
                                   ravo_error* error) {
  return Computed(result, error, [&] {
    return suite::RoundValue({amount}, static_cast<suite::TRoundType>(direction), decimals).raw;
  });
}

ravo_status ravo_suite_round_value_float(double value, uint8_t direction, int8_t decimals, double* result,
                                         ravo_error* error) {
  return Computed(result, error, [&] {
    return suite::RoundValueFloat(value, static_cast<suite::TRoundType>(direction), decimals);
  });
}

ravo_status ravo_suite_round_dph(ravo_money amount, int32_t letter, ravo_money* result, ravo_error* error) {
  // Letters past a unit of UTF-16 are none of the five either.
  const bool is_unit = letter >= 0 && letter <= 0xFFFF;
  return Computed(result, error, [&] {
    return suite::RoundDPH({amount}, is_unit ? static_cast<char16_t>(letter) : u' ').raw;
  });
}
