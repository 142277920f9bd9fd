// Any numbers as dates: the fast paths of the calendar agree with its formulas, errors included, and every
// date survives a round trip.
#include <ravo/DIUtils.h>
#include <ravo/runtime/error.h>
#include <ravo/utils/calendar_formulas.h>
#include <ravo/utils/calendar_parts.h>

#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

namespace dates = ravo::DIUtils;

void Require(bool condition) {
  if (!condition) std::abort();
}

// No value if it throws one of the library's errors.
template <class Call>
auto Answer(const Call& call) -> std::optional<decltype(call())> {
  try {
    return call();
  } catch (const ravo::Error&) {
    return std::nullopt;
  }
}

struct Numbers {
  std::int32_t date;
  std::int32_t year;
  std::int32_t count;
  std::uint16_t month;
  std::uint16_t day;
};

bool Fits(std::int32_t value) { return value >= 0 && value <= 0xFFFF; }

void CheckParts(std::int32_t date) {
  const auto expected = Answer([date] { return ravo::utils::JulianPartsByFormula(date); });
  const auto parts = Answer([date] { return ravo::utils::PartsOf(date); });
  Require(parts.has_value() == (expected && Fits(expected->month) && Fits(expected->day)));
  if (!parts) return;
  Require(parts->year == expected->year && parts->month == expected->month && parts->day == expected->day);
  const bool everyday = date >= -32044;
  if (everyday) Require(dates::YmdToJulianDate(parts->year, parts->month, parts->day) == date);
  if (everyday) Require(dates::IsDateValid(parts->year, parts->month, parts->day));
}

void CheckDay(std::int32_t year, std::uint16_t month, std::uint16_t day) {
  const auto expected = Answer([=] { return ravo::utils::JulianDateByFormula(year, month, day); });
  Require(Answer([=] { return dates::YmdToJulianDate(year, month, day); }) == expected);
  const auto text = Answer([=] { return dates::YmdToIsoDateA(year, month, day); });
  if (text) Require(text->size() >= 8 && text->size() <= 10);
}

void CheckWeek(std::int32_t date) {
  const auto week = Answer([date] { return dates::ISOWeekNumber(date); });
  Require(week == Answer([date] { return ravo::utils::IsoWeekByFormula(date); }));
  if (week) Require(*week >= 1 && *week <= 53);
  Require(dates::DayOfWeek(date) >= 0 && dates::DayOfWeek(date) <= 6);
}

void CheckSteps(Numbers numbers) {
  static_cast<void>(Answer([&] {
    dates::IncMonths(numbers.year, numbers.month, numbers.day, numbers.count);
    Require(numbers.month >= 1 && numbers.month <= 12 && numbers.day <= 31);
    return true;
  }));
  static_cast<void>(Answer([&] { return dates::IsHolidayInGermany(numbers.date); }));
  static_cast<void>(Answer([&] { return dates::EasterSunday(numbers.year); }));
  static_cast<void>(Answer([&] {
    dates::IncDays(numbers.year, numbers.month, numbers.day, numbers.count);
    return true;
  }));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Numbers numbers{};
  if (size < sizeof(numbers)) return 0;
  std::memcpy(&numbers, data, sizeof(numbers));
  CheckParts(numbers.date);
  CheckDay(numbers.year, numbers.month, numbers.day);
  CheckWeek(numbers.date);
  CheckSteps(numbers);
  return 0;
}
