#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <string_view>

namespace ravo::czech {

/// The identification number of a person in business: eight digits.
struct Ico {
  FixedText<8> text;  ///< "04625781"
  friend constexpr bool operator==(const Ico&, const Ico&) noexcept = default;
};

/// Returns the IČO in `text`, correct in form: eight digits of which the last follows from the others.
///
/// The weights are 8 to 2; the check digit is 11 less the remainder of the sum by 11, its last digit.
/// Refused: `IcoEmpty`, `IcoCharacter`, `IcoLength`, `IcoChecksum`. Never throws, never allocates. Leading
/// zeros are a part of it: a number of seven digits is `IcoLength`.
///
///     ParseIco("IČ: 046 25 781")  // 04625781
[[nodiscard]] Parsed<Ico> ParseIco(std::string_view text) noexcept;
[[nodiscard]] Parsed<Ico> ParseIco(std::u16string_view text) noexcept;

/// Returns the usual spelling, which is the canonical form.
[[nodiscard]] constexpr FixedText<8> Format(const Ico& ico) noexcept { return ico.text; }

}  // namespace ravo::czech
