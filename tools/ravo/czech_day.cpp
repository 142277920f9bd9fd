#include "czech_day.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

namespace tool {
namespace {

namespace czech = ravo::czech;

constexpr std::array kWeekdayNames = {
    ToTranslate("Monday"), ToTranslate("Tuesday"),  ToTranslate("Wednesday"), ToTranslate("Thursday"),
    ToTranslate("Friday"), ToTranslate("Saturday"), ToTranslate("Sunday")};

// Today by the local clock.
czech::Day Today() {
  const std::time_t now = std::time(nullptr);
  const std::tm* const local = std::localtime(&now);
  return czech::DayOf({local->tm_year + 1900, local->tm_mon + 1, local->tm_mday});
}

// Three numbers as `form` divides them, or false if the text is longer.
bool ReadNumbers(const std::string& text, const char* form, int& first, int& second, int& third) {
  int used = 0;
  return std::sscanf(text.c_str(), form, &first, &second, &third, &used) == 3 &&
         static_cast<std::size_t>(used) == text.size();
}

}  // namespace

std::optional<czech::Day> ParseDay(std::string_view text) {
  if (text == "today" || text == "dnes") return Today();
  std::string digits(text);
  std::erase(digits, ' ');
  ravo::DateParts date;
  const bool written = ReadNumbers(digits, "%4d-%2d-%2d%n", date.year, date.month, date.day) ||
                       ReadNumbers(digits, "%2d.%2d.%4d%n", date.day, date.month, date.year);
  if (!written || !czech::Exists(date)) return std::nullopt;
  return czech::DayOf(date);
}

std::string CheckDay(const std::string& text) {
  if (ParseDay(text)) return {};
  return Text("'{0}' is not a day such as 2026-11-21, 21.11.2026 or today", {text});
}

czech::Day DayOrToday(const std::string& text) {
  return text.empty() ? Today() : ParseDay(text).value_or(Today());
}

std::string DayText(czech::Day day) {
  const ravo::DateParts date = czech::PartsOf(day);
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", date.year, date.month, date.day);
  return text.data();
}

std::string WeekdayText(czech::Day day) {
  return Text(kWeekdayNames[static_cast<std::size_t>(czech::Weekday(day))]);
}

}  // namespace tool
