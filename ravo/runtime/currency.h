#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <compare>
#include <cstdint>

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

static_assert(sizeof(Currency) == 8);

}  // namespace ravo
