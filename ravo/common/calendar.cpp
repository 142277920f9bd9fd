#include <ravo/common/calendar.h>
#include <ravo/runtime/checked.h>

#include <algorithm>
#include <array>

namespace ravo::RavoInterfaceCommon {
namespace {

// Appends `value`, which must not be negative, with at least `digits` decimal digits.
void AppendPadded(std::u16string& text, int value, int digits) {
  for (int place = digits; place > 0; --place) {
    int power = 1;
    for (int i = 1; i < place; ++i) power *= 10;
    text.push_back(static_cast<char16_t>(u'0' + value / power % 10));
  }
}

void AppendDate(std::u16string& text, const DateParts& date) {
  AppendPadded(text, date.year, 4);
  AppendPadded(text, date.month, 2);
  AppendPadded(text, date.day, 2);
}

void AppendTime(std::u16string& text, const TimeParts& time) {
  AppendPadded(text, time.hour, 2);
  text += u':';
  AppendPadded(text, time.minute, 2);
  text += u':';
  AppendPadded(text, time.second, 2);
  // Kept: milliseconds follow a colon, not a point: 13:05:09:007. Test:
  // TimeToSQLString.SetsMillisecondsOffByAColon
  text += u':';
  AppendPadded(text, time.millisecond, 3);
}

// Returns the date, with a day past the end of the month lowered to the last one.
DateTime EncodeClamped(int year, int month, int day) {
  return EncodeDate(year, month, std::min<int>(day, DaysPerMonth(year, month)));
}

}  // namespace

std::u16string DateToSQLString(DateTime value) {
  std::u16string text;
  AppendDate(text, SplitDateTime(value).date);
  return text;
}

std::u16string TimeToSQLString(DateTime value) {
  std::u16string text;
  AppendTime(text, TimeOfDay(value));
  return text;
}

std::u16string DateTimeToSQLString(DateTime value) {
  const DateTimeParts parts = SplitDateTime(value);
  std::u16string text;
  AppendDate(text, parts.date);
  text += u' ';
  AppendTime(text, parts.time);
  return text;
}

DateTime ChangeMonth(DateTime value, std::int32_t step) {
  const DateParts date = SplitDateTime(value).date;
  // Kept: only the sign of `step` counts: 3 moves one month forward, and 0 one month back. Test:
  // ChangeMonth.StepOfThreeMovesOneMonth
  const int months = date.year * 12 + date.month - 1 + (step > 0 ? 1 : -1);
  return EncodeClamped(months / 12, months % 12 + 1, date.day);
}

DateTime ChangeYear(DateTime value, std::int32_t step) {
  const DateParts date = SplitDateTime(value).date;
  return EncodeClamped(date.year + (step > 0 ? 1 : -1), date.month, date.day);
}

bool IsLeapYear(std::int32_t year) noexcept { return IsGregorianLeapYear(year); }

std::int32_t DaysPerMonth(std::int32_t year, std::int32_t month) {
  constexpr std::array<std::int32_t, 12> kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) throw RangeError(u"Month out of range");
  return month == 2 && IsLeapYear(year) ? 29 : kDays[static_cast<std::size_t>(month - 1)];
}

void FirstLastDay(std::int32_t year, std::int32_t month, DateTime& first, DateTime& last) {
  const int checked_year = CheckedCast<std::uint16_t>(year);
  const int checked_month = CheckedCast<std::uint16_t>(month);
  const DateTime first_day = EncodeDate(checked_year, checked_month, 1);
  last = EncodeDate(checked_year, checked_month, DaysPerMonth(year, month));
  first = first_day;
}

}  // namespace ravo::RavoInterfaceCommon
