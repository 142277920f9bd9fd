#include <ravo/czech/holidays.h>

#include <set>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

constexpr Day At(int year, int month, int day) { return DayOf({year, month, day}); }

TEST(Days, GoThereAndBack) {
  EXPECT_EQ(At(2000, 1, 1).number, 2451545);
  EXPECT_EQ(At(1, 1, 1), detail::kFirstDay);
  EXPECT_EQ(At(9999, 12, 31), detail::kLastDay);
  EXPECT_EQ(Weekday(At(2026, 11, 21)), 5);
  for (Day day = detail::kFirstDay; day <= detail::kLastDay; ++day.number)
    ASSERT_EQ(DayOf(PartsOf(day)), day);
}

TEST(Days, ExistOrNot) {
  EXPECT_TRUE(Exists({2000, 2, 29}));
  EXPECT_TRUE(Exists({9999, 12, 31}));
  EXPECT_FALSE(Exists({1900, 2, 29}));
  EXPECT_FALSE(Exists({0, 1, 1}));
  EXPECT_FALSE(Exists({10000, 1, 1}));
  EXPECT_FALSE(Exists({2000, 13, 1}));
  EXPECT_FALSE(Exists({2000, 4, 31}));
  EXPECT_FALSE(Exists({2000, 1, 0}));
  EXPECT_FALSE(Exists({2000, -1, 260}));
}

// As the Astronomical Almanac and the calendars of those years have them; the earliest and the latest day
// among them.
const DateParts kEasters[] = {{1583, 4, 10}, {1818, 3, 22}, {1886, 4, 25}, {1943, 4, 25},
                              {1961, 4, 2},  {1981, 4, 19}, {2000, 4, 23}, {2008, 3, 23},
                              {2011, 4, 24}, {2016, 3, 27}, {2024, 3, 31}, {2025, 4, 20},
                              {2026, 4, 5},  {2038, 4, 25}, {2049, 4, 18}, {2285, 3, 22}};

TEST(Holidays, EasterIsWhereTheCalendarHasIt) {
  for (const DateParts& easter : kEasters) EXPECT_EQ(PartsOf(EasterSunday(easter.year)), easter);
}

// All days of rest of a year, as month * 100 + day.
std::vector<int> DaysOfRest(int year) {
  std::vector<int> days;
  for (Day day = At(year, 1, 1); day <= At(year, 12, 31); ++day.number) {
    const DateParts date = PartsOf(day);
    if (HolidaysOn(day).count > 0) days.push_back(date.month * 100 + date.day);
  }
  return days;
}

TEST(Holidays, AreThoseOfTheLawInEachYear) {
  using Days = std::vector<int>;
  EXPECT_EQ(DaysOfRest(2026), (Days{101, 403, 406, 501, 508, 705, 706, 928, 1028, 1117, 1224, 1225, 1226}));
  EXPECT_EQ(DaysOfRest(2016), (Days{101, 325, 328, 501, 508, 705, 706, 928, 1028, 1117, 1224, 1225, 1226}));
  EXPECT_EQ(DaysOfRest(2015), (Days{101, 406, 501, 508, 705, 706, 928, 1028, 1117, 1224, 1225, 1226}));
  EXPECT_EQ(DaysOfRest(2000), (Days{101, 424, 501, 508, 705, 706, 928, 1028, 1117, 1224, 1225, 1226}));
  EXPECT_EQ(DaysOfRest(1999), (Days{101, 405, 501, 508, 705, 706, 1028, 1224, 1225, 1226}));
  EXPECT_EQ(DaysOfRest(1992), Days());
}

