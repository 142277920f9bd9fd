#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <string_view>

namespace ravo::czech {

/// A business identifier code, as of banks.
struct Bic {
  FixedText<11> text;  ///< "KOMBCZPP", eight characters or eleven
  friend constexpr bool operator==(const Bic&, const Bic&) noexcept = default;
};

/// Returns the BIC in `text`, correct in form by ISO 9362: four letters, two of a country, two letters or
/// digits, and three more for a branch.
///
/// Refused: `BicEmpty`, `BicCharacter`, `BicLength`, `BicForm`. Whether there is such a country is not asked.
[[nodiscard]] Parsed<Bic> ParseBic(std::string_view text) noexcept;
[[nodiscard]] Parsed<Bic> ParseBic(std::u16string_view text) noexcept;

/// Returns the usual spelling, which is the canonical form.
[[nodiscard]] constexpr FixedText<11> Format(const Bic& bic) noexcept { return bic.text; }

}  // namespace ravo::czech
