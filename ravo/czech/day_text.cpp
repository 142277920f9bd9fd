#include <ravo/czech/day_text.h>

#include <algorithm>
#include <charconv>

namespace ravo::czech {
namespace {

constexpr std::string_view kNoBreakSpace = "\u00A0";

// Reads a text from its start; what does not match is left.
class DateReader {
 public:
  explicit DateReader(std::string_view text) noexcept : rest_(text) {}

  [[nodiscard]] std::string_view Rest() const noexcept { return rest_; }

  bool Take(std::string_view what) noexcept {
    if (!rest_.starts_with(what)) return false;
    rest_.remove_prefix(what.size());
    return true;
  }

  void SkipBlanks() noexcept {
    while (Take(" ") || Take(kNoBreakSpace)) {
    }
  }

  // The value of `least` to `most` digits.
  std::optional<int> Number(std::size_t least, std::size_t most) noexcept {
    const std::size_t length = std::min(rest_.find_first_not_of("0123456789"), rest_.size());
    int value = 0;
    if (length < least || length > most) return {};
    std::from_chars(rest_.data(), rest_.data() + length, value);
    rest_.remove_prefix(length);
    return value;
  }

  std::optional<int> NumberAndPoint() noexcept {
    const auto number = Number(1, 2);
    if (!number || !Take(".")) return {};
    SkipBlanks();
    return number;
  }

 private:
  std::string_view rest_;
};

std::optional<DateParts> Iso(DateReader& reader) noexcept {
  const auto year = reader.Number(4, 4);
  const auto month = year && reader.Take("-") ? reader.Number(1, 2) : std::nullopt;
  const auto day = month && reader.Take("-") ? reader.Number(1, 2) : std::nullopt;
  if (!day) return {};
  return DateParts{*year, *month, *day};
}

std::optional<DateParts> Czech(DateReader& reader) noexcept {
  const auto day = reader.NumberAndPoint();
  const auto month = day ? reader.NumberAndPoint() : std::nullopt;
  const auto year = month ? reader.Number(4, 4) : std::nullopt;
  if (!year) return {};
  return DateParts{*year, *month, *day};
}

std::optional<DateParts> Compact(DateReader& reader) noexcept {
  const auto number = reader.Number(8, 8);
  if (!number) return {};
  return DateParts{*number / 10000, *number / 100 % 100, *number % 100};
}

}  // namespace

FixedText<12> DateText(Day day, DateForm form) noexcept {
  const DateParts date = PartsOf(day);
  const auto year = static_cast<std::uint64_t>(date.year);
  const auto month = static_cast<std::uint64_t>(date.month);
  const auto of_month = static_cast<std::uint64_t>(date.day);
  const std::string_view separator = form == DateForm::Iso ? "-" : form == DateForm::Czech ? ". " : "";
  const bool czech = form == DateForm::Czech;
  FixedText<12> text;
  text.AppendNumber(czech ? of_month : year, czech ? 1 : 4);
  text.Append(separator);
  text.AppendNumber(month, czech ? 1 : 2);
  text.Append(separator);
  text.AppendNumber(czech ? year : of_month, czech ? 4 : 2);
  return text;
}

std::optional<DateParts> TakeDate(std::string_view& text) noexcept {
  for (const auto read : {Iso, Czech, Compact}) {
    DateReader reader(text);
    if (const auto date = read(reader)) {
      text = reader.Rest();
      return date;
    }
  }
  return {};
}

}  // namespace ravo::czech
