#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <string_view>

namespace ravo::czech {

/// A number of goods: 8, 12, 13 or 14 digits (EAN-8, UPC, EAN-13, GTIN-14).
struct Ean {
  FixedText<14> text;  ///< as many digits as were written
  friend constexpr bool operator==(const Ean&, const Ean&) noexcept = default;
};

/// Returns the number of goods in `text`, correct in form: its length, and the check digit by weights 3 and 1
/// from the end on.
///
/// Refused: `EanEmpty`, `EanCharacter`, `EanLength`, `EanChecksum`. Hyphens are skipped like blanks.
[[nodiscard]] Parsed<Ean> ParseEan(std::string_view text) noexcept;
[[nodiscard]] Parsed<Ean> ParseEan(std::u16string_view text) noexcept;

/// Returns the usual spelling, which is the canonical form.
[[nodiscard]] constexpr FixedText<14> Format(const Ean& ean) noexcept { return ean.text; }

namespace detail {

/// The check digit that follows these digits.
[[nodiscard]] constexpr char EanCheckDigit(std::string_view digits) noexcept {
  int sum = 0;
  int weight = 3;
  for (std::size_t i = digits.size(); i-- > 0; weight = 4 - weight) sum += (digits[i] - '0') * weight;
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

}  // namespace detail
}  // namespace ravo::czech
