#include "values.h"

#include "blanks.h"
#include "uri.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace ravo::isdoc::schema {
namespace {

constexpr int kMinutesOfZone = 14 * 60;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }
bool IsLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

// Takes what a check reads from the front of a text.
class Front {
 public:
  explicit Front(std::string_view text) : rest_(text) {}

  [[nodiscard]] bool IsEmpty() const { return rest_.empty(); }

  bool Take(char character) {
    const bool taken = rest_.starts_with(character);
    if (taken) rest_.remove_prefix(1);
    return taken;
  }

  template <class Is>
  std::string_view TakeAll(Is is) {
    const auto end = std::ranges::find_if_not(rest_, is);
    const std::string_view taken = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(taken.size());
    return taken;
  }

  // A number of two digits up to `most`; `value` is 0 for another.
  bool TakeTwo(int& value, int most) {
    const std::string_view digits = rest_.substr(0, 2);
    value = 0;
    if (digits.size() < 2 || !IsDigit(digits[0]) || !IsDigit(digits[1])) return false;
    rest_.remove_prefix(2);
    value = (digits[0] - '0') * 10 + (digits[1] - '0');
    return value <= most;
  }

 private:
  std::string_view rest_;
};

bool IsDecimal(std::string_view text, bool with_point) {
  Front front(text);
  if (!front.Take('+')) front.Take('-');
  std::size_t digits = front.TakeAll(IsDigit).size();
  if (with_point && front.Take('.')) digits += front.TakeAll(IsDigit).size();
  return digits > 0 && front.IsEmpty();
}

// Nothing, "Z", or an offset of at most 14 hours.
bool IsZone(Front front) {
  if (front.IsEmpty()) return true;
  if (front.Take('Z')) return front.IsEmpty();
  if (!front.Take('+') && !front.Take('-')) return false;
  int hours = 0;
  int minutes = 0;
  return front.TakeTwo(hours, 14) && front.Take(':') && front.TakeTwo(minutes, 59) &&
         hours * 60 + minutes <= kMinutesOfZone && front.IsEmpty();
}

