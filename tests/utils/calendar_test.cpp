#include "support/fake_machine.h"
#include <ravo/DIUtils.h>
#include <ravo/runtime/error.h>
#include <ravo/utils/calendar_formulas.h>

#include <limits>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using Numbers = std::initializer_list<std::uint16_t>;

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

struct Date {
  std::int32_t year;
  std::uint16_t month;
  std::uint16_t day;
  friend bool operator==(const Date&, const Date&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Date& date) {
    return out << date.year << '-' << date.month << '-' << date.day;
  }
};

Date Parts(TJulianDate date) {
  Date parts{};
  JulianDateToYmd(date, parts.year, parts.month, parts.day);
  return parts;
}

TJulianDate Julian(const Date& date) { return YmdToJulianDate(date.year, date.month, date.day); }

TEST(YmdToJulianDate, StatedDays) {
  EXPECT_EQ(YmdToJulianDate(2000, 1, 1), 2451545);
  EXPECT_EQ(YmdToJulianDate(-4713, 11, 24), 0);
  EXPECT_EQ(YmdToJulianDate(-4800, 3, 1), -32044);
  EXPECT_EQ(YmdToJulianDate(1970, 1, 1), 2440588);
  EXPECT_EQ(YmdToJulianDate(1899, 12, 30), 2415019);
}

TEST(YmdToJulianDate, DaysBeyondTheMonthCountOn) {
  EXPECT_EQ(YmdToJulianDate(2023, 2, 29), YmdToJulianDate(2023, 3, 1));
  EXPECT_EQ(YmdToJulianDate(2023, 2, 0), YmdToJulianDate(2023, 1, 31));
  EXPECT_EQ(YmdToJulianDate(2000, 1, 65535), 2451544 + 65535);
}

// 1461 * 1469872 is the largest product.
TEST(YmdToJulianDate, RaisesWhereAProductLeaves32Bits) {
  const std::vector<Date> largest = {{1465072, 12, 31}, {1465073, 2, 1}, {-1474672, 3, 1}, {-1474671, 2, 1}};
  for (const Date& date : largest)
    EXPECT_EQ(Julian(date), utils::JulianDateByFormula(date.year, date.month, date.day)) << date;
  const std::vector<Date> beyond = {{1465073, 3, 1},   {1465074, 2, 1},        {-1474673, 3, 1},
                                    {-1474672, 2, 1},  {1465085, 12, 1},       {kLargest, 12, 1},
                                    {kSmallest, 1, 1}, {kLargest - 4800, 1, 1}};
  for (const Date& date : beyond) EXPECT_THROW(static_cast<void>(Julian(date)), OverflowError) << date;
}

TEST(JulianDateToYmd, StatedDays) {
  EXPECT_EQ(Parts(2451545), (Date{2000, 1, 1}));
  EXPECT_EQ(Parts(0), (Date{-4713, 11, 24}));
  EXPECT_EQ(DayOfJulianDate(2460401), 31);
  EXPECT_EQ(MonthOfJulianDate(2460401), 3);
}

TEST(YearOfJuilanDate, KeepsItsName) { EXPECT_EQ(YearOfJuilanDate(2460401), 2024); }

TEST(JulianDateToYmd, RaisesWhereAStepLeavesItsRange) {
  EXPECT_NO_THROW(static_cast<void>(Parts(536802342)));
  for (const TJulianDate date : {536802343, kLargest, kLargest - 68569, kSmallest, -536939482})
    EXPECT_THROW(static_cast<void>(Parts(date)), OverflowError) << date;
}

TEST(JulianDateToYmd, LeavesThePartsAloneWhereItRaises) {
  Date parts{1, 2, 3};
  EXPECT_THROW(JulianDateToYmd(-1000000, parts.year, parts.month, parts.day), RangeError);
  EXPECT_EQ(parts, (Date{1, 2, 3}));
}

