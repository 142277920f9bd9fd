#pragma once

#include <ravo/czech/day.h>
#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <cstdint>
#include <string_view>

namespace ravo::czech {

/// The sex that a birth number tells.
enum class Sex : std::uint8_t { Male, Female };

/// A birth number: ten digits, or nine of a person born until 1953.
struct BirthNumber {
  FixedText<10> text;          ///< "8801251680", without the slash
  DateParts born;              ///< the date of birth
  Sex sex = Sex::Male;         ///< women have 50 added to the month
  bool second_series = false;  ///< 20 is added to the month: the numbers of the day were used up
  bool remainder_ten =
      false;  ///< the first nine digits leave ten, the last is zero: not divisible by eleven, and right
  friend constexpr bool operator==(const BirthNumber&, const BirthNumber&) noexcept = default;
};

/// Returns the birth number in `text`, correct in form by law 133/2000, section 13: a date that exists,
/// divisible by eleven.
///
/// Women have 50 added to the month; 20 more is added, of either sex, where the numbers of a day were used up
/// (law 53/2004). Because such numbers are given to people born long before too, the date of birth does not
/// limit that. Numbers whose first nine digits leave ten and whose last digit is zero were given out and stay
/// right. Nine digits are of births from 1880 to 1953 and have no check digit. Refused: `BirthNumberEmpty`,
/// `BirthNumberCharacter`, `BirthNumberLength`, `BirthNumberDate`, `BirthNumberChecksum`. A slash is taken
/// after the sixth digit alone.
///
///     ParseBirthNumber("880125/1680")  // 8801251680, born 25 January 1988, male
[[nodiscard]] Parsed<BirthNumber> ParseBirthNumber(std::string_view text) noexcept;
[[nodiscard]] Parsed<BirthNumber> ParseBirthNumber(std::u16string_view text) noexcept;

/// Returns `BirthNumberFuture` if the date of birth is after `today`, or else `Correct`.
[[nodiscard]] Code CheckBorn(const BirthNumber& number, Day today) noexcept;

/// Returns the usual spelling, with a slash: "880125/1680".
[[nodiscard]] FixedText<11> Format(const BirthNumber& number) noexcept;

namespace detail {

/// Why digits are no birth number, and which of them is at fault.
struct BirthNumberFault {
  Code code = Code::Correct;
  std::size_t index = 0;
};

/// Fills in `number`, but for its text, from nine or ten digits.
[[nodiscard]] BirthNumberFault ReadBirthNumber(std::string_view digits, BirthNumber& number) noexcept;

}  // namespace detail
}  // namespace ravo::czech