int DaysIn(int month, bool leap_year) {
  if (month == 2) return leap_year ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

// The remainder by 400 tells leap years of any length.
bool IsLeapYear(std::string_view digits) {
  int remainder = 0;
  for (const char digit : digits) remainder = (remainder * 10 + (digit - '0')) % 400;
  return remainder % 4 == 0 && (remainder % 100 != 0 || remainder == 0);
}

// There is no year 0, and five digits or more do not begin with 0.
bool IsYear(std::string_view digits) {
  return digits.size() >= 4 && (digits.size() == 4 || digits[0] != '0') && digits != "0000";
}

bool IsDate(std::string_view text) {
  Front front(text);
  front.Take('-');
  const std::string_view year = front.TakeAll(IsDigit);
  int month = 0;
  int day = 0;
  return IsYear(year) && front.Take('-') && front.TakeTwo(month, 12) && month > 0 && front.Take('-') &&
         front.TakeTwo(day, 31) && day > 0 && day <= DaysIn(month, IsLeapYear(year)) && IsZone(front);
}

bool IsFraction(Front& front, std::string_view& digits) {
  if (!front.Take('.')) return true;
  digits = front.TakeAll(IsDigit);
  return !digits.empty();
}

bool IsTime(std::string_view text) {
  Front front(text);
  int hour = 0;
  int minute = 0;
  int second = 0;
  std::string_view fraction;
  if (!front.TakeTwo(hour, 24) || !front.Take(':') || !front.TakeTwo(minute, 59) || !front.Take(':') ||
      !front.TakeTwo(second, 59) || !IsFraction(front, fraction)) {
    return false;
  }
  // 24:00:00 is the end of the day.
  const bool past = minute > 0 || second > 0 || fraction.find_first_not_of('0') != std::string_view::npos;
  return (hour < 24 || !past) && IsZone(front);
}

// Letters, then letters and digits, in parts of one to eight characters.
bool IsLanguage(std::string_view text) {
  Front front(text);
  std::size_t length = front.TakeAll(IsLetter).size();
  while (length >= 1 && length <= 8 && front.Take('-')) {
    length = front.TakeAll([](char character) { return IsLetter(character) || IsDigit(character); }).size();
  }
  return length >= 1 && length <= 8 && front.IsEmpty();
}

// An integer as the rows write it: no "+", no zeros in front, no "-0".
std::string Canonical(std::string_view integer) {
  const bool minus = integer.starts_with('-');
  const std::size_t first = integer.find_first_of("123456789");
  if (first == std::string_view::npos) return "0";
  return (minus ? "-" : "") + std::string(integer.substr(first));
}

bool FitsPattern(std::uint16_t state, std::string_view text) {
  for (const char character : text) {
    const State& row = kPatternStates[state];
    const auto arcs = std::span(kPatternArcs).subspan(row.first_arc, row.arc_count);
    const auto arc = std::ranges::find_if(
        arcs, [character](const PatternArc& a) { return a.first <= character && character <= a.last; });
    if (arc == arcs.end()) return false;
    state = arc->state;
  }
  return kPatternStates[state].final;
}

std::size_t CharacterCount(std::string_view utf8) {
  return static_cast<std::size_t>(std::ranges::count_if(
      utf8, [](char unit) { return (static_cast<unsigned char>(unit) & 0xC0U) != 0x80U; }));
}

// The rule that a text breaks which does not have the form of a type, in the order of the types.
constexpr Rule kFormRules[] = {Rule{},         Rule::NumberForm, Rule::IntegerForm, Rule::BooleanForm,
                               Rule::DateForm, Rule::TimeForm,   Rule::AddressForm, Rule::LanguageForm};

ValueFault FormFault(BuiltIn type) {
  return {kFormRules[static_cast<std::size_t>(type)], type == BuiltIn::Boolean ? "true, false" : ""};
}

std::span<const Facet> FacetsOf(const Type& type) {
  return std::span(kFacets).subspan(type.first_facet, type.facet_count);
}

// Listed values are alternatives, all other facets hold together.
std::optional<ValueFault> ListFault(const Type& type, std::string_view text) {
  std::string listed;
  const std::string value = type.built_in == BuiltIn::Integer ? Canonical(text) : std::string(text);
  for (const Facet& facet : FacetsOf(type)) {
    if (facet.kind != Facet::Kind::Listed) continue;
    if (facet.text == value) return std::nullopt;
    listed.append(listed.empty() ? "" : ", ").append(facet.text);
  }
  if (listed.empty()) return std::nullopt;
  return ValueFault{Rule::ValueNotListed, std::move(listed)};
}

bool FacetHolds(const Facet& facet, std::string_view text) {
  switch (facet.kind) {
    case Facet::Kind::Pattern:
      return FitsPattern(facet.number, text);
    case Facet::Kind::Length:
      return CharacterCount(text) == facet.number;
    case Facet::Kind::MaxLength:
      return CharacterCount(text) <= facet.number;
    case Facet::Kind::Listed:
      break;
  }
  return true;
}

Rule RuleOf(Facet::Kind kind) {
  if (kind == Facet::Kind::Pattern) return Rule::PatternWrong;
  return kind == Facet::Kind::Length ? Rule::LengthWrong : Rule::TextTooLong;
}

std::optional<ValueFault> FacetFault(const Type& type, std::string_view text) {
  for (const Facet& facet : FacetsOf(type)) {
    if (!FacetHolds(facet, text)) return ValueFault{RuleOf(facet.kind), std::string(facet.text)};
  }
  return ListFault(type, text);
}

}  // namespace

bool HasForm(BuiltIn type, std::string_view text) noexcept {
  switch (type) {
    case BuiltIn::Decimal:
      return IsDecimal(text, true);
    case BuiltIn::Integer:
      return IsDecimal(text, false);
    case BuiltIn::Boolean:
      return text == "true" || text == "false" || text == "1" || text == "0";
    case BuiltIn::Date:
      return IsDate(text);
    case BuiltIn::Time:
      return IsTime(text);
    case BuiltIn::Uri:
      return IsUriReference(text);
    case BuiltIn::Language:
      return IsLanguage(text);
    case BuiltIn::String:
      break;
  }
  return true;
}

std::optional<ValueFault> FaultOf(const Type& type, std::string_view text) {
  // Only plain texts keep their blanks.
  if (type.built_in != BuiltIn::String) text = Trimmed(text);
  if (!HasForm(type.built_in, text)) return FormFault(type.built_in);
  if (type.facet_count == 0) return std::nullopt;
  return FacetFault(type, text);
}

}  // namespace ravo::isdoc::schema
