#include <ravo/common/calendar.h>
#include <ravo/runtime/error.h>

#include <chrono>
#include <limits>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

DateTime At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0, int millisecond = 0) {
  return EncodeDateTime({{year, month, day}, {hour, minute, second, millisecond}});
}

TEST(DateToSQLString, WritesEightDigits) {
  EXPECT_EQ(DateToSQLString(At(2010, 12, 31)), u"20101231");
  EXPECT_EQ(DateToSQLString(At(2010, 12, 31, 23, 59, 59, 999)), u"20101231");
  EXPECT_EQ(DateToSQLString(At(205, 1, 1)), u"02050101");
  EXPECT_EQ(DateToSQLString(At(1, 1, 1)), u"00010101");
  EXPECT_EQ(DateToSQLString(At(9999, 12, 31)), u"99991231");
  EXPECT_EQ(DateToSQLString(0), u"18991230");
  EXPECT_EQ(DateToSQLString(-1.25), u"18991229");
}

TEST(TimeToSQLString, SetsMillisecondsOffByAColon) {
  EXPECT_EQ(TimeToSQLString(At(2010, 12, 31, 13, 5, 9, 7)), u"13:05:09:007");
  EXPECT_EQ(TimeToSQLString(40000), u"00:00:00:000");
  EXPECT_EQ(TimeToSQLString(-1.25), u"06:00:00:000");
}

TEST(TimeToSQLString, IgnoresTheDayWhateverItIs) {
  EXPECT_EQ(TimeToSQLString(2958466.75), u"18:00:00:000");  // 1 January 10000
  EXPECT_EQ(TimeToSQLString(-693594.25), u"06:00:00:000");  // 31 December of the year before 1
  EXPECT_EQ(TimeToSQLString(2958465.9999999999), u"00:00:00:000");
  EXPECT_EQ(TimeToSQLString(4194304.5), u"12:00:00:000");  // 2^22 days
  EXPECT_EQ(TimeToSQLString(-4503599627370495.5), u"12:00:00:000");
  EXPECT_EQ(TimeToSQLString(9007199254740993.0), u"00:00:00:000");
  EXPECT_EQ(TimeToSQLString(-1e300), u"00:00:00:000");
  using Limits = std::numeric_limits<double>;
  for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity()}) {
    EXPECT_THROW(static_cast<void>(TimeToSQLString(value)), ConvertError);
  }
}

TEST(DateTimeToSQLString, JoinsBothWithABlank) {
  EXPECT_EQ(DateTimeToSQLString(At(2010, 12, 31, 13, 5, 9, 7)), u"20101231 13:05:09:007");
}

TEST(DateTimeToSQLString, RoundsToTheMillisecondBeforeItSplits) {
  constexpr double kMillisecond = 1.0 / 86'400'000;
  EXPECT_EQ(DateTimeToSQLString(40000 + 1 - kMillisecond * 0.4), u"20090707 00:00:00:000");
  EXPECT_EQ(DateTimeToSQLString(40000 + 1 - kMillisecond * 0.6), u"20090706 23:59:59:999");
  EXPECT_EQ(DateTimeToSQLString(40000 + kMillisecond * 0.4), u"20090706 00:00:00:000");
  EXPECT_EQ(DateTimeToSQLString(-(1 + 1 - kMillisecond * 0.4)), u"18991230 00:00:00:000");
  EXPECT_EQ(DateTimeToSQLString(-(1 + 1 - kMillisecond * 0.6)), u"18991229 23:59:59:999");
}

TEST(DateToSQLString, RaisesOutsideTheCalendar) {
  EXPECT_THROW(static_cast<void>(DateToSQLString(1e300)), ConvertError);
  EXPECT_THROW(static_cast<void>(DateToSQLString(-693594)), ConvertError);
  EXPECT_THROW(static_cast<void>(DateToSQLString(std::numeric_limits<double>::quiet_NaN())), ConvertError);
}

