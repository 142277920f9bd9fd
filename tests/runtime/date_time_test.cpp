#include "support/float_environment.h"
#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>

#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>
#include <random>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {

std::ostream& operator<<(std::ostream& out, const TimeParts& time) {
  return out << time.hour << ':' << time.minute << ':' << time.second << '.' << time.millisecond;
}

std::ostream& operator<<(std::ostream& out, const DateTimeParts& parts) {
  const auto& [date, time] = parts;
  return out << date.year << '-' << date.month << '-' << date.day << ' ' << time;
}

namespace {

constexpr int kFirstDay = -693593;
constexpr int kLastDay = 2958465;
constexpr double kMillisecond = 1.0 / 86'400'000;

TEST(DateTime, SplitDateTime) {
  struct Row {
    double value;
    DateTimeParts parts;
  };
  const Row rows[] = {
      {0, {{1899, 12, 30}, {}}},
      {-0.0, {{1899, 12, 30}, {}}},
      {1, {{1899, 12, 31}, {}}},
      {2, {{1900, 1, 1}, {}}},
      {-1, {{1899, 12, 29}, {}}},
      {0.25, {{1899, 12, 30}, {6, 0, 0, 0}}},
      {-0.25, {{1899, 12, 30}, {6, 0, 0, 0}}},
      {-1.25, {{1899, 12, 29}, {6, 0, 0, 0}}},
      {-1.75, {{1899, 12, 29}, {18, 0, 0, 0}}},
      {45351.5, {{2024, 2, 29}, {12, 0, 0, 0}}},
      {45352.546631944446, {{2024, 3, 1}, {13, 7, 9, 0}}},
      {2097152.5, {{7641, 10, 20}, {12, 0, 0, 0}}},
      {kFirstDay, {{1, 1, 1}, {}}},
      {kFirstDay - 0.75, {{1, 1, 1}, {18, 0, 0, 0}}},
      {kLastDay, {{9999, 12, 31}, {}}},
      {kLastDay + 0.999, {{9999, 12, 31}, {23, 58, 33, 600}}},
      {kMillisecond, {{1899, 12, 30}, {0, 0, 0, 1}}},
      {kMillisecond * 0.4, {{1899, 12, 30}, {}}},
      {kMillisecond * 0.6, {{1899, 12, 30}, {0, 0, 0, 1}}},
      {std::numeric_limits<double>::denorm_min(), {{1899, 12, 30}, {}}},
      {1e-40, {{1899, 12, 30}, {}}},
  };
  for (const Row& row : rows) EXPECT_EQ(SplitDateTime(row.value), row.parts) << row.value;
}

// 2^-11 days are 42187.5 milliseconds exactly, three times that 126562.5.
TEST(DateTime, HalfMillisecondsGoToTheEvenOne) {
  const double eleventh = std::ldexp(1.0, -11);
  EXPECT_EQ(SplitDateTime(eleventh).time, (TimeParts{0, 0, 42, 188}));
  EXPECT_EQ(SplitDateTime(3 * eleventh).time, (TimeParts{0, 2, 6, 562}));
  EXPECT_EQ(SplitDateTime(std::nextafter(3 * eleventh, 1.0)).time, (TimeParts{0, 2, 6, 563}));
  EXPECT_EQ(SplitDateTime(std::nextafter(eleventh, 0.0)).time, (TimeParts{0, 0, 42, 187}));
  EXPECT_EQ(SplitDateTime(-5 - 3 * eleventh).time, (TimeParts{0, 2, 6, 562}));
}

TEST(DateTime, AFullDayCarries) {
  struct Row {
    double value;
    DateParts date;
  };
  const Row rows[] = {
      {0.9999999999, {1899, 12, 31}},
      {-0.9999999999, {1899, 12, 31}},
      {-1.9999999999, {1899, 12, 30}},
      {45291.9999999999, {2024, 1, 1}},
      {kFirstDay - 1.9999999999 + 1, {1, 1, 2}},
      {kFirstDay - 1.9999999999, {1, 1, 1}},
  };
  for (const Row& row : rows) EXPECT_EQ(SplitDateTime(row.value), (DateTimeParts{row.date, {}})) << row.value;
  EXPECT_EQ(DayOfWeek(45291.9999999999), DayOfWeek(45292));
  EXPECT_THROW((void)SplitDateTime(kLastDay + 0.9999999999), ConvertError);
}

// Doubles of 2^50 days and more have only quarters, halves and whole days.
TEST(DateTime, TimeOfDayOfAnyDay) {
  struct Row {
    double value;
    TimeParts time;
  };
  const Row rows[] = {
      {kLastDay + 1.25, {6, 0, 0, 0}},
      {kFirstDay - 1.25, {6, 0, 0, 0}},
      {kLastDay + 0.9999999999, {}},
      {-0.9999999999, {}},
      {kMillisecond * 1.4, {0, 0, 0, 1}},
      {std::ldexp(1.0, 50) + 0.75, {18, 0, 0, 0}},
      {-std::ldexp(1.0, 51) - 0.5, {12, 0, 0, 0}},
      {std::ldexp(1.0, 52) + 1, {}},
      {std::ldexp(1.0, 53), {}},
      {1e300, {}},
      {std::numeric_limits<double>::denorm_min(), {}},
  };
  for (const Row& row : rows) EXPECT_EQ(TimeOfDay(row.value), row.time) << row.value;
  using Limits = std::numeric_limits<double>;
  for (const double value : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    EXPECT_THROW((void)TimeOfDay(value), ConvertError) << value;
  }
}

TEST(DateTime, SplitRefusesWhatIsNoDate) {
  using Limits = std::numeric_limits<double>;
  for (const double value :
       {kFirstDay - 1.0, kFirstDay - 1.5, kLastDay + 1.0, 4194303.0, 4194304.0, 1e10, 1e300, -1e300,
        Limits::max(), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    EXPECT_THROW((void)SplitDateTime(value), ConvertError) << value;
    EXPECT_THROW((void)DayOfWeek(value), ConvertError) << value;
  }
}

// The standard library's calendar as witness, for every day in range.
TEST(DateTime, EveryDayOfTheYears1To9999) {
  using namespace std::chrono;
  const sys_days epoch = year{1899} / December / 30;
  for (int day = kFirstDay; day <= kLastDay; ++day) {
    const year_month_day expected{epoch + days{day}};
    const DateParts parts{static_cast<int>(expected.year()),
                          static_cast<int>(static_cast<unsigned>(expected.month())),
                          static_cast<int>(static_cast<unsigned>(expected.day()))};
    ASSERT_EQ(SplitDateTime(day).date, parts) << day;
    ASSERT_EQ(EncodeDate(parts.year, parts.month, parts.day), day);
    ASSERT_EQ(DayOfWeek(day), static_cast<int>(weekday{epoch + days{day}}.c_encoding()) + 1) << day;
  }
}

TEST(DateTime, EncodeDateRefusesDatesThatAreNone) {
  constexpr DateParts dates[] = {{0, 1, 1},
                                 {-1, 1, 1},
                                 {10000, 1, 1},
                                 {2024, 0, 1},
                                 {2024, 13, 1},
                                 {2024, 1, 0},
                                 {2024, 1, 32},
                                 {2024, 4, 31},
                                 {2024, 2, 30},
                                 {2023, 2, 29},
                                 {1900, 2, 29},
                                 {2024, -1, 1},
                                 {std::numeric_limits<int>::max(), 1, 1},
                                 {2024, std::numeric_limits<int>::min(), 1}};
  for (const DateParts& date : dates) {
    EXPECT_THROW((void)EncodeDate(date.year, date.month, date.day), ConvertError);
    EXPECT_THROW((void)EncodeDateTime({date, {}}), ConvertError);
  }
  EXPECT_EQ(EncodeDate(2000, 2, 29), 36585);
}

TEST(DateTime, EncodeTimeRefusesTimesThatAreNone) {
  constexpr TimeParts times[] = {{24, 0, 0, 0},   {-1, 0, 0, 0},
                                 {0, 60, 0, 0},   {0, -1, 0, 0},
                                 {0, 0, 60, 0},   {0, 0, -1, 0},
                                 {0, 0, 0, 1000}, {0, 0, 0, -1},
                                 {24, 0, 0, -1},  {std::numeric_limits<int>::max(), 0, 0, 0}};
  for (const TimeParts& time : times) {
    EXPECT_THROW((void)EncodeTime(time.hour, time.minute, time.second, time.millisecond), ConvertError);
    EXPECT_THROW((void)EncodeDateTime({{2024, 1, 1}, time}), ConvertError);
  }
}

TEST(DateTime, EncodeTimeIsTheNearestDouble) {
  EXPECT_EQ(EncodeTime(0, 0, 0, 0), 0.0);
  EXPECT_EQ(EncodeTime(6, 0, 0, 0), 0.25);
  EXPECT_EQ(EncodeTime(23, 59, 59, 999), 86'399'999.0 / 86'400'000);
  for (int ms = 0; ms < 86'400'000; ms += 997) {
    ASSERT_EQ(EncodeTime(ms / 3'600'000, ms / 60'000 % 60, ms / 1000 % 60, ms % 1000), ms / 86'400'000.0);
  }
}

TEST(DateTime, EncodeDateTimeBefore1899CountsTheTimeForward) {
  EXPECT_EQ(EncodeDateTime({{1899, 12, 29}, {6, 0, 0, 0}}), -1.25);
  EXPECT_EQ(EncodeDateTime({{1899, 12, 30}, {6, 0, 0, 0}}), 0.25);
  EXPECT_EQ(EncodeDateTime({{1899, 12, 31}, {6, 0, 0, 0}}), 1.25);
  EXPECT_EQ(EncodeDateTime({{1, 1, 1}, {18, 0, 0, 0}}), kFirstDay - 0.75);
}

TEST(DateTime, PartsComeBackToTheMillisecond) {
  std::mt19937 random(1899);
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  for (int i = 0; i < 100'000; ++i) {
    const DateTimeParts parts{{1 + below(9999), 1 + below(12), 1 + below(28)},
                              {below(24), below(60), below(60), below(1000)}};
    ASSERT_EQ(SplitDateTime(EncodeDateTime(parts)), parts);
  }
  for (const int year : {1, 1899, 9999}) {
    for (const int ms : {0, 1, 499, 999}) {
      const DateTimeParts parts{{year, 12, 31}, {23, 59, 59, ms}};
      EXPECT_EQ(SplitDateTime(EncodeDateTime(parts)), parts);
    }
  }
}

TEST(DateTime, LeapYears) {
  for (const int year : {4, 1600, 2000, 2024, 0, -4, -400}) EXPECT_TRUE(IsGregorianLeapYear(year)) << year;
  for (const int year : {1, 1700, 1900, 2023, 2100, -1, -100})
    EXPECT_FALSE(IsGregorianLeapYear(year)) << year;
}

TEST(DateTime, SameInEveryFloatState) {
  test::ExpectSameInEveryFloatState([] {
    std::vector<std::uint64_t> results;
    std::mt19937 random(30);
    for (int i = 0; i < 1000; ++i) {
      const auto ms = static_cast<int>(random() % 86'400'000);
      const double value = EncodeDateTime({{1 + i * 9, 1 + i % 12, 1 + i % 28},
                                           {ms / 3'600'000, ms / 60'000 % 60, ms / 1000 % 60, ms % 1000}});
      const DateTimeParts parts = SplitDateTime(value);
      results.push_back(std::bit_cast<std::uint64_t>(value));
      results.push_back(static_cast<std::uint64_t>(parts.time.second * 1000 + parts.time.millisecond));
    }
    return results;
  });
}

}  // namespace
}  // namespace ravo
