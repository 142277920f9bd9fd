#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <string_view>

namespace ravo::czech {

/// An international bank account number.
struct Iban {
  FixedText<34> text;  ///< "CZ6508000000192000145399"
  friend constexpr bool operator==(const Iban&, const Iban&) noexcept = default;
};

/// Returns the IBAN in `text`, correct in form by ISO 13616: length and characters of its country, check
/// digits by ISO 7064.
///
/// The check digits are 02 to 98. Accounts of BE, CZ, ES, ME, NO and SK have check digits of their own, which
/// must match too. Refused: `IbanEmpty`, `IbanCharacter`, `IbanCountry`, `IbanLength`, `IbanForm`,
/// `IbanChecksum`, `IbanNational`. Hyphens and full stops are skipped like blanks.
///
///     ParseIban("CZ65 0800 0000 1920 0014 5399")
[[nodiscard]] Parsed<Iban> ParseIban(std::string_view text) noexcept;
[[nodiscard]] Parsed<Iban> ParseIban(std::u16string_view text) noexcept;

/// Returns the usual spelling, in groups of four.
[[nodiscard]] FixedText<42> Format(const Iban& iban) noexcept;

namespace detail {

/// The remainder by 97 of an IBAN whose first four characters are moved to its end; letters count 10 to 35.
/// Precondition: five to 34 digits and capital letters.
[[nodiscard]] int IbanRemainder(std::string_view iban) noexcept;

}  // namespace detail
}  // namespace ravo::czech
