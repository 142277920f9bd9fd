#include <ravo/runtime/checked.h>
#include <ravo/utils/calendar.h>
#include <ravo/utils/calendar_formulas.h>
#include <ravo/utils/calendar_parts.h>

#include <array>
#include <charconv>
#include <string_view>

namespace ravo::DIUtils {
namespace {

// Years begin in March here, so that the leap day is the last day of a year. The first one begins in March
// -4800.
constexpr std::int32_t kFirstMarch = -32044;
constexpr std::uint32_t kYearsOfEveryday = 1469873;
constexpr std::uint32_t kDaysOfEveryday = 536834387;

// The contribution of a month: the days before it in a year that begins in March, and the years from March
// -4800 to March 0, one less for the months before March.
struct MonthStart {
  std::uint32_t days;
  std::uint32_t years;
};

constexpr std::array<MonthStart, 13> kMonthStarts = {{{0, 0},
                                                      {306, 4799},
                                                      {337, 4799},
                                                      {0, 4800},
                                                      {31, 4800},
                                                      {61, 4800},
                                                      {92, 4800},
                                                      {122, 4800},
                                                      {153, 4800},
                                                      {184, 4800},
                                                      {214, 4800},
                                                      {245, 4800},
                                                      {275, 4800}}};

// The day and month of a day of the year that begins in March, and 1 from January on.
struct alignas(4) DayOfYear {
  std::uint8_t day;
  std::uint8_t month;
  std::uint8_t next_year;
};

// Untested: runs at compile time only.
constexpr std::array<DayOfYear, 366> MakeDaysOfYear() {
  std::array<DayOfYear, 366> days{};
  for (std::uint8_t month = 1; month <= 12; ++month) {
    const std::uint32_t first = kMonthStarts[month].days;
    for (std::uint8_t day = 1; day <= 31 && first + day <= days.size(); ++day) {
      DayOfYear& entry = days[first + day - 1];
      // A later month overwrites the days past the end of the previous one.
      if (entry.day == 0 || day < entry.day) entry = {day, month, month < 3};
    }
  }
  return days;
}

constexpr std::array<DayOfYear, 366> kDaysOfYear = MakeDaysOfYear();

// Out of line: keeps register pressure low on the hot path of common dates.
[[gnu::noinline, gnu::cold]] void SplitFarDate(TJulianDate date, std::int32_t& year, std::uint16_t& month,
                                               std::uint16_t& day) {
  const utils::JulianParts parts = utils::JulianPartsByFormula(date);
  const auto checked_month = CheckedCast<std::uint16_t>(parts.month);
  day = CheckedCast<std::uint16_t>(parts.day);
  month = checked_month;
  year = parts.year;
}

// The digits of the compact form: a year of at most 214748, and four more.
template <class Text>
Text PaddedDecimal(std::uint32_t value) {
  constexpr std::size_t kDigits = 8;
  std::array<char, 10> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  const std::string_view written(digits.data(), static_cast<std::size_t>(end - digits.data()));
  Text text(written.size() < kDigits ? kDigits - written.size() : 0, typename Text::value_type('0'));
  text.append(written.begin(), written.end());
  return text;
}

}  // namespace

TJulianDate YmdToJulianDate(std::int32_t year, std::uint16_t month, std::uint16_t day) {
  if (month < 1 || month > 12) [[unlikely]]
    return utils::JulianDateByFormula(year, month, day);
  const std::uint32_t years = static_cast<std::uint32_t>(year) + kMonthStarts[month].years;
  if (years >= kYearsOfEveryday) [[unlikely]]
    return utils::JulianDateByFormula(year, month, day);
  const std::uint32_t centuries = years / 100;
  const std::uint32_t before_year = 1461 * years / 4 - centuries + centuries / 4;
  return static_cast<std::int32_t>(before_year + kMonthStarts[month].days + day) + (kFirstMarch - 1);
}

void JulianDateToYmd(TJulianDate date, std::int32_t& year, std::uint16_t& month, std::uint16_t& day) {
  const std::uint32_t days = static_cast<std::uint32_t>(date) - static_cast<std::uint32_t>(kFirstMarch);
  if (days >= kDaysOfEveryday) [[unlikely]]
    return SplitFarDate(date, year, month, day);
  const std::uint32_t centuries = (4 * days + 3) / 146097;
  // With the leap days of the full centuries added back, every fourth year is a leap year.
  const std::uint32_t evened = days + centuries - centuries / 4;
  const std::uint32_t years = (4 * evened + 3) / 1461;
  const DayOfYear& entry = kDaysOfYear[evened - 1461 * years / 4];
  year = static_cast<std::int32_t>(years + entry.next_year) - 4800;
  month = entry.month;
  day = entry.day;
}

std::uint16_t DayOfJulianDate(TJulianDate date) { return utils::PartsOf(date).day; }

std::uint16_t MonthOfJulianDate(TJulianDate date) { return utils::PartsOf(date).month; }

// Kept: the name `YearOfJuilanDate` has its letters swapped; modules import it so. Test:
// YearOfJuilanDate.KeepsItsName
std::int32_t YearOfJuilanDate(TJulianDate date) { return utils::PartsOf(date).year; }

std::uint32_t YmdToIsoDate(std::int32_t year, std::uint16_t month, std::uint16_t day) {
  const std::int32_t of_month = month * 100 + day;
  return CheckedCast<std::uint32_t>(CheckedAdd(CheckedMultiply(year, 10000), of_month));
}

std::string YmdToIsoDateA(std::int32_t year, std::uint16_t month, std::uint16_t day) {
  return PaddedDecimal<std::string>(YmdToIsoDate(year, month, day));
}

std::u16string YmdToIsoDateW(std::int32_t year, std::uint16_t month, std::uint16_t day) {
  return PaddedDecimal<std::u16string>(YmdToIsoDate(year, month, day));
}

std::uint32_t JulianDateToIsoDate(TJulianDate date) {
  const utils::Ymd parts = utils::PartsOf(date);
  return YmdToIsoDate(parts.year, parts.month, parts.day);
}

std::string JulianDateToIsoDateA(TJulianDate date) {
  return PaddedDecimal<std::string>(JulianDateToIsoDate(date));
}

std::u16string JulianDateToIsoDateW(TJulianDate date) {
  return PaddedDecimal<std::u16string>(JulianDateToIsoDate(date));
}

void ISODateToYmd(std::uint32_t iso_date, std::int32_t& year, std::uint16_t& month,
                  std::uint16_t& day) noexcept {
  year = static_cast<std::int32_t>(iso_date / 10000);
  month = static_cast<std::uint16_t>(iso_date % 10000 / 100);
  day = static_cast<std::uint16_t>(iso_date % 100);
}

TJulianDate ISODateToJulianDate(std::uint32_t iso_date) {
  std::int32_t year = 0;
  std::uint16_t month = 0;
  std::uint16_t day = 0;
  ISODateToYmd(iso_date, year, month, day);
  return YmdToJulianDate(year, month, day);
}

}  // namespace ravo::DIUtils
