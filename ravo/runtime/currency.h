#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <compare>
#include <cstdint>

namespace ravo {

/// An amount with four decimal places: `raw` is the amount times 10000. A strong type: there is no silent way
/// from or to a floating-point number.
struct Currency {
  /// Decimal places of an amount.
  static constexpr int kPlaces = 4;
  /// What one unit is in `raw`.
  static constexpr std::int64_t kScale = 10000;

  /// The amount in ten-thousandths.
  std::int64_t raw = 0;

  /// The whole `units`, or `OverflowError`.
  [[nodiscard]] RAVO_API static Currency FromUnits(std::int64_t units);

  friend constexpr auto operator<=>(const Currency&, const Currency&) = default;
};

/// Sums, differences and negation raise `OverflowError` when the result leaves 64 bits.
[[nodiscard]] RAVO_API Currency operator+(Currency left, Currency right);
/// The difference; `OverflowError` where it leaves 64 bits.
[[nodiscard]] RAVO_API Currency operator-(Currency left, Currency right);
/// The amount with the other sign; `OverflowError` for the least one.
[[nodiscard]] RAVO_API Currency operator-(Currency value);

static_assert(sizeof(Currency) == 8);

}  // namespace ravo
