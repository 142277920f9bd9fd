#include "support/fake_machine.h"
#include <ravo/RavoFileCommon.h>
#include <ravo/common/calendar.h>
#include <ravo/runtime/error.h>

#include <limits>

#include <gtest/gtest.h>

namespace ravo::RavoFileCommon {
namespace {

constexpr DateTime kSixOClockInTheEvening = 0.75;

TEST(Date2XML, WritesYearMonthAndDay) {
  EXPECT_EQ(Date2XML(EncodeDate(2024, 12, 31) + kSixOClockInTheEvening), u"2024-12-31");
  EXPECT_EQ(Date2XML(EncodeDate(2024, 3, 5)), u"2024-03-05");
  EXPECT_EQ(Date2XML(EncodeDate(1, 1, 1)), u"0001-01-01");
  EXPECT_EQ(Date2XML(EncodeDate(9999, 12, 31)), u"9999-12-31");
}

TEST(Date2XML, IgnoresTheTimeOfDay) {
  EXPECT_EQ(Date2XML(0.5), u"1899-12-30");
  EXPECT_EQ(Date2XML(-0.5), u"1899-12-30");
  EXPECT_EQ(Date2XML(-1.25), u"1899-12-29");
}

// 0.4 ms before midnight, and 0.6 ms.
TEST(FormDates, AreTheDaysOfSqlTexts) {
  constexpr double kDay = 86'400'000;
  const DateTime last_moment = EncodeDate(2024, 12, 31) + (kDay - 0.4) / kDay;
  EXPECT_EQ(Date2XML(last_moment), u"2025-01-01");
  EXPECT_EQ(Date2PDF(last_moment, false, false), u"1.1.2025");
  EXPECT_EQ(RavoInterfaceCommon::DateToSQLString(last_moment), u"20250101");
  const DateTime moment_before = EncodeDate(2024, 12, 31) + (kDay - 0.6) / kDay;
  EXPECT_EQ(Date2XML(moment_before), u"2024-12-31");
  EXPECT_EQ(Date2PDF(moment_before, false, false), u"31.12.2024");
  EXPECT_EQ(RavoInterfaceCommon::DateToSQLString(moment_before), u"20241231");
  EXPECT_EQ(Date2XML(-1.999999999), u"1899-12-30");
}

TEST(Date2XML, IsEmptyForTheEmptyDate) {
  EXPECT_EQ(Date2XML(0), u"");
  EXPECT_EQ(Date2XML(-0.0), u"");
}

TEST(Date2XML, RaisesForWhatIsNoDate) {
  EXPECT_THROW(static_cast<void>(Date2XML(EncodeDate(9999, 12, 31) + 1)), ConvertError);
  EXPECT_THROW(static_cast<void>(Date2XML(EncodeDate(9999, 12, 31) + 0.9999999999)), ConvertError);
  EXPECT_THROW(static_cast<void>(Date2XML(EncodeDate(1, 1, 1) - 1)), ConvertError);
  EXPECT_THROW(static_cast<void>(Date2XML(std::numeric_limits<double>::quiet_NaN())), ConvertError);
  EXPECT_THROW(static_cast<void>(Date2XML(std::numeric_limits<double>::infinity())), ConvertError);
}

TEST(Date2PDF, HasFourForms) {
  const DateTime date = EncodeDate(2024, 3, 5) + kSixOClockInTheEvening;
  EXPECT_EQ(Date2PDF(date, false, false), u"5.3.2024");
  EXPECT_EQ(Date2PDF(date, false, true), u"05.03.2024");
  EXPECT_EQ(Date2PDF(date, true, false), u"5.3.");
  EXPECT_EQ(Date2PDF(date, true, true), u"05.03.");
  EXPECT_EQ(Date2PDF(EncodeDate(2024, 12, 31), false, false), u"31.12.2024");
}

TEST(Date2PDF, IsEmptyForTheEmptyDate) {
  for (const bool without_year : {false, true}) {
    for (const bool leading_zeros : {false, true}) EXPECT_EQ(Date2PDF(0, without_year, leading_zeros), u"");
  }
}

TEST(FormDates, DoNotAskTheLocale) {
  test::FakeMachine machine;
  machine.locale.short_date = u"d/m/yy";
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(Date2XML(EncodeDate(2024, 3, 5)), u"2024-03-05");
  EXPECT_EQ(Date2PDF(EncodeDate(2024, 3, 5), false, true), u"05.03.2024");
}

TEST(Bool2XML, TicksABox) {
  EXPECT_EQ(Bool2XML(true), u"X");
  EXPECT_EQ(Bool2XML(false), u"");
}

}  // namespace
}  // namespace ravo::RavoFileCommon
