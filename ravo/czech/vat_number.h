#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <string_view>

namespace ravo::czech {

/// A VAT number of a country of the European Union.
struct VatNumber {
  FixedText<14> text;  ///< "DE123456789", with the country's code
  friend constexpr bool operator==(const VatNumber&, const VatNumber&) noexcept = default;
};

/// Returns the VAT number in `text`, correct in form: the code of one of the 27 countries, and its length and
/// characters.
///
/// Check digits of other countries are not checked. A number from CZ is `ParseDic`'s, with its codes.
/// Refused: `VatEmpty`, `VatCharacter`, `VatCountry`, `VatLength`, `VatForm`. Greece is EL, not GR. Hyphens
/// and full stops are skipped like blanks.
[[nodiscard]] Parsed<VatNumber> ParseVatNumber(std::string_view text) noexcept;
[[nodiscard]] Parsed<VatNumber> ParseVatNumber(std::u16string_view text) noexcept;

/// Returns the usual spelling, which is the canonical form.
[[nodiscard]] constexpr FixedText<14> Format(const VatNumber& number) noexcept { return number.text; }

}  // namespace ravo::czech
