// Every day of the years -4800 to 9999, compared with the calendar of the standard library.
#include "support/tried.h"
#include <ravo/utils/calendar.h>
#include <ravo/utils/calendar_formulas.h>
#include <ravo/utils/calendar_parts.h>

#include <chrono>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using Numbers = std::initializer_list<std::uint16_t>;

namespace chrono = std::chrono;

constexpr TJulianDate kFirstDay = -32104;  // 1 January -4800
constexpr TJulianDate kLastDay = 5373484;  // 31 December 9999
constexpr TJulianDate kUnixEpoch = 2440588;

chrono::sys_days SysDays(TJulianDate date) { return chrono::sys_days(chrono::days(date - kUnixEpoch)); }

TJulianDate JulianDateOf(chrono::sys_days day) {
  return static_cast<TJulianDate>(day.time_since_epoch().count()) + kUnixEpoch;
}

// The week by definition: a week belongs to the year of its Thursday, and weeks are counted from the first.
int IsoWeek(chrono::sys_days day) {
  const auto weekday = chrono::weekday(day).iso_encoding();
  const chrono::sys_days thursday = day + chrono::days(4) - chrono::days(weekday);
  const chrono::year year = chrono::year_month_day(thursday).year();
  return static_cast<int>((thursday - chrono::sys_days(year / 1 / 1)).count()) / 7 + 1;
}

template <class Check>
void ForEachDay(const Check& check) {
  for (TJulianDate date = kFirstDay; date <= kLastDay; ++date) {
    check(date);
    if (::testing::Test::HasFailure()) return;
  }
  test::Tried("days", kLastDay - kFirstDay + 1);
}

TEST(Calendar, WalksFromTheFirstToTheLastDay) {
  using namespace std::chrono_literals;
  EXPECT_EQ(JulianDateOf(chrono::year(-4800) / 1 / 1), kFirstDay);
  EXPECT_EQ(JulianDateOf(9999y / 12 / 31), kLastDay);
}

TEST(JulianDateToYmd, IsTheStandardCalendarOnEveryDay) {
  ForEachDay([](TJulianDate date) {
    const chrono::year_month_day expected(SysDays(date));
    const utils::Ymd parts = utils::PartsOf(date);
    ASSERT_EQ(parts.year, int{expected.year()}) << date;
    ASSERT_EQ(parts.month, unsigned{expected.month()}) << date;
    ASSERT_EQ(parts.day, unsigned{expected.day()}) << date;
  });
}

TEST(YmdToJulianDate, IsTheStandardCalendarOnEveryDayFromMarchMinus4800) {
  for (TJulianDate date = kFirstDay + 60; date <= kLastDay; ++date) {
    const chrono::year_month_day day(SysDays(date));
    const auto month = static_cast<std::uint16_t>(unsigned{day.month()});
    ASSERT_EQ(YmdToJulianDate(int{day.year()}, month, static_cast<std::uint16_t>(unsigned{day.day()})), date);
  }
}

TEST(YmdToJulianDate, JanuaryAndFebruaryOfMinus4800AreOneDayLate) {
  for (TJulianDate date = kFirstDay; date < kFirstDay + 60; ++date) {
    const utils::Ymd parts = utils::PartsOf(date);
    ASSERT_EQ(parts.year, -4800);
    EXPECT_EQ(YmdToJulianDate(parts.year, parts.month, parts.day), date + 1);
  }
}

TEST(JulianDateToYmd, IsItsFormulaWhereverThatGivesADate) {
  const auto check = [](std::int64_t number) {
    const auto date = static_cast<TJulianDate>(number);
    const utils::JulianParts expected = utils::JulianPartsByFormula(date);
    const utils::Ymd parts = utils::PartsOf(date);
    ASSERT_EQ(parts.year, expected.year) << date;
    ASSERT_EQ(parts.month, expected.month) << date;
    ASSERT_EQ(parts.day, expected.day) << date;
  };
  for (std::int64_t date = -70000; date < 2000000; ++date) {
    if (utils::JulianPartsByFormula(static_cast<TJulianDate>(date)).day >= 0) check(date);
  }
  for (std::int64_t date = 2000000; date <= 536802342; date += 997) check(date);
  for (std::int64_t date = 536802342 - 200000; date <= 536802342; ++date) check(date);
}