struct NameRow {
  Day day;
  std::string_view name;
  std::string_view law;
};
const NameRow kNames[] = {
    {At(2003, 5, 8), "Den osvobození", "245/2000"},
    {At(2004, 5, 8), "Den vítězství", "101/2004"},
    {At(2016, 3, 25), "Velký pátek", "359/2015"},
    {At(2018, 11, 17), "Den boje za svobodu a demokracii", "245/2000"},
    {At(2019, 11, 17), "Den boje za svobodu a demokracii a Mezinárodní den studentstva", "49/2019"},
    {At(2026, 10, 28), "Den vzniku samostatného československého státu", "245/2000"},
    {At(2026, 1, 1), "Den obnovy samostatného českého státu", "245/2000"},
    {At(1999, 1, 1), "Nový rok", "93/1951"},
    {At(1999, 12, 26), "2. svátek vánoční", "93/1951"},
    {At(2000, 1, 1), "Nový rok", "93/1951"},
    {At(2000, 7, 6), "Den upálení mistra Jana Husa", "93/1951"},
    {At(2000, 9, 28), "Den české státnosti", "245/2000"},
    {At(2000, 10, 28), "Den vzniku samostatného československého státu", "245/2000"},
    {At(2001, 1, 1), "Den obnovy samostatného českého státu", "245/2000"},
};

TEST(Holidays, HaveTheNamesOfTheirYears) {
  for (const NameRow& row : kNames) {
    const HolidaysOfDay found = HolidaysOn(row.day);
    ASSERT_GT(found.count, 0U) << row.name;
    EXPECT_EQ(found.rows[0]->czech, row.name);
    EXPECT_EQ(found.rows[0]->law, row.law);
    EXPECT_FALSE(found.rows[0]->english.empty());
  }
}

TEST(Holidays, TheFirstOfJanuaryHasTwoNames) {
  const HolidaysOfDay found = HolidaysOn(At(2026, 1, 1));
  ASSERT_EQ(found.count, 2U);
  EXPECT_EQ(found.rows[1]->czech, "Nový rok");
}

TEST(Holidays, AreVerifiedSince2000) {
  EXPECT_TRUE(HolidaysOn(At(2000, 1, 1)).verified);
  EXPECT_FALSE(HolidaysOn(At(1999, 12, 31)).verified);
  EXPECT_FALSE(TermInDays(At(1999, 12, 1), 5).value.verified);
  EXPECT_TRUE(TermInDays(At(1999, 12, 30), 2).value.verified);
}

// A count day by day over six years, from every day to every hundredth after it.
TEST(WorkingDays, AreThoseThatAreNeitherWeekendNorHoliday) {
  const Day last = At(2004, 12, 31);
  for (Day from = At(1999, 1, 1); from < last; from.number += 7) {
    std::int32_t count = 0;
    for (Day to = from; to <= last; ++to.number) {
      count += to > from && IsWorkingDay(to) ? 1 : 0;
      ASSERT_EQ(WorkingDaysBetween(from, to).value, count);
      ASSERT_EQ(WorkingDaysBetween(to, from).value, -count);
    }
  }
}

// Counted on calendars: 262, 261 and 261 days from Monday to Friday, of which 10, 10 and 11 are holidays.
TEST(WorkingDays, OfAYearAreThoseOfItsCalendar) {
  EXPECT_EQ(WorkingDaysBetween(At(2023, 12, 31), At(2024, 12, 31)).value, 252);
  EXPECT_EQ(WorkingDaysBetween(At(2024, 12, 31), At(2025, 12, 31)).value, 251);
  EXPECT_EQ(WorkingDaysBetween(At(2025, 12, 31), At(2026, 12, 31)).value, 250);
}

TEST(WorkingDays, NextOne) {
  EXPECT_EQ(PartsOf(NextWorkingDay(At(2026, 11, 20)).value), (DateParts{2026, 11, 20}));
  EXPECT_EQ(PartsOf(NextWorkingDay(At(2026, 4, 3)).value), (DateParts{2026, 4, 7}));
  EXPECT_EQ(PartsOf(NextWorkingDay(At(2026, 12, 24)).value), (DateParts{2026, 12, 28}));
  EXPECT_EQ(PartsOf(NextWorkingDay(At(2015, 4, 3)).value), (DateParts{2015, 4, 3}));
}