TEST(YmdToIsoDate, IsTheDigitsOfTheDate) {
  EXPECT_EQ(YmdToIsoDate(2024, 3, 31), 20240331u);
  EXPECT_EQ(YmdToIsoDate(0, 0, 0), 0u);
  EXPECT_EQ(JulianDateToIsoDate(2460401), 20240331u);
  EXPECT_EQ(YmdToIsoDate(214748, 36, 47), 2147483647u);
  EXPECT_THROW(static_cast<void>(YmdToIsoDate(214748, 36, 48)), OverflowError);
  EXPECT_THROW(static_cast<void>(YmdToIsoDate(214749, 1, 1)), OverflowError);
  EXPECT_THROW(static_cast<void>(YmdToIsoDate(-1, 1, 1)), RangeError);
  EXPECT_THROW(static_cast<void>(YmdToIsoDate(-214749, 1, 1)), OverflowError);
}

TEST(YmdToIsoDate, OfANegativeYearWithManyMonthsIsPositive) { EXPECT_EQ(YmdToIsoDate(-1, 100, 7), 7u); }

TEST(YmdToIsoDateA, PadsToEightDigits) {
  EXPECT_EQ(YmdToIsoDateA(999, 1, 2), "09990102");
  EXPECT_EQ(YmdToIsoDateA(2024, 3, 31), "20240331");
  EXPECT_EQ(YmdToIsoDateA(0, 0, 0), "00000000");
  EXPECT_EQ(YmdToIsoDateA(12345, 6, 7), "123450607");
  EXPECT_EQ(YmdToIsoDateA(214748, 36, 47), "2147483647");
  EXPECT_EQ(YmdToIsoDateW(999, 1, 2), u"09990102");
  EXPECT_EQ(JulianDateToIsoDateA(2451545), "20000101");
  EXPECT_EQ(JulianDateToIsoDateW(2451545), u"20000101");
  EXPECT_THROW(static_cast<void>(YmdToIsoDateA(-1, 1, 1)), RangeError);
  EXPECT_THROW(static_cast<void>(YmdToIsoDateW(-1, 1, 1)), RangeError);
}

TEST(ISODateToYmd, TakesTheDigitsAsTheyStand) {
  const auto parts = [](std::uint32_t iso_date) {
    Date date{};
    ISODateToYmd(iso_date, date.year, date.month, date.day);
    return date;
  };
  EXPECT_EQ(parts(20240331), (Date{2024, 3, 31}));
  EXPECT_EQ(parts(0), (Date{0, 0, 0}));
  EXPECT_EQ(parts(4294967295u), (Date{429496, 72, 95}));
  EXPECT_EQ(ISODateToJulianDate(20000101), 2451545);
  EXPECT_EQ(ISODateToJulianDate(20231301), utils::JulianDateByFormula(2023, 13, 1));
}

TEST(DayOfWeek, CountsFromMonday) {
  EXPECT_EQ(DayOfWeek(2451545), 5);
  EXPECT_EQ(DayOfWeekYmd(2000, 1, 1), 5);
  EXPECT_EQ(DayOfWeek(0), 0);
  EXPECT_EQ(DayOfWeek(-1), 6);
  EXPECT_EQ(DayOfWeek(-7), 0);
  EXPECT_EQ(DayOfWeekYmd(2024, 3, 31), 6);
}

TEST(FirstDayOfWeek, IsTheMondayAndTheLastTheSunday) {
  EXPECT_EQ(Parts(FirstDayOfWeek(2451545)), (Date{1999, 12, 27}));
  EXPECT_EQ(Parts(LastDayOfWeek(2451545)), (Date{2000, 1, 2}));
  Date first{2000, 1, 1};
  FirstDayOfWeekYmd(first.year, first.month, first.day);
  EXPECT_EQ(first, (Date{1999, 12, 27}));
  Date last{1999, 12, 27};
  LastDayOfWeekYmd(last.year, last.month, last.day);
  EXPECT_EQ(last, (Date{2000, 1, 2}));
  EXPECT_THROW(static_cast<void>(LastDayOfWeek(kLargest)), OverflowError);
  EXPECT_THROW(static_cast<void>(FirstDayOfWeek(kSmallest)), OverflowError);
}

