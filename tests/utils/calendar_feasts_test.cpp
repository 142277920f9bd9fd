#include <ravo/runtime/error.h>
#include <ravo/utils/calendar.h>

#include <limits>
#include <set>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using Numbers = std::initializer_list<std::uint16_t>;

// The anonymous Gregorian algorithm, with its century terms.
TJulianDate GregorianEaster(std::int32_t year) {
  const std::int32_t a = year % 19;
  const std::int32_t b = year / 100;
  const std::int32_t c = year % 100;
  const std::int32_t h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
  const std::int32_t l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
  const std::int32_t m = (a + 11 * h + 22 * l) / 451;
  const std::int32_t days = h + l - 7 * m + 114;
  return YmdToJulianDate(year, static_cast<std::uint16_t>(days / 31),
                         static_cast<std::uint16_t>(days % 31 + 1));
}

// The formula as stated, step by step, for years that are not negative.
TJulianDate EasterByFormula(std::int32_t year) {
  const std::int32_t d = (234 - 11 * (year % 19)) % 30;
  const std::int32_t p = d + 21;
  const std::int32_t e = p > 48 ? 1 : 0;
  const std::int32_t w = (year + year / 4 + p - e + 1) % 7;
  return YmdToJulianDate(year, 3, 1) + (p - e) + 6 - w;
}

TEST(EasterSunday, StatedYears) {
  EXPECT_EQ(EasterSunday(2024), YmdToJulianDate(2024, 3, 31));
  EXPECT_EQ(EasterSunday(2025), YmdToJulianDate(2025, 4, 20));
  std::uint16_t month = 0;
  std::uint16_t day = 0;
  EasterSundayYmd(2024, month, day);
  EXPECT_EQ(month, 3);
  EXPECT_EQ(day, 31);
}

TEST(EasterSunday, IsGregorianFrom1900To2099) {
  for (std::int32_t year = 1900; year <= 2099; ++year)
    EXPECT_EQ(EasterSunday(year), GregorianEaster(year)) << year;
}

TEST(EasterSunday, IsTheBareFormulaOutside) {
  EXPECT_EQ(EasterSunday(2100), YmdToJulianDate(2100, 3, 27));
  EXPECT_EQ(GregorianEaster(2100), YmdToJulianDate(2100, 3, 28));
  for (std::int32_t year = 0; year <= 9999; ++year)
    EXPECT_EQ(EasterSunday(year), EasterByFormula(year)) << year;
}

// By hand: year -1 has the remainder 18 of 19, the moon is on day 27, and the weekday of the formula is 6.
TEST(EasterSunday, OfNegativeYearsTakesRemaindersUpwards) {
  EXPECT_EQ(EasterSunday(-1), YmdToJulianDate(-1, 3, 1) + 27);
  EXPECT_EQ(EasterSunday(-19), YmdToJulianDate(-19, 3, 1) + 45 + 6 - 2);
}

TEST(EasterSunday, RaisesWhereTheYearIsTooLarge) {
  constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
  for (const std::int32_t year : {kLargest, kLargest / 2, -kLargest})
    EXPECT_THROW(static_cast<void>(EasterSunday(year)), OverflowError) << year;
}

TEST(IsHolidayInGermany, StatedDays) {
  EXPECT_TRUE(IsHolidayInGermanyYmd(2024, 3, 29));
  EXPECT_TRUE(IsHolidayInGermanyYmd(2024, 12, 31));
  EXPECT_FALSE(IsHolidayInGermanyYmd(2024, 3, 30));
}

TEST(IsHolidayInGermany, Has24And31December) {
  for (const std::uint16_t day : Numbers{24, 25, 26, 31})
    EXPECT_TRUE(IsHolidayInGermanyYmd(2024, 12, day)) << day;
  for (const std::uint16_t day : Numbers{23, 27, 28, 30})
    EXPECT_FALSE(IsHolidayInGermanyYmd(2024, 12, day)) << day;
}

// Every day of the years in which Easter is the Gregorian one, compared with a list made for each year.
TEST(IsHolidayInGermany, IsTheStatedListOnEveryDay) {
  for (std::int32_t year = 1900; year <= 2099; ++year) {
    std::set<TJulianDate> holidays;
    for (const auto& [month, day] : std::initializer_list<std::pair<std::uint16_t, std::uint16_t>>{
             {10, 3}, {12, 24}, {12, 25}, {12, 26}, {12, 31}, {1, 1}, {5, 1}})
      holidays.insert(YmdToJulianDate(year, month, day));
    for (const std::int32_t days : {-2, 1, 39, 50}) holidays.insert(GregorianEaster(year) + days);
    for (TJulianDate date = YmdToJulianDate(year, 1, 1); date <= YmdToJulianDate(year, 12, 31); ++date)
      ASSERT_EQ(IsHolidayInGermany(date), date % 7 == 6 || holidays.contains(date)) << date;
  }
}

}  // namespace
}  // namespace ravo::DIUtils
