#pragma once

#include <cstdint>

/// The calendar conversions as defined, step by step in checked 32-bit arithmetic. The exported functions
/// give the same results faster for common dates and call these for the others.
namespace ravo::utils {

struct JulianParts {
  std::int32_t year = 0;
  std::int32_t month = 0;
  std::int32_t day = 0;
};

/// Throws `OverflowError` if an intermediate result does not fit 32 bits.
[[nodiscard]] std::int32_t JulianDateByFormula(std::int32_t year, std::int32_t month, std::int32_t day);
[[nodiscard]] JulianParts JulianPartsByFormula(std::int32_t date);

/// The ISO 8601 week.
[[nodiscard]] std::int32_t IsoWeekByFormula(std::int32_t date);

/// Returns dividend modulo divisor, from 0 to divisor - 1 for negative dividends too.
[[nodiscard]] constexpr std::int32_t Modulo(std::int32_t dividend, std::int32_t divisor) noexcept {
  const std::int32_t remainder = dividend % divisor;
  return remainder < 0 ? remainder + divisor : remainder;
}

}  // namespace ravo::utils
