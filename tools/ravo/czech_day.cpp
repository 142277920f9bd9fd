#include "czech_day.h"

#include "date_input.h"
#include "month_names.h"
#include "text.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <array>
#include <cstdio>
#include <variant>

namespace tool {
namespace {

namespace czech = ravo::czech;

// Returns the day, or why the text is not one.
std::variant<czech::Day, std::string> ReadDay(std::string_view text) {
  const auto read = ReadDate(text, czech::PartsOf(Today()));
  if (const auto* const fault = std::get_if<DateFault>(&read)) return fault->message;
  const DateInput& input = std::get<DateInput>(read);
  try {
    return czech::DayOf(MovedExactly(input.start, input.steps).date);
  } catch (const ravo::ConvertError&) {
    return Text("the date is outside the years 1 to 9999");
  }
}

}  // namespace

czech::Day Today() {
  const ravo::DIUtils::TJulianDate date = ravo::DIUtils::CurrentJulianDate();
  return {date};
}

std::string CheckDay(const std::string& text) {
  const auto read = ReadDay(text);
  const auto* const why = std::get_if<std::string>(&read);
  return why ? Text("'{0}' is not a day: {1}", {text, *why}) : std::string();
}

czech::Day DayOrToday(const std::string& text) {
  return text.empty() ? Today() : std::get<czech::Day>(ReadDay(text));
}

std::string DayText(czech::Day day) {
  const ravo::DateParts date = czech::PartsOf(day);
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", date.year, date.month, date.day);
  return text.data();
}

std::string WeekdayText(czech::Day day) { return Text(WeekdayKey(czech::Weekday(day))); }

}  // namespace tool