TEST(ChangeMonth, MovesOneMonthAndClampsTheDay) {
  struct Row {
    DateTime from;
    int step;
    DateTime to;
  };
  const Row rows[] = {
      {At(2011, 1, 31), 1, At(2011, 2, 28)},    {At(2012, 3, 31), -1, At(2012, 2, 29)},
      {At(2011, 1, 15), 0, At(2010, 12, 15)},   {At(2010, 12, 31), 3, At(2011, 1, 31)},
      {At(2011, 1, 31), -7, At(2010, 12, 31)},  {At(2011, 5, 31, 13, 5), 1, At(2011, 6, 30)},
      {At(1899, 12, 31), -1, At(1899, 11, 30)}, {At(1, 2, 28), -1, At(1, 1, 28)},
  };
  for (const Row& row : rows) EXPECT_EQ(ChangeMonth(row.from, row.step), row.to);
}

TEST(ChangeMonth, StepOfThreeMovesOneMonth) {
  EXPECT_EQ(ChangeMonth(At(2011, 1, 15), 3), At(2011, 2, 15));
  EXPECT_EQ(ChangeMonth(At(2011, 1, 15), std::numeric_limits<std::int32_t>::max()), At(2011, 2, 15));
  EXPECT_EQ(ChangeMonth(At(2011, 1, 15), std::numeric_limits<std::int32_t>::min()), At(2010, 12, 15));
}

TEST(ChangeYear, MovesOneYearAndLowersTheLeapDay) {
  EXPECT_EQ(ChangeYear(At(2012, 2, 29), 1), At(2013, 2, 28));
  EXPECT_EQ(ChangeYear(At(2012, 2, 29), -5), At(2011, 2, 28));
  EXPECT_EQ(ChangeYear(At(2011, 7, 6, 23, 59), 0), At(2010, 7, 6));
}

TEST(ChangeMonth, RaisesOutsideTheYears1To9999) {
  EXPECT_THROW(static_cast<void>(ChangeMonth(At(1, 1, 31), -1)), ConvertError);
  EXPECT_THROW(static_cast<void>(ChangeMonth(At(9999, 12, 1), 1)), ConvertError);
  EXPECT_THROW(static_cast<void>(ChangeYear(At(1, 6, 1), -1)), ConvertError);
  EXPECT_THROW(static_cast<void>(ChangeYear(At(9999, 6, 1), 1)), ConvertError);
}

TEST(IsLeapYear, FollowsTheGregorianRule) {
  for (const int year : {2012, 2000, 0, -4, -400}) EXPECT_TRUE(IsLeapYear(year)) << year;
  for (const int year : {2011, 1900, -1, -100}) EXPECT_FALSE(IsLeapYear(year)) << year;
  for (int year = -9999; year <= 9999; ++year) {
    EXPECT_EQ(IsLeapYear(year), std::chrono::year(year).is_leap()) << year;
  }
}

TEST(DaysPerMonth, EveryMonthOfTenThousandYears) {
  using namespace std::chrono;
  for (int y = 1; y <= 9999; ++y) {
    for (unsigned m = 1; m <= 12; ++m) {
      ASSERT_EQ(DaysPerMonth(y, static_cast<int>(m)),
                static_cast<int>(unsigned{(year(y) / month(m) / last).day()}));
    }
  }
}

TEST(DaysPerMonth, RaisesForAMonthOutsideTheYear) {
  for (const int month : {0, 13, -1}) EXPECT_THROW(static_cast<void>(DaysPerMonth(2011, month)), RangeError);
}

TEST(FirstLastDay, GivesBothEnds) {
  DateTime first = 0, last = 0;
  FirstLastDay(2010, 12, first, last);
  EXPECT_EQ(first, At(2010, 12, 1));
  EXPECT_EQ(last, At(2010, 12, 31));
  FirstLastDay(2012, 2, first, last);
  EXPECT_EQ(last, At(2012, 2, 29));
}

TEST(FirstLastDay, RaisesAndLeavesTheResults) {
  DateTime first = 1, last = 2;
  for (const int bad : {-1, 65536}) {
    EXPECT_THROW(FirstLastDay(bad, 1, first, last), RangeError);
    EXPECT_THROW(FirstLastDay(2010, bad, first, last), RangeError);
  }
  EXPECT_THROW(FirstLastDay(2010, 0, first, last), ConvertError);
  EXPECT_THROW(FirstLastDay(2010, 13, first, last), ConvertError);
  EXPECT_THROW(FirstLastDay(0, 1, first, last), ConvertError);
  EXPECT_THROW(FirstLastDay(10000, 1, first, last), ConvertError);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(last, 2);
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
