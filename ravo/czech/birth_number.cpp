#include <ravo/czech/birth_number.h>
#include <ravo/czech/reading.h>

#include <cstddef>

namespace ravo::czech {
namespace {

constexpr int kFemaleMonths = 50;
constexpr int kSecondSeries = 20;
constexpr std::size_t kSlashAt = 6;

constexpr detail::Spelling kBirthNumberSpelling{Code::BirthNumberEmpty,  Code::BirthNumberCharacter,
                                                Code::BirthNumberLength, detail::kDigit | detail::kSlash,
                                                detail::kBlank,          {"RODNECISLO", "RC"}};

constexpr int Two(std::string_view digits, std::size_t at) noexcept {
  return (digits[at] - '0') * 10 + (digits[at + 1] - '0');
}

// The century is told by the length: nine digits were given until 1953. 0 for none.
constexpr int YearOf(std::string_view digits) noexcept {
  const int year = Two(digits, 0);
  if (digits.size() == 10) return year < 54 ? 2000 + year : 1900 + year;
  if (year < 54) return 1900 + year;
  return year < 80 ? 0 : 1800 + year;
}

// Takes what is added to the month off it; numbers of nine digits have no second series.
constexpr int MonthOf(int written, bool ten_digits, BirthNumber& number) noexcept {
  int month = written;
  number.sex = month > kFemaleMonths ? Sex::Female : Sex::Male;
  if (number.sex == Sex::Female) month -= kFemaleMonths;
  number.second_series = month > kSecondSeries && ten_digits;
  return number.second_series ? month - kSecondSeries : month;
}

// The powers of ten leave 1 and -1 by turns: the remainder of nine digits, 0 to 10.
constexpr int RemainderOfNine(std::string_view digits) noexcept {
  int sum = 44;
  for (std::size_t i = 0; i < 9; ++i) sum += i % 2 == 0 ? digits[i] - '0' : '0' - digits[i];
  return sum % 11;
}

}  // namespace

detail::BirthNumberFault detail::ReadBirthNumber(std::string_view digits, BirthNumber& number) noexcept {
  number.born.year = YearOf(digits);
  if (number.born.year == 0) return {Code::BirthNumberLength, digits.size()};
  number.born.month = MonthOf(Two(digits, 2), digits.size() == 10, number);
  number.born.day = Two(digits, 4);
  if (!Exists(number.born)) return {Code::BirthNumberDate, 2};
  if (digits.size() == 9) return {};
  const int remainder = RemainderOfNine(digits);
  number.remainder_ten = remainder == 10;
  if (remainder % 10 != digits[9] - '0') return {Code::BirthNumberChecksum, 9};
  return {};
}

namespace {

// A birth number whose slash was left out.
FixedText<16> WithoutSlash(std::string_view text) noexcept {
  auto digits = Fixed<16>(text.substr(0, kSlashAt));
  digits.Append(text.substr(kSlashAt + 1));
  return digits;
}

// The kept characters as digits, or the one at fault.
template <class Kept>
detail::BirthNumberFault ReadKept(const Kept& kept, bool divided, Parsed<BirthNumber>& parsed) noexcept {
  const FixedText<16> digits = divided ? WithoutSlash(kept.View()) : kept.text;
  const std::size_t odd = kept.digits_alone ? digits.size : detail::FirstNoDigit(digits.View());
  if (odd < digits.size) return {Code::BirthNumberCharacter, odd};
  if (digits.size > 10) return {Code::BirthNumberLength, 10};
  if (digits.size < 9) return {Code::BirthNumberLength, digits.size};
  parsed.value.text = Resized<10>(digits);
  return detail::ReadBirthNumber(digits.View(), parsed.value);
}

template <class Unit>
Parsed<BirthNumber> ParseBirthNumberIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<16>(text, kBirthNumberSpelling);
  // Filled in place: a copy would stall on the bytes just stored.
  Parsed<BirthNumber> parsed{{}, kept.code, kept.position};
  if (kept.code != Code::Correct) return parsed;
  const bool divided = !kept.digits_alone && kept.Size() > kSlashAt && kept.At(kSlashAt) == '/';
  const auto fault = ReadKept(kept, divided, parsed);
  parsed.code = fault.code;
  parsed.position = 0;
  if (fault.code == Code::Correct) return parsed;
  const std::size_t index = divided && fault.index >= kSlashAt ? fault.index + 1 : fault.index;
  parsed.position = detail::PositionOf(text, kBirthNumberSpelling, kept.from, index);
  return parsed;
}

}  // namespace

Parsed<BirthNumber> ParseBirthNumber(std::string_view text) noexcept { return ParseBirthNumberIn(text); }
Parsed<BirthNumber> ParseBirthNumber(std::u16string_view text) noexcept { return ParseBirthNumberIn(text); }

Code CheckBorn(const BirthNumber& number, Day today) noexcept {
  return DayOf(number.born) > today ? Code::BirthNumberFuture : Code::Correct;
}

FixedText<11> Format(const BirthNumber& number) noexcept {
  auto text = Fixed<11>(number.text.View().substr(0, kSlashAt));
  text.Append('/');
  text.Append(number.text.View().substr(kSlashAt));
  return text;
}

}  // namespace ravo::czech