TEST(ISOWeekNumber, StatedDays) {
  EXPECT_EQ(ISOWeekNumberYmd(2021, 1, 3), 53);
  EXPECT_EQ(ISOWeekNumberYmd(2021, 1, 4), 1);
  EXPECT_EQ(ISOWeekNumberYmd(2024, 12, 30), 1);
  EXPECT_EQ(ISOWeekNumber(2451545), 52);
  EXPECT_THROW(static_cast<void>(ISOWeekNumber(kLargest)), OverflowError);
}

TEST(ISOWeekToJulianDate, CountsFromTheWeekOf4January) {
  EXPECT_EQ(Parts(ISOWeekToJulianDate(2021, 1, 0)), (Date{2021, 1, 4}));
  EXPECT_EQ(Parts(ISOWeekToJulianDate(2020, 53, 6)), (Date{2021, 1, 3}));
  EXPECT_EQ(Parts(ISOWeekToJulianDate(2021, 0, 6)), (Date{2021, 1, 3}));
  EXPECT_THROW(static_cast<void>(ISOWeekToJulianDate(2021, kSmallest, 0)), OverflowError);
  EXPECT_THROW(static_cast<void>(ISOWeekToJulianDate(2021, kLargest, 0)), OverflowError);
  EXPECT_THROW(static_cast<void>(ISOWeekToJulianDate(2021, 1, kLargest)), OverflowError);
}

TEST(IsLeapYear, FollowsTheGregorianRule) {
  EXPECT_FALSE(IsLeapYear(1900));
  EXPECT_TRUE(IsLeapYear(2000));
  EXPECT_TRUE(IsLeapYear(2024));
  EXPECT_FALSE(IsLeapYear(2023));
  EXPECT_TRUE(IsLeapYear(-4));
}

TEST(DaysInMonthYm, RaisesForWhatIsNoMonth) {
  EXPECT_EQ(DaysInMonthYm(2024, 2), 29);
  for (const std::uint16_t month : Numbers{0, 13, 65535}) {
    std::int32_t year = 2024;
    std::uint16_t in_out = month;
    std::uint16_t day = 5;
    EXPECT_THROW(static_cast<void>(DaysInMonthYm(year, month)), RangeError) << month;
    EXPECT_THROW(LastDayOfMonthYmd(year, month, day), RangeError) << month;
    EXPECT_THROW(IncDay(year, in_out, day), RangeError) << month;
    EXPECT_EQ((Date{year, in_out, day}), (Date{2024, month, 5}));
  }
}

TEST(FirstDayOfMonthYmd, IsOneAndTheLastTheLength) {
  std::uint16_t day = 17;
  FirstDayOfMonthYmd(2024, 2, day);
  EXPECT_EQ(day, 1);
  LastDayOfMonthYmd(2024, 2, day);
  EXPECT_EQ(day, 29);
  FirstDayOfMonthYmd(2024, 99, day);
  EXPECT_EQ(day, 1);
}

TEST(IsDateValid, NeverRaises) {
  EXPECT_FALSE(IsDateValid(2023, 2, 29));
  EXPECT_TRUE(IsDateValid(2024, 2, 29));
  EXPECT_FALSE(IsDateValid(2024, 13, 1));
  EXPECT_FALSE(IsDateValid(2024, 0, 1));
  EXPECT_FALSE(IsDateValid(2024, 1, 0));
  EXPECT_FALSE(IsDateValid(2024, 1, 65535));
  EXPECT_TRUE(IsDateValid(kLargest, 12, 31));
  EXPECT_TRUE(IsDateValid(kSmallest, 1, 1));
}

TEST(IncDay, CarriesIntoMonthAndYear) {
  const auto next = [](Date date) {
    IncDay(date.year, date.month, date.day);
    return date;
  };
  EXPECT_EQ(next({2023, 2, 28}), (Date{2023, 3, 1}));
  EXPECT_EQ(next({2024, 2, 28}), (Date{2024, 2, 29}));
  EXPECT_EQ(next({2023, 12, 31}), (Date{2024, 1, 1}));
  EXPECT_EQ(next({2023, 1, 40}), (Date{2023, 2, 1}));
  Date last{kLargest, 12, 31};
  EXPECT_THROW(IncDay(last.year, last.month, last.day), OverflowError);
  EXPECT_EQ(last, (Date{kLargest, 12, 31}));
}

