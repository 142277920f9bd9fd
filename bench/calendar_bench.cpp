// Days as numbers and back, and the ISO week, beside the calendar of the standard library and GLib's dates.
#include "ratio.h"
#include <ravo/DIUtils.h>

#include <chrono>
#include <random>

#include <glib.h>

namespace {

using ravo::DIUtils::TJulianDate;

constexpr std::size_t kDays = 64 * 1024;
constexpr TJulianDate kUnixEpoch = 2440588;
// GLib counts from 1 January of the year 1.
constexpr TJulianDate kBeforeGlibsFirst = 1721425;

struct Ymd {
  std::int32_t year;
  std::uint16_t month;
  std::uint16_t day;
};

// Random days of the years 1 to 9999.
std::vector<TJulianDate> Days() {
  std::mt19937 random(20240331);
  std::uniform_int_distribution<TJulianDate> any(kBeforeGlibsFirst + 1, 5373484);
  std::vector<TJulianDate> days(kDays);
  for (TJulianDate& day : days) day = any(random);
  return days;
}

std::vector<Ymd> Dates() {
  std::vector<Ymd> dates;
  for (const TJulianDate day : Days()) {
    Ymd& date = dates.emplace_back();
    ravo::DIUtils::JulianDateToYmd(day, date.year, date.month, date.day);
  }
  return dates;
}

// The sum of the results is used, so that the compiler keeps every call.
template <class Items, class Answer>
void Register(const char* name, const Items& items, Answer answer) {
  benchmark::RegisterBenchmark(name, [items, answer](benchmark::State& state) {
    for (auto _ : state) {
      std::int64_t sum = 0;
      for (const auto& item : items) sum += answer(item);
      benchmark::DoNotOptimize(sum);
    }
    state.counters["items"] = static_cast<double>(items.size());
  });
}

std::chrono::sys_days SysDays(TJulianDate day) {
  return std::chrono::sys_days(std::chrono::days(day - kUnixEpoch));
}

std::int64_t Sum(std::int64_t year, std::int64_t month, std::int64_t day) { return year + 16 * month + day; }

std::int64_t OurParts(TJulianDate day) {
  Ymd date;
  ravo::DIUtils::JulianDateToYmd(day, date.year, date.month, date.day);
  return Sum(date.year, date.month, date.day);
}

std::int64_t ChronoParts(TJulianDate day) {
  const std::chrono::year_month_day date(SysDays(day));
  return Sum(int{date.year()}, unsigned{date.month()}, unsigned{date.day()});
}

std::int64_t OurDay(const Ymd& date) {
  return ravo::DIUtils::YmdToJulianDate(date.year, date.month, date.day);
}

std::int64_t ChronoDay(const Ymd& date) {
  const std::chrono::year_month_day parts(std::chrono::year(date.year), std::chrono::month(date.month),
                                          std::chrono::day(date.day));
  return std::chrono::sys_days(parts).time_since_epoch().count();
}

std::int64_t ChronoWeek(TJulianDate day) {
  const std::chrono::sys_days date = SysDays(day);
  const auto weekday = static_cast<int>(std::chrono::weekday(date).iso_encoding());
  const std::chrono::sys_days thursday = date + std::chrono::days(4 - weekday);
  const std::chrono::year year = std::chrono::year_month_day(thursday).year();
  return (thursday - std::chrono::sys_days(year / 1 / 1)).count() / 7 + 1;
}

std::int64_t GlibWeek(TJulianDate day) {
  GDate date;
  g_date_clear(&date, 1);
  g_date_set_julian(&date, static_cast<guint32>(day - kBeforeGlibsFirst));
  return g_date_get_iso8601_week_of_year(&date);
}

}  // namespace

int main(int argc, char** argv) {
  Register("day_to_date/ravo", Days(), [](TJulianDate day) { return OurParts(day); });
  Register("day_to_date/std::chrono", Days(), [](TJulianDate day) { return ChronoParts(day); });
  Register("date_to_day/ravo", Dates(), [](const Ymd& date) { return OurDay(date); });
  Register("date_to_day/std::chrono", Dates(), [](const Ymd& date) { return ChronoDay(date); });
  Register("iso_week/ravo", Days(), [](TJulianDate day) { return ravo::DIUtils::ISOWeekNumber(day); });
  Register("iso_week/std::chrono", Days(), [](TJulianDate day) { return ChronoWeek(day); });
  Register("iso_week/GLib", Days(), [](TJulianDate day) { return GlibWeek(day); });
  return ravo::bench::RunWithRatios(argc, argv);
}
