#include <ravo/platform/locale.h>

#include <chrono>
#include <cmath>
#include <ctime>
#include <set>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

template <std::size_t count>
void ExpectDistinctNames(const std::array<std::u16string, count>& names) {
  const std::set<std::u16string> distinct(names.begin(), names.end());
  EXPECT_EQ(distinct.size(), count);
  EXPECT_FALSE(distinct.contains(u""));
}

TEST(Locale, NamesAreThereAndDistinct) {
  const FormatSettings settings = Locale().Settings();
  ExpectDistinctNames(settings.short_day_names);
  ExpectDistinctNames(settings.long_day_names);
  ExpectDistinctNames(settings.short_month_names);
  ExpectDistinctNames(settings.long_month_names);
}

TEST(Locale, PatternsHoldWhatADateAndATimeNeed) {
  const FormatSettings settings = Locale().Settings();
  for (const char16_t letter : {u'd', u'm', u'y'}) {
    EXPECT_NE(settings.short_date.find(letter), std::u16string::npos);
  }
  for (const char16_t letter : {u'h', u'n', u's'}) {
    EXPECT_NE(settings.long_time.find(letter), std::u16string::npos);
  }
  EXPECT_EQ(settings.long_time.find(u'H'), std::u16string::npos);
}

TEST(Locale, SeparatorsDiffer) {
  const FormatSettings settings = Locale().Settings();
  EXPECT_TRUE(settings.decimal_separator == u'.' || settings.decimal_separator == u',');
  EXPECT_NE(settings.thousands_separator, std::u16string(1, settings.decimal_separator));
}

// Local time by the C library's calendar, in days since 30 December 1899.
double LocalTime() {
  using namespace std::chrono;
  const std::time_t now = std::time(nullptr);
  const std::tm local = *std::localtime(&now);
  const auto date = year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday;
  const auto days = (sys_days(date) - sys_days(1899y / 12 / 30)).count();
  return static_cast<double>(days) + (local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec) / 86400.0;
}

TEST(Now, IsTheLocalTime) {
  constexpr double seconds = 1.0 / 86400;
  EXPECT_LT(std::abs(Locale().Now() - LocalTime()), 5 * seconds);
}

}  // namespace
}  // namespace ravo::platform