TEST(YmdToJulianDate, IsItsFormulaForEveryMonthAndYear) {
  const auto check = [](std::int32_t year) {
    for (std::uint16_t month = 0; month < 30; ++month) {
      for (const std::uint16_t day : Numbers{0, 1, 28, 31, 65535})
        ASSERT_EQ(YmdToJulianDate(year, month, day), utils::JulianDateByFormula(year, month, day)) << year;
    }
  };
  for (std::int32_t year = -10000; year < 12000; ++year) check(year);
  for (std::int32_t year = -1474600; year <= 1465040; year += 89) check(year);
  for (std::int32_t year = 1464900; year <= 1465040; ++year) check(year);
  for (std::uint16_t month = 1; month != 0; ++month)
    ASSERT_EQ(YmdToJulianDate(2000, month, 1), utils::JulianDateByFormula(2000, month, 1)) << month;
}

TEST(DayOfWeek, IsTheStandardCalendarOnEveryDay) {
  ForEachDay([](TJulianDate date) {
    const auto expected = static_cast<int>(chrono::weekday(SysDays(date)).iso_encoding()) - 1;
    ASSERT_EQ(DayOfWeek(date), expected) << date;
    ASSERT_EQ(JulianDateIsWeekDay(date), expected < 5) << date;
    ASSERT_EQ(FirstDayOfWeek(date), date - expected);
    ASSERT_EQ(LastDayOfWeek(date), date - expected + 6);
  });
}

TEST(ISOWeekNumber, IsTheWeekOfItsThursdayOnEveryDay) {
  ForEachDay([](TJulianDate date) { ASSERT_EQ(ISOWeekNumber(date), IsoWeek(SysDays(date))) << date; });
}

TEST(ISOWeekNumber, IsItsFormulaFarAway) {
  const auto check = [](TJulianDate date) {
    ASSERT_EQ(ISOWeekNumber(date), utils::IsoWeekByFormula(date)) << date;
  };
  for (TJulianDate date = -2'000'000'000; date < 2'140'000'000; date += 4999) check(date);
  for (TJulianDate date = -200'000; date < 3'000'000; ++date) check(date);
  for (TJulianDate date = 536'870'000; date < 536'880'000; ++date) check(date);
}

TEST(ISOWeekToJulianDate, LeadsBackToEveryDay) {
  for (TJulianDate date = kFirstDay + 400; date <= kLastDay; ++date) {
    const std::int32_t iso_year = YearOfJuilanDate(FirstDayOfWeek(date) + 3);
    ASSERT_EQ(ISOWeekToJulianDate(iso_year, ISOWeekNumber(date), DayOfWeek(date)), date);
  }
}

TEST(DaysInMonth, IsTheStandardCalendarInEveryMonth) {
  for (std::int32_t year = -4799; year <= 9999; ++year) {
    ASSERT_EQ(IsLeapYear(year), chrono::year(year).is_leap()) << year;
    for (std::uint16_t month = 1; month <= 12; ++month) {
      const chrono::year_month_day_last last = chrono::year(year) / month / chrono::last;
      const auto days = static_cast<std::uint16_t>(unsigned{last.day()});
      const TJulianDate last_day = JulianDateOf(chrono::sys_days(last));
      ASSERT_EQ(DaysInMonthYm(year, month), days) << year << '-' << month;
      ASSERT_EQ(DaysInMonth(last_day), days);
      ASSERT_EQ(FirstDayOfMonth(last_day - 7), last_day - days + 1);
      ASSERT_EQ(LastDayOfMonth(last_day - 7), last_day);
      ASSERT_TRUE(IsDateValid(year, month, days));
      ASSERT_FALSE(IsDateValid(year, month, static_cast<std::uint16_t>(days + 1)));
    }
  }
}

TEST(IncDay, WalksThroughEveryDay) {
  utils::Ymd parts = utils::PartsOf(kFirstDay);
  for (TJulianDate date = kFirstDay + 1; date <= kLastDay; ++date) {
    IncDay(parts.year, parts.month, parts.day);
    const utils::Ymd expected = utils::PartsOf(date);
    ASSERT_EQ(parts.year, expected.year) << date;
    ASSERT_EQ(parts.month, expected.month) << date;
    ASSERT_EQ(parts.day, expected.day) << date;
  }
}

}  // namespace
}  // namespace ravo::DIUtils
