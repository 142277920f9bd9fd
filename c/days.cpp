#include "columns_answers.h"
#include <ravo/czech/day.h>
#include <ravo/czech/day_text.h>
#include <ravo/utils/calendar.h>

using ravo::c::Answer;
using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailRange;
using ravo::c::Guarded;
using ravo::c::ReadText;
using ravo::c::WriteText;
namespace czech = ravo::czech;

namespace {

constexpr std::int32_t kThursday = 3;
constexpr std::int32_t kMonths = 12;

ravo_status FailDay(ravo_error* error) { return FailRange(error, "the day is not in the years 1 to 9999"); }
ravo_status FailYear(ravo_error* error) { return FailRange(error, "the year is not 1 to 9999"); }

bool IsYear(std::int32_t year) { return year >= 1 && year <= 9999; }

// Says which part of a date that does not exist is out of range.
ravo_status FailDate(ravo_error* error, const ravo::DateParts& date) {
  if (!IsYear(date.year)) return FailYear(error);
  if (date.month < 1 || date.month > kMonths) return FailRange(error, "the month is not 1 to 12");
  return FailRange(error, "the month has no such day");
}

std::int32_t DaysIn(std::int32_t year, std::int32_t month) {
  return ravo::DIUtils::DaysInMonthYm(year, static_cast<std::uint16_t>(month));
}

// Writes a day that is computed from another one.
template <class Compute>
ravo_status Moved(ravo_day day, ravo_day* result, ravo_error* error, Compute compute) {
  if (result == nullptr) return FailNullResult(error);
  if (!czech::InCalendar({day})) return FailDay(error);
  const std::int64_t moved = compute(czech::PartsOf({day}));
  if (moved < czech::detail::kFirstDay.number || moved > czech::detail::kLastDay.number)
    return FailRange(error, "the result is not in the years 1 to 9999");
  *result = static_cast<ravo_day>(moved);
  return RAVO_OK;
}

// Past the calendar's end for a year outside of it.
std::int64_t DayAfterMonths(const ravo::DateParts& date, std::int64_t months) {
  const std::int64_t count = std::int64_t{date.year} * kMonths + date.month - 1 + months;
  if (count < kMonths || count >= kMonths * std::int64_t{10000}) return INT64_MAX;
  const auto year = static_cast<std::int32_t>(count / kMonths);
  const auto month = static_cast<std::int32_t>(count % kMonths) + 1;
  return czech::DayOf({year, month, std::min(date.day, DaysIn(year, month))}).number;
}

std::string_view Stripped(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

// The date that a whole text is.
std::optional<ravo::DateParts> ReadDate(std::string_view text) {
  std::string_view rest = Stripped(text);
  const auto date = czech::TakeDate(rest);
  return rest.empty() ? date : std::nullopt;
}

bool IsForm(ravo_date_form form) { return form >= RAVO_DATE_ISO && form <= RAVO_DATE_COMPACT; }
ravo_status FailForm(ravo_error* error) { return FailArgument(error, "the form is unknown"); }

constexpr auto kDayRange = static_cast<std::uint16_t>(czech::Code::DayRange);

struct DayOfText {
  [[nodiscard]] Answer<std::int32_t> operator()(std::string_view text) const noexcept {
    const auto date = ReadDate(text);
    if (!date) {
      const bool is_text = ravo::c::WellFormedLength(text) == text.size();
      return {0, is_text ? std::uint16_t{RAVO_CODE_NO_DATE} : std::uint16_t{RAVO_CODE_NOT_UTF8}};
    }
    if (!czech::Exists(*date)) return {0, kDayRange};
    const std::int64_t day = std::int64_t{czech::DayOf(*date).number} - origin;
    if (day > INT32_MAX || day < INT32_MIN) return {0, kDayRange};
    return {static_cast<std::int32_t>(day)};
  }
  ravo_day origin;
};

struct TextOfDay {
  [[nodiscard]] czech::Parsed<czech::FixedText<12>> operator()(std::string_view bytes) const noexcept {
    const std::int64_t day = std::int64_t{ravo::c::LoadAt<std::int32_t>(bytes.data(), 0)} + origin;
    const bool is_known = day >= czech::detail::kFirstDay.number && day <= czech::detail::kLastDay.number;
    if (!is_known) return {{}, czech::Code::DayRange};
    return {czech::DateText({static_cast<std::int32_t>(day)}, form)};
  }
  ravo_day origin;
  czech::DateForm form;
};

}  // namespace

ravo_status ravo_day_of(int32_t year, int32_t month, int32_t day_of_month, ravo_day* day, ravo_error* error) {
  if (day == nullptr) return FailNullResult(error);
  const ravo::DateParts date{year, month, day_of_month};
  if (!czech::Exists(date)) return FailDate(error, date);
  *day = czech::DayOf(date).number;
  return RAVO_OK;
}

ravo_status ravo_date_of(ravo_day day, ravo_date* date, ravo_error* error) {
  if (date == nullptr) return FailNullResult(error);
  if (!czech::InCalendar({day})) return FailDay(error);
  const ravo::DateParts parts = czech::PartsOf({day});
  *date = {parts.year, parts.month, parts.day};
  return RAVO_OK;
}

int32_t ravo_is_leap_year(int32_t year) { return ravo::IsGregorianLeapYear(year); }

ravo_status ravo_weekday_of(ravo_day day, int32_t* weekday, ravo_error* error) {
  if (weekday == nullptr) return FailNullResult(error);
  if (!czech::InCalendar({day})) return FailDay(error);
  *weekday = czech::Weekday({day});
  return RAVO_OK;
}

ravo_status ravo_week_of(ravo_day day, ravo_week* week, ravo_error* error) {
  if (week == nullptr) return FailNullResult(error);
  if (!czech::InCalendar({day})) return FailDay(error);
  // The week's year can be 0 or 10000.
  const std::int32_t thursday = day - czech::Weekday({day}) + kThursday;
  *week = {ravo::DIUtils::YearOfJuilanDate(thursday), ravo::DIUtils::ISOWeekNumber(day)};
  return RAVO_OK;
}

ravo_status ravo_day_of_week(int32_t year, int32_t week, ravo_day* monday, ravo_error* error) {
  if (monday == nullptr) return FailNullResult(error);
  if (!IsYear(year)) return FailYear(error);
  if (week < 1 || week > 53) return FailRange(error, "the year has no such week");
  const std::int32_t first = ravo::DIUtils::ISOWeekToJulianDate(year, week, 0);
  if (ravo::DIUtils::YearOfJuilanDate(first + kThursday) != year)
    return FailRange(error, "the year has no such week");
  if (!czech::InCalendar({first})) return FailDay(error);
  *monday = first;
  return RAVO_OK;
}

ravo_status ravo_days_in_month(int32_t year, int32_t month, int32_t* days, ravo_error* error) {
  if (days == nullptr) return FailNullResult(error);
  if (!czech::Exists({year, month, 1})) return FailDate(error, {year, month, 1});
  *days = DaysIn(year, month);
  return RAVO_OK;
}

ravo_status ravo_month_begin(ravo_day day, ravo_day* first, ravo_error* error) {
  return Moved(day, first, error, [day](const ravo::DateParts& date) { return day - (date.day - 1); });
}

ravo_status ravo_month_end(ravo_day day, ravo_day* last, ravo_error* error) {
  return Moved(day, last, error,
               [day](const ravo::DateParts& date) { return day + DaysIn(date.year, date.month) - date.day; });
}

ravo_status ravo_add_months(ravo_day day, int32_t months, ravo_day* result, ravo_error* error) {
  return Moved(day, result, error,
               [months](const ravo::DateParts& date) { return DayAfterMonths(date, months); });
}

ravo_status ravo_day_format(ravo_day day, ravo_date_form form, char* buffer, size_t size, size_t* length,
                            ravo_error* error) {
  if (!IsForm(form)) return FailForm(error);
  if (!czech::InCalendar({day})) return FailDay(error);
  return WriteText({buffer, size, length}, czech::DateText({day}, static_cast<czech::DateForm>(form)).View(),
                   error);
}

ravo_status ravo_day_read(const char* text, size_t text_length, ravo_day* day, ravo_error* error) {
  if (day == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto date = ReadDate(input);
  if (!date) return Fail(error, {RAVO_WRONG, 0, 0, "the text is no date"});
  if (!czech::Exists(*date)) return FailRange(error, "there is no such date");
  *day = czech::DayOf(*date).number;
  return RAVO_OK;
}

ravo_status ravo_day_read_column(const ravo_column* column, uint32_t flags, ravo_day origin, int32_t* days,
                                 ravo_answers* answers, ravo_progress progress, void* context,
                                 ravo_error* error) {
  return Guarded(error, [&] {
    return ravo::c::AnswerNumbers<ravo::c::kTexts>(column, {flags, progress, context}, days, answers, error,
                                                   DayOfText{origin});
  });
}

ravo_status ravo_day_format_column(const ravo_column* column, uint32_t flags, ravo_day origin,
                                   ravo_date_form form, ravo_answers* answers, ravo_progress progress,
                                   void* context, ravo_error* error) {
  if (!IsForm(form)) return FailForm(error);
  return Guarded(error, [&] {
    return ravo::c::AnswerTexts<sizeof(std::int32_t)>(column, {flags, progress, context}, answers, error,
                                                      TextOfDay{origin, static_cast<czech::DateForm>(form)});
  });
}
