#include <ravo/runtime/checked.h>
#include <ravo/utils/calendar_formulas.h>

namespace ravo::utils {

// The formula of Fliegel and Van Flandern. After the first product nothing can overflow: month and day have
// 16 bits.
std::int32_t JulianDateByFormula(std::int32_t year, std::int32_t month, std::int32_t day) {
  const std::int32_t a = (month - 14) / 12;
  const std::int32_t years = CheckedAdd(CheckedAdd(year, 4800), a);
  // Kept: January and February of -4800 are one day late: the formula truncates toward zero. Test:
  // YmdToJulianDate.JanuaryAndFebruaryOfMinus4800AreOneDayLate
  const std::int32_t days_of_years = CheckedMultiply(1461, years) / 4;
  const std::int32_t days_of_months = 367 * (month - 2 - 12 * a) / 12;
  const std::int32_t days_of_centuries = 3 * ((years + 100) / 100) / 4;
  return days_of_years + days_of_months - days_of_centuries + day - 32075;
}

JulianParts JulianPartsByFormula(std::int32_t date) {
  std::int32_t l = CheckedAdd(date, 68569);
  const std::int32_t n = CheckedMultiply(4, l) / 146097;
  l -= (146097 * n + 3) / 4;
  const std::int32_t i = 4000 * (l + 1) / 1461001;
  l += 31 - 1461 * i / 4;
  const std::int32_t j = 80 * l / 2447;
  const std::int32_t day = l - 2447 * j / 80;
  l = j / 11;
  return {100 * (n - 49) + i + l, j + 2 - 12 * l, day};
}

// Removes whole periods of 400, 100 and 4 years in turn.
std::int32_t IsoWeekByFormula(std::int32_t date) {
  const std::int32_t monday = CheckedAdd(date, 31741) - Modulo(date, 7);
  const std::int32_t d4 = Modulo(monday, 146097) % 36524 % 1461;
  const std::int32_t leap = d4 / 1460;
  return ((d4 - leap) % 365 + leap) / 7 + 1;
}

}  // namespace ravo::utils
