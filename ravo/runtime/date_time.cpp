#include <ravo/runtime/binary_float.h>
#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/nearest_float.h>

#include <array>
#include <bit>

namespace ravo {
namespace {

constexpr std::uint32_t kMillisecondsPerDay = 86'400'000;
constexpr std::int32_t kFirstDay = -693'593;  // 1 January 1
constexpr std::int32_t kLastDay = 2'958'465;  // 31 December 9999
constexpr int kFirstYear = 1;
constexpr int kLastYear = 9999;

// A day number and the time of that day, after rounding.
struct Moment {
  std::int32_t day;
  std::uint32_t milliseconds;
};

// An unsigned 128-bit number: not every target has such an integer type.
struct Wide {
  std::uint64_t high;
  std::uint64_t low;
};

Wide Product(std::uint64_t left, std::uint32_t right) {
  const std::uint64_t low = (left & 0xFFFFFFFF) * right;
  const std::uint64_t high = (left >> 32) * right + (low >> 32);
  return {high >> 32, (high << 32) | (low & 0xFFFFFFFF)};
}

// Returns the low 64 bits of value >> bits, for `bits` from 0 to 127.
std::uint64_t ShiftedRight(const Wide& value, int bits) {
  if (bits == 0) return value.low;
  if (bits >= 64) return value.high >> (bits - 64);
  return (value.high << (64 - bits)) | (value.low >> bits);
}

int TrailingZeros(const Wide& value) {
  return value.low != 0 ? std::countr_zero(value.low) : 64 + std::countr_zero(value.high);
}

// Returns value / 2^bits rounded to the nearest integer, ties to even. `bits` is 1 to 127, and the result
// must fit.
std::uint64_t RoundedQuotient(const Wide& value, int bits) {
  const std::uint64_t halves = ShiftedRight(value, bits - 1);
  const bool is_tie_or_exact = TrailingZeros(value) >= bits - 1;
  const std::uint64_t floor = halves >> 1;
  const bool is_up = (halves & 1) != 0 && (!is_tie_or_exact || (floor & 1) != 0);
  return floor + (is_up ? 1 : 0);
}

[[noreturn]] void RaiseInvalidDate() { throw ConvertError(u"Invalid date"); }

// Returns mantissa / 2^bits days in milliseconds. With more than 126 bits this is below 2^-70 days and rounds
// to 0.
std::uint32_t MillisecondsOf(std::uint64_t mantissa, int bits) {
  constexpr int kMostBits = 126;
  if (bits > kMostBits) return 0;
  return static_cast<std::uint32_t>(RoundedQuotient(Product(mantissa, kMillisecondsPerDay), bits));
}

// Splits the double by its bits, so the result does not depend on the rounding mode.
BinaryFloat Finite(DateTime value) {
  using Bits = FloatBits<double>;
  if (Bits::Kind(value) != FloatKind::Finite) RaiseInvalidDate();
  return Bits::Split(value);
}

// Returns the whole days of a finite value below 2^64; the sign is ignored.
std::uint64_t WholeDays(const BinaryFloat& parts) {
  return parts.exponent > -64 ? parts.mantissa >> -parts.exponent : 0;
}

// Returns the rounded time of day in milliseconds, up to and including 24 hours.
std::uint32_t RoundedTime(const BinaryFloat& parts) {
  if (parts.exponent >= 0) return 0;
  const std::uint64_t days = WholeDays(parts);
  const std::uint64_t fraction = days == 0 ? parts.mantissa : parts.mantissa - (days << -parts.exponent);
  return MillisecondsOf(fraction, -parts.exponent);
}

// Returns the rounded day and time. Values of 2^22 days or more are rejected by their exponent: no date is
// that far away.
Moment MomentOf(DateTime value) {
  const BinaryFloat parts = Finite(value);
  constexpr int kLargestExponent = 22 - FloatBits<double>::kFormat.bits;
  if (parts.exponent > kLargestExponent) RaiseInvalidDate();
  const auto day = static_cast<std::int32_t>(WholeDays(parts));
  Moment moment{parts.negative ? -day : day, RoundedTime(parts)};
  if (moment.milliseconds == kMillisecondsPerDay) moment = {moment.day + 1, 0};
  if (moment.day < kFirstDay || moment.day > kLastDay) RaiseInvalidDate();
  return moment;
}

constexpr int kDaysPerYear = 365;
constexpr int kDaysPer4Years = 4 * kDaysPerYear + 1;
constexpr int kDaysPer100Years = 25 * kDaysPer4Years - 1;
constexpr int kDaysPer400Years = 4 * kDaysPer100Years + 1;

// Days before the first of each month, counted from 1 March, so that the leap day is the last one.
constexpr std::array kDaysBeforeMonth{0, 31, 61, 92, 122, 153, 184, 214, 245, 275, 306, 337};
// The days from 1 March of year 0, where the arithmetic starts, to 30 December 1899.
constexpr int kEpoch = 693'899;

DateParts DateOf(std::int32_t day) {
  int rest = day + kEpoch;
  const int centuries4 = rest / kDaysPer400Years;
  rest %= kDaysPer400Years;
  const int centuries = rest == kDaysPer400Years - 1 ? 3 : rest / kDaysPer100Years;
  rest -= centuries * kDaysPer100Years;
  const int years4 = rest / kDaysPer4Years;
  rest %= kDaysPer4Years;
  const int years = rest == kDaysPer4Years - 1 ? 3 : rest / kDaysPerYear;
  rest -= years * kDaysPerYear;
  int month = 11;
  while (kDaysBeforeMonth[static_cast<std::size_t>(month)] > rest) --month;
  const int year = 400 * centuries4 + 100 * centuries + 4 * years4 + years + (month >= 10 ? 1 : 0);
  return {year, month >= 10 ? month - 9 : month + 3,
          rest - kDaysBeforeMonth[static_cast<std::size_t>(month)] + 1};
}

int DaysInMonth(int year, int month) {
  constexpr std::array kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsGregorianLeapYear(year) ? 29 : kDays[static_cast<std::size_t>(month - 1)];
}

bool IsDate(const DateParts& date) {
  return date.year >= kFirstYear && date.year <= kLastYear && date.month >= 1 && date.month <= 12 &&
         date.day >= 1 && date.day <= DaysInMonth(date.year, date.month);
}

std::int32_t DayNumber(const DateParts& date) {
  if (!IsDate(date)) RaiseInvalidDate();
  const int year = date.month <= 2 ? date.year - 1 : date.year;
  const auto month = static_cast<std::size_t>(date.month <= 2 ? date.month + 9 : date.month - 3);
  return kDaysPerYear * year + year / 4 - year / 100 + year / 400 + kDaysBeforeMonth[month] + date.day - 1 -
         kEpoch;
}

bool IsTime(const TimeParts& time) {
  const auto is_below = [](int value, int limit) { return value >= 0 && value < limit; };
  return is_below(time.hour, 24) && is_below(time.minute, 60) && is_below(time.second, 60) &&
         is_below(time.millisecond, 1000);
}

std::uint32_t MillisecondsOf(const TimeParts& time) {
  if (!IsTime(time)) throw ConvertError(u"Invalid time");
  return static_cast<std::uint32_t>(((time.hour * 60 + time.minute) * 60 + time.second) * 1000 +
                                    time.millisecond);
}

TimeParts TimeOf(std::uint32_t milliseconds) {
  const auto rest = static_cast<int>(milliseconds);
  return {rest / 3'600'000, rest / 60'000 % 60, rest / 1000 % 60, rest % 1000};
}

}  // namespace

DateTimeParts SplitDateTime(DateTime value) {
  const Moment moment = MomentOf(value);
  return {DateOf(moment.day), TimeOf(moment.milliseconds)};
}

TimeParts TimeOfDay(DateTime value) { return TimeOf(RoundedTime(Finite(value)) % kMillisecondsPerDay); }

DateTime EncodeDate(int year, int month, int day) { return DayNumber({year, month, day}); }

DateTime EncodeTime(int hour, int minute, int second, int millisecond) {
  return NearestQuotient(MillisecondsOf(TimeParts{hour, minute, second, millisecond}), kMillisecondsPerDay);
}

DateTime EncodeDateTime(const DateTimeParts& parts) {
  const std::int32_t day = DayNumber(parts.date);
  const std::uint64_t days = static_cast<std::uint64_t>(day < 0 ? -day : day);
  const double magnitude =
      NearestQuotient(days * kMillisecondsPerDay + MillisecondsOf(parts.time), kMillisecondsPerDay);
  return day < 0 ? -magnitude : magnitude;
}

int DayOfWeek(DateTime value) {
  // 31 December of the year 0 was a Sunday.
  return (MomentOf(value).day - (kFirstDay - 1)) % 7 + 1;
}

}  // namespace ravo
