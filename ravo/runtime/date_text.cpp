#include <ravo/runtime/date_text.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace ravo {
namespace {

enum class TokenKind : std::uint8_t { Literal, Letters, HalfDay };

// A token of a pattern. The text of a quoted token excludes the quotes.
struct Token {
  TokenKind kind;
  std::u16string_view text;

  [[nodiscard]] char16_t Letter() const { return AsciiLower(text.front()); }
};

std::u16string_view Take(std::u16string_view& rest, std::size_t count) {
  const std::u16string_view taken = rest.substr(0, count);
  rest.remove_prefix(taken.size());
  return taken;
}

std::u16string_view TakeQuoted(std::u16string_view& rest) {
  const char16_t quote = rest.front();
  rest.remove_prefix(1);
  const std::u16string_view text = Take(rest, rest.find(quote));
  Take(rest, 1);
  return text;
}

std::size_t HalfDayLength(std::u16string_view rest) {
  for (const std::u16string_view marker : {u"am/pm", u"a/p", u"ampm"}) {
    if (SameAsciiText(rest.substr(0, marker.size()), marker)) return marker.size();
  }
  return 0;
}

std::size_t RunLength(std::u16string_view rest) {
  const char16_t letter = AsciiLower(rest.front());
  const auto end = std::ranges::find_if(rest, [letter](char16_t ch) { return AsciiLower(ch) != letter; });
  return static_cast<std::size_t>(end - rest.begin());
}

bool IsPatternLetter(char16_t ch) {
  return std::u16string_view(u"dmyhnsz").find(AsciiLower(ch)) != std::u16string_view::npos;
}

Token TakeToken(std::u16string_view& rest) {
  const char16_t first = rest.front();
  if (first == u'\'' || first == u'"') return {TokenKind::Literal, TakeQuoted(rest)};
  if (IsPatternLetter(first)) return {TokenKind::Letters, Take(rest, RunLength(rest))};
  const std::size_t half_day = HalfDayLength(rest);
  if (half_day != 0) return {TokenKind::HalfDay, Take(rest, half_day)};
  return {TokenKind::Literal, Take(rest, 1)};
}

bool HasHalfDay(std::u16string_view pattern) {
  while (!pattern.empty()) {
    if (TakeToken(pattern).kind == TokenKind::HalfDay) return true;
  }
  return false;
}

std::u16string Padded(int value, std::size_t digits) {
  const std::u16string text = ToText(std::int64_t{value});
  return std::u16string(digits - std::min(digits, text.size()), u'0') + text;
}

// Formats a pattern token by token, and keeps the state that later tokens depend on.
class Writer {
 public:
  Writer(DateTime value, const FormatSettings& settings, bool has_half_day)
      : parts_(SplitDateTime(value)),
        day_of_week_(DayOfWeek(value)),
        settings_(settings),
        has_half_day_(has_half_day) {}

  void Write(const Token& token) {
    if (token.kind == TokenKind::Literal) {
      text_ += token.text;
      return;
    }
    text_ +=
        token.kind == TokenKind::HalfDay ? HalfDay(token.text) : Letters(token.Letter(), token.text.size());
    is_after_hour_ = token.kind == TokenKind::Letters && token.Letter() == u'h';
  }

  [[nodiscard]] const std::u16string& Text() const { return text_; }

 private:
  [[nodiscard]] std::u16string Letters(char16_t letter, std::size_t count) const {
    switch (letter) {
      case u'd':
        return Day(count);
      case u'm':
        return count <= 2 && is_after_hour_ ? Padded(parts_.time.minute, count) : Month(count);
      case u'y':
        return count <= 2 ? Padded(parts_.date.year % 100, 2) : Padded(parts_.date.year, 4);
      case u'h':
        return Padded(Hour(), std::min<std::size_t>(count, 2));
      case u'n':
        return Padded(parts_.time.minute, std::min<std::size_t>(count, 2));
      case u's':
        return Padded(parts_.time.second, std::min<std::size_t>(count, 2));
      default:
        return Padded(parts_.time.millisecond, count == 1 ? 1 : 3);
    }
  }

  [[nodiscard]] std::u16string Day(std::size_t count) const {
    if (count <= 2) return Padded(parts_.date.day, count);
    const auto index = static_cast<std::size_t>(day_of_week_ - 1);
    return count == 3 ? settings_.short_day_names[index] : settings_.long_day_names[index];
  }

  [[nodiscard]] std::u16string Month(std::size_t count) const {
    if (count <= 2) return Padded(parts_.date.month, count);
    const auto index = static_cast<std::size_t>(parts_.date.month - 1);
    return count == 3 ? settings_.short_month_names[index] : settings_.long_month_names[index];
  }

  [[nodiscard]] int Hour() const {
    return has_half_day_ ? (parts_.time.hour + 11) % 12 + 1 : parts_.time.hour;
  }

  // AM/PM and A/P contain both texts in the case to write them in.
  [[nodiscard]] std::u16string HalfDay(std::u16string_view marker) const {
    const bool is_morning = parts_.time.hour < 12;
    const std::size_t slash = marker.find(u'/');
    if (slash == std::u16string_view::npos) return is_morning ? settings_.am_text : settings_.pm_text;
    return std::u16string(is_morning ? marker.substr(0, slash) : marker.substr(slash + 1));
  }

  DateTimeParts parts_;
  int day_of_week_;
  const FormatSettings& settings_;
  bool has_half_day_;
  bool is_after_hour_ = false;
  std::u16string text_;
};

}  // namespace

std::u16string FormatDateTime(std::u16string_view pattern, DateTime value, const FormatSettings& settings) {
  Writer writer(value, settings, HasHalfDay(pattern));
  while (!pattern.empty()) writer.Write(TakeToken(pattern));
  return writer.Text();
}

std::u16string DateTimeText(DateTime value, const FormatSettings& settings) {
  std::u16string text = FormatDateTime(settings.short_date, value, settings);
  const bool is_midnight = SplitDateTime(value).time == TimeParts{};
  return is_midnight ? text : text + u' ' + FormatDateTime(settings.long_time, value, settings);
}

}  // namespace ravo