struct TermRow {
  DateParts from;
  int count;
  DateParts counted;
  DateParts due;
};

TEST(Terms, EndOnAWorkingDay) {
  const TermRow rows[] = {
      {{2026, 11, 6}, 14, {2026, 11, 20}, {2026, 11, 20}},
      {{2026, 11, 7}, 14, {2026, 11, 21}, {2026, 11, 23}},
      {{2026, 12, 10}, 14, {2026, 12, 24}, {2026, 12, 28}},
      {{2026, 11, 21}, 0, {2026, 11, 21}, {2026, 11, 23}},
      {{2026, 12, 31}, -31, {2026, 11, 30}, {2026, 11, 30}},
  };
  for (const TermRow& row : rows) {
    const auto term = TermInDays(DayOf(row.from), row.count);
    EXPECT_EQ(PartsOf(term.value.counted), row.counted);
    EXPECT_EQ(PartsOf(term.value.due), row.due);
  }
}

TEST(Terms, InMonthsEndOnTheSameNumberOrTheLast) {
  const TermRow rows[] = {
      {{2026, 1, 31}, 1, {2026, 2, 28}, {2026, 3, 2}},
      {{2023, 11, 30}, 3, {2024, 2, 29}, {2024, 2, 29}},
      {{2026, 11, 21}, 12, {2027, 11, 21}, {2027, 11, 22}},
      {{2026, 1, 15}, -1, {2025, 12, 15}, {2025, 12, 15}},
      {{2026, 6, 30}, 6, {2026, 12, 30}, {2026, 12, 30}},
  };
  for (const TermRow& row : rows) {
    const auto term = TermInMonths(DayOf(row.from), row.count);
    EXPECT_EQ(PartsOf(term.value.counted), row.counted);
    EXPECT_EQ(PartsOf(term.value.due), row.due);
  }
}

TEST(Terms, ADayLateIsADay) {
  EXPECT_EQ(DaysOverdue(At(2026, 11, 20), At(2026, 11, 21)), 1);
  EXPECT_EQ(DaysOverdue(At(2026, 11, 20), At(2026, 11, 20)), 0);
  EXPECT_EQ(DaysOverdue(At(2026, 11, 20), At(2026, 11, 1)), 0);
}

TEST(Days, OutsideTheCalendarAreRefused) {
  const Day before{detail::kFirstDay.number - 1};
  const Day after{detail::kLastDay.number + 1};
  for (const Day day : {before, after, Day{-2147483647}, Day{2147483647}}) {
    EXPECT_FALSE(IsWorkingDay(day));
    EXPECT_EQ(HolidaysOn(day).count, 0U);
    EXPECT_EQ(NextWorkingDay(day).code, Code::DayRange);
    EXPECT_EQ(WorkingDaysBetween(day, At(2026, 1, 1)).code, Code::DayRange);
    EXPECT_EQ(WorkingDaysBetween(At(2026, 1, 1), day).code, Code::DayRange);
    EXPECT_EQ(TermInDays(day, 1).code, Code::DayRange);
    EXPECT_EQ(TermInMonths(day, 1).code, Code::DayRange);
  }
  EXPECT_EQ(TermInDays(At(2026, 1, 1), 2147483647).code, Code::DayRange);
  EXPECT_EQ(TermInDays(detail::kLastDay, 1).code, Code::DayRange);
  EXPECT_EQ(TermInMonths(At(2026, 1, 1), -2147483647).code, Code::DayRange);
  EXPECT_EQ(TermInMonths(At(9999, 12, 1), 1).code, Code::DayRange);
  EXPECT_EQ(TermInMonths(At(1, 1, 1), -1).code, Code::DayRange);
  EXPECT_EQ(WorkingDaysBetween(detail::kFirstDay, detail::kFirstDay).value, 0);
  EXPECT_GT(WorkingDaysBetween(detail::kFirstDay, detail::kLastDay).value, 2'500'000);
}

}  // namespace
}  // namespace ravo::czech
