#include <ravo/runtime/checked.h>
#include <ravo/utils/calendar.h>
#include <ravo/utils/calendar_parts.h>

#include <algorithm>
#include <array>

namespace ravo::DIUtils {
namespace {

constexpr std::uint16_t kMonths = 12;

constexpr std::array<std::array<std::uint16_t, kMonths>, 2> kMonthLengths = {
    {{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}, {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}}};

bool IsMonth(std::uint16_t month) { return month >= 1 && month <= kMonths; }

std::uint16_t LengthOf(std::int32_t year, std::uint16_t month) {
  return kMonthLengths[IsLeapYear(year) ? 1 : 0][month - 1u];
}

// Normalizes a month number: 0 is December of the previous year, 13 January of the next one, and so on.
utils::Ymd WithMonthCounted(std::int32_t year, std::int32_t month) {
  if (month > kMonths) {
    const auto rest = static_cast<std::uint16_t>(month % kMonths);
    return {CheckedAdd(year, (month - 1) / kMonths), rest == 0 ? kMonths : rest, 0};
  }
  if (month < 1)
    return {CheckedAdd(year, month / kMonths - 1), static_cast<std::uint16_t>(month % kMonths + kMonths), 0};
  return {year, static_cast<std::uint16_t>(month), 0};
}

}  // namespace

bool IsLeapYear(std::int32_t year) noexcept { return IsGregorianLeapYear(year); }

std::uint16_t DaysInMonthYm(std::int32_t year, std::uint16_t month) {
  if (!IsMonth(month)) throw RangeError(u"Range check error");
  return LengthOf(year, month);
}

std::uint16_t DaysInMonth(TJulianDate date) {
  const utils::Ymd parts = utils::PartsOf(date);
  return DaysInMonthYm(parts.year, parts.month);
}

TJulianDate FirstDayOfMonth(TJulianDate date) { return CheckedSubtract(date, DayOfJulianDate(date) - 1); }

TJulianDate LastDayOfMonth(TJulianDate date) {
  const utils::Ymd parts = utils::PartsOf(date);
  return CheckedAdd(date, DaysInMonthYm(parts.year, parts.month) - parts.day);
}

void FirstDayOfMonthYmd(std::int32_t, std::uint16_t, std::uint16_t& day) noexcept { day = 1; }

void LastDayOfMonthYmd(std::int32_t year, std::uint16_t month, std::uint16_t& day) {
  day = DaysInMonthYm(year, month);
}

bool IsDateValid(std::int32_t year, std::uint16_t month, std::uint16_t day) noexcept {
  return IsMonth(month) && day >= 1 && day <= LengthOf(year, month);
}

void IncDay(std::int32_t& year, std::uint16_t& month, std::uint16_t& day) {
  if (day < DaysInMonthYm(year, month)) {
    ++day;
    return;
  }
  if (month == kMonths) year = CheckedAdd(year, 1);
  month = month == kMonths ? 1 : static_cast<std::uint16_t>(month + 1);
  day = 1;
}

void IncDays(std::int32_t& year, std::uint16_t& month, std::uint16_t& day, std::int32_t count) {
  JulianDateToYmd(CheckedAdd(YmdToJulianDate(year, month, day), count), year, month, day);
}

void IncMonth(std::int32_t& year, std::uint16_t& month, std::uint16_t& day) {
  const bool wraps = month >= kMonths;
  if (wraps) year = CheckedAdd(year, 1);
  month = wraps ? 1 : static_cast<std::uint16_t>(month + 1);
  day = std::min(day, LengthOf(year, month));
}

void IncMonths(std::int32_t& year, std::uint16_t& month, std::uint16_t& day, std::int32_t count) {
  const utils::Ymd counted = WithMonthCounted(year, CheckedAdd<std::int32_t>(month, count));
  year = counted.year;
  month = counted.month;
  day = std::min(day, LengthOf(year, month));
}

}  // namespace ravo::DIUtils