TEST(IncDays, GoesThroughTheJulianDate) {
  const auto later = [](Date date, std::int32_t count) {
    IncDays(date.year, date.month, date.day, count);
    return date;
  };
  EXPECT_EQ(later({2024, 1, 1}, 366), (Date{2025, 1, 1}));
  EXPECT_EQ(later({2024, 3, 1}, -1), (Date{2024, 2, 29}));
  EXPECT_EQ(later({2024, 3, 1}, 0), (Date{2024, 3, 1}));
  EXPECT_THROW(later({2024, 3, 1}, kLargest), OverflowError);
}

TEST(IncMonth, LowersTheDayToTheMonthsLength) {
  const auto later = [](Date date) {
    IncMonth(date.year, date.month, date.day);
    return date;
  };
  EXPECT_EQ(later({2023, 1, 31}), (Date{2023, 2, 28}));
  EXPECT_EQ(later({2024, 1, 31}), (Date{2024, 2, 29}));
  EXPECT_EQ(later({2023, 12, 31}), (Date{2024, 1, 31}));
  EXPECT_EQ(later({2023, 4, 30}), (Date{2023, 5, 30}));
  EXPECT_EQ(later({2023, 0, 40}), (Date{2023, 1, 31}));
  EXPECT_EQ(later({2023, 13, 1}), (Date{2024, 1, 1}));
  EXPECT_THROW(later({kLargest, 12, 1}), OverflowError);
}

TEST(IncMonths, CountsBothWays) {
  const auto later = [](Date date, std::int32_t count) {
    IncMonths(date.year, date.month, date.day, count);
    return date;
  };
  EXPECT_EQ(later({2024, 1, 15}, -13), (Date{2022, 12, 15}));
  EXPECT_EQ(later({2024, 1, 15}, -1), (Date{2023, 12, 15}));
  EXPECT_EQ(later({2024, 12, 15}, -24), (Date{2022, 12, 15}));
  EXPECT_EQ(later({2024, 12, 15}, -12), (Date{2023, 12, 15}));
  EXPECT_EQ(later({2024, 12, 31}, 2), (Date{2025, 2, 28}));
  EXPECT_EQ(later({2024, 1, 15}, 11), (Date{2024, 12, 15}));
  EXPECT_EQ(later({2024, 1, 15}, 23), (Date{2025, 12, 15}));
  EXPECT_EQ(later({2024, 1, 31}, 1), (Date{2024, 2, 29}));
  EXPECT_EQ(later({2024, 5, 31}, 0), (Date{2024, 5, 31}));
  EXPECT_THROW(later({2024, 1, 1}, kLargest), OverflowError);
  EXPECT_THROW(later({kLargest, 1, 1}, 12), OverflowError);
  EXPECT_THROW(later({kSmallest, 1, 1}, -1), OverflowError);
}

// Months counted from year 0 need no special cases.
TEST(IncMonths, IsTheCountOfMonthsFromYear0) {
  for (std::uint16_t month = 1; month <= 12; ++month) {
    for (std::int32_t count = -200; count <= 200; ++count) {
      const std::int32_t months = 2024 * 12 + month - 1 + count;
      Date date{2024, month, 1};
      IncMonths(date.year, date.month, date.day, count);
      EXPECT_EQ(date, (Date{months / 12, static_cast<std::uint16_t>(months % 12 + 1), 1}));
    }
  }
}

TEST(CurrentDay, ComesFromTheLocalClock) {
  test::FakeMachine machine;
  const platform::ScopedMachine scope(machine);
  for (std::uint16_t month = 1; month <= 12; ++month) {
    machine.clock = {EncodeDateTime({{2024, month, 29}, {23, 59, 59, 999}})};
    EXPECT_EQ(CurrentDay(), 29);
    EXPECT_EQ(CurrentMonth(), month);
    EXPECT_EQ(CurrentYear(), 2024);
    EXPECT_EQ(CurrentQuarter(), (month + 2) / 3);
    EXPECT_EQ(CurrentJulianDate(), Julian({2024, month, 29}));
  }
}

}  // namespace
}  // namespace ravo::DIUtils
