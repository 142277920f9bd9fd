#include "date_input.h"

#include "month_names.h"
#include "text.h"
#include <ravo/czech/day_text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace tool {
namespace {

struct Word {
  std::string_view word;
  int days;
};

constexpr std::array kWords = {
    Word{"today", 0},  Word{"dnes", 0},    Word{"tomorrow", 1},     Word{"zítra", 1},
    Word{"zitra", 1},  Word{"pozítří", 2}, Word{"pozitri", 2},      Word{"yesterday", -1},
    Word{"včera", -1}, Word{"vcera", -1},  Word{"předevčírem", -2}, Word{"predevcirem", -2},
};

constexpr std::string_view kNoBreak = "\u00A0";

// Reads a text from its start; what does not match is left.
class DateReader {
 public:
  explicit DateReader(std::string_view text) : rest_(text) {}

  [[nodiscard]] std::string_view Rest() const noexcept { return rest_; }

  bool Take(std::string_view what) {
    if (!rest_.starts_with(what)) return false;
    rest_.remove_prefix(what.size());
    return true;
  }

  std::optional<ravo::DateParts> Date() { return ravo::czech::TakeDate(rest_); }

  void SkipBlanks() {
    while (Take(" ") || Take(kNoBreak)) {
    }
  }

  // The value of `least` to `most` digits.
  std::optional<int> Number(std::size_t least, std::size_t most) {
    const std::size_t length = std::min(rest_.find_first_not_of("0123456789"), rest_.size());
    int value = 0;
    if (length < least || length > most) return {};
    std::from_chars(rest_.data(), rest_.data() + length, value);
    rest_.remove_prefix(length);
    return value;
  }

 private:
  std::string_view rest_;
};

std::optional<ravo::TimeParts> TakeTime(DateReader& from) {
  DateReader reader = from;
  ravo::TimeParts time;
  if (!reader.Take("T")) reader.SkipBlanks();
  const auto hour = reader.Number(1, 2);
  const auto minute = hour && reader.Take(":") ? reader.Number(2, 2) : std::nullopt;
  if (!minute) return {};
  time.hour = *hour;
  time.minute = *minute;
  if (reader.Take(":")) {
    time.second = reader.Number(2, 2).value_or(-1);
    if (reader.Take(".")) time.millisecond = reader.Number(3, 3).value_or(-1);
  }
  from = reader;
  return time;
}

std::optional<int> WordDays(DateReader& reader) {
  std::string lower(reader.Rest().substr(0, reader.Rest().find_first_of(" +-")));
  std::ranges::transform(lower, lower.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
  const auto* const found = std::ranges::find(kWords, lower, &Word::word);
  if (found == kWords.end()) return {};
  reader.Take(reader.Rest().substr(0, lower.size()));
  return found->days;
}

std::optional<DateStep> StepOfUnit(char unit, int count) {
  switch (unit) {
    case 'd':
      return DateStep{DateStep::Unit::Days, count};
    case 'w':
    case 't':
      return DateStep{DateStep::Unit::Days, 7 * count};
    case 'm':
      return DateStep{DateStep::Unit::Months, count};
    case 'y':
    case 'r':
      return DateStep{DateStep::Unit::Years, count};
    default:
      return {};
  }
}

std::optional<DateStep> TakeStep(DateReader& reader) {
  const bool back = reader.Take("-");
  if (!back && !reader.Take("+")) return {};
  const auto count = reader.Number(1, 6);
  if (!count || reader.Rest().empty()) return {};
  const auto step = StepOfUnit(reader.Rest().front(), back ? -*count : *count);
  if (step) reader.Take(reader.Rest().substr(0, 1));
  return step;
}

std::optional<DateFault> FaultOf(const ravo::DateParts& date) {
  if (date.year < 1) return DateFault{Text("there is no year {0}", {std::to_string(date.year)})};
  if (date.month < 1 || date.month > 12)
    return DateFault{Text("there is no month {0}", {std::to_string(date.month)})};
  const int days = ravo::RavoInterfaceCommon::DaysPerMonth(date.year, date.month);
  if (date.day >= 1 && date.day <= days) return {};
  return DateFault{Text("{0} {1} has the days 1 to {2}",
                        {MonthName(date.month), std::to_string(date.year), std::to_string(days)})};
}

std::optional<DateFault> FaultOf(const ravo::TimeParts& time) {
  const bool is_time =
      time.hour < 24 && time.minute < 60 && time.second >= 0 && time.second < 60 && time.millisecond >= 0;
  if (is_time) return {};
  return DateFault{Text("times are from 00:00:00.000 to 23:59:59.999")};
}

// Takes the day and its time, or the word for it.
std::optional<DateFault> TakeStart(DateReader& reader, DateInput& input) {
  if (const auto days = WordDays(reader)) {
    input.steps.push_back({DateStep::Unit::Days, *days});
    return {};
  }
  const auto day = reader.Date();
  if (!day) return {};
  input.start.date = *day;
  if (const auto time = TakeTime(reader)) input.start.time = *time;
  if (auto fault = FaultOf(*day)) return fault;
  return FaultOf(input.start.time);
}

}  // namespace

std::variant<DateInput, DateFault> ReadDate(std::string_view utf8, const ravo::DateParts& today) {
  DateInput input{{today, {}}, {}};
  DateReader reader(utf8);
  reader.SkipBlanks();
  const std::size_t length = reader.Rest().size();
  if (auto fault = TakeStart(reader, input)) return std::move(*fault);
  const bool has_start = reader.Rest().size() < length;
  reader.SkipBlanks();
  while (const auto step = TakeStep(reader)) {
    input.steps.push_back(*step);
    reader.SkipBlanks();
  }
  if (reader.Rest().empty() && (has_start || !input.steps.empty())) return input;
  return DateFault{Text("this is no date; write it as 2026-11-21, 21.11.2026, today or +14d")};
}

}  // namespace tool
