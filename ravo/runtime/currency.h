#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ravo {

/// An amount of money with four decimal places: `raw` is the amount times 10000. It never converts to or from
/// a floating-point number implicitly.
struct Currency {
  /// The number of decimal places.
  static constexpr int kPlaces = 4;
  /// The value of `raw` for one whole unit.
  static constexpr std::int64_t kScale = 10000;

  /// The amount in ten-thousandths of a unit.
  std::int64_t raw = 0;

  /// Returns an amount of whole `units`. Throws `OverflowError` if it does not fit 64 bits.
  [[nodiscard]] RAVO_API static Currency FromUnits(std::int64_t units);

  friend constexpr auto operator<=>(const Currency&, const Currency&) = default;
};

/// Returns the sum of two amounts. Throws `OverflowError` if it does not fit 64 bits.
[[nodiscard]] RAVO_API Currency operator+(Currency left, Currency right);
/// Returns the difference of two amounts. Throws `OverflowError` if it does not fit 64 bits.
[[nodiscard]] RAVO_API Currency operator-(Currency left, Currency right);
/// Returns the negated amount. Throws `OverflowError` for the smallest one.
[[nodiscard]] RAVO_API Currency operator-(Currency value);
/// Returns `factor` times an amount. Throws `OverflowError` if it does not fit 64 bits.
[[nodiscard]] RAVO_API Currency operator*(Currency value, std::int64_t factor);

/// How an amount between two multiples of a step is rounded.
enum class Rounding : std::uint8_t {
  HalfAwayFromZero,  ///< to the nearest multiple; halves away from zero
  AwayFromZero,      ///< to the multiple farther from zero
  TowardZero,        ///< to the multiple nearer to zero
};

/// Returns `value` rounded to a multiple of `step`: `Currency{100}` are hundredths, `Currency{5000}` halves.
///
/// Exact for every amount. Throws `RangeError` if `step` is not positive, and `OverflowError` if the result
/// does not fit 64 bits.
[[nodiscard]] RAVO_API Currency RoundedTo(Currency value, Currency step,
                                          Rounding rounding = Rounding::HalfAwayFromZero);

/// Returns `value` x `numerator` / `denominator`, rounded to a multiple of `step`.
///
/// The product is exact and rounded once: rounding it to ten-thousandths first, then to hundredths, would
/// turn 0.00499995 into 0.01. Throws `DivisionByZero` if `denominator` is 0, `RangeError` if `step` is not
/// positive, and `OverflowError` if the result, or `denominator` x `step`, does not fit 64 bits.
///
///     TimesRatio(net, 21, 100, Currency{100})    // VAT of 21 % on a price, in hundredths
///     TimesRatio(gross, 21, 121, Currency{100})  // VAT of 21 % in a price that includes it
[[nodiscard]] RAVO_API Currency TimesRatio(Currency value, std::int64_t numerator, std::int64_t denominator,
                                           Currency step = Currency{1},
                                           Rounding rounding = Rounding::HalfAwayFromZero);

/// Returns `value` x `rate`, rounded to a multiple of `step`: a VAT rate (`Currency{2100}` is 21 %) or an
/// exchange rate.
///
/// The product is exact and rounded once. Throws as `TimesRatio` does.
[[nodiscard]] RAVO_API Currency TimesRate(Currency value, Currency rate, Currency step = Currency{1},
                                          Rounding rounding = Rounding::HalfAwayFromZero);

/// Returns an amount in plain digits with at least `least_places` (0 to 4) and at most four decimals; other
/// numbers of places count as the nearest of these. Negative amounts begin with "-".
[[nodiscard]] RAVO_API std::u16string CurrencyText(Currency value, char16_t decimal_separator,
                                                   int least_places = 2);

/// Returns the amount of a text that is one as a whole, or no value.
///
/// Accepts an optional sign, decimal digits with at most one `decimal_separator`, at least one digit in all,
/// and more than four decimals only if the others are zeros. There is no value outside 64 bits either.
[[nodiscard]] RAVO_API std::optional<Currency> TryParseCurrency(std::u16string_view text,
                                                                char16_t decimal_separator);

/// Returns what `TryParseCurrency` does. Throws `ConvertError` if there is no value.
[[nodiscard]] RAVO_API Currency ParseCurrency(std::u16string_view text, char16_t decimal_separator);

static_assert(sizeof(Currency) == 8);

}  // namespace ravo
