#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <string_view>

/// The three symbols of Czech payments: numbers of at most ten digits.
namespace ravo::czech {

/// The variable symbol: which document is paid.
struct VariableSymbol {
  FixedText<10> text;  ///< without leading zeros, which banks do not tell apart; "0" for zeros alone
  friend constexpr bool operator==(const VariableSymbol&, const VariableSymbol&) noexcept = default;
};

/// The constant symbol: what kind of payment it is.
struct ConstantSymbol {
  FixedText<10> text;  ///< at least four digits, "0308"; no more leading zeros than that
  friend constexpr bool operator==(const ConstantSymbol&, const ConstantSymbol&) noexcept = default;
};

/// The specific symbol: who pays, or for what.
struct SpecificSymbol {
  FixedText<10> text;  ///< without leading zeros; "0" for zeros alone
  friend constexpr bool operator==(const SpecificSymbol&, const SpecificSymbol&) noexcept = default;
};

/// Returns the variable symbol in `text`: one to ten digits. Refused: `VsEmpty`, `VsCharacter`, `VsLength`.
///
///     ParseVariableSymbol("VS: 2026 000 579")  // 2026000579
[[nodiscard]] Parsed<VariableSymbol> ParseVariableSymbol(std::string_view text) noexcept;
[[nodiscard]] Parsed<VariableSymbol> ParseVariableSymbol(std::u16string_view text) noexcept;

/// Returns the constant symbol in `text`: one to ten digits. Refused: `KsEmpty`, `KsCharacter`, `KsLength`.
[[nodiscard]] Parsed<ConstantSymbol> ParseConstantSymbol(std::string_view text) noexcept;
[[nodiscard]] Parsed<ConstantSymbol> ParseConstantSymbol(std::u16string_view text) noexcept;

/// Returns the specific symbol in `text`: one to ten digits. Refused: `SsEmpty`, `SsCharacter`, `SsLength`.
[[nodiscard]] Parsed<SpecificSymbol> ParseSpecificSymbol(std::string_view text) noexcept;
[[nodiscard]] Parsed<SpecificSymbol> ParseSpecificSymbol(std::u16string_view text) noexcept;

/// Returns the usual spelling, which is the canonical form.
[[nodiscard]] constexpr FixedText<10> Format(const VariableSymbol& symbol) noexcept { return symbol.text; }
[[nodiscard]] constexpr FixedText<10> Format(const ConstantSymbol& symbol) noexcept { return symbol.text; }
[[nodiscard]] constexpr FixedText<10> Format(const SpecificSymbol& symbol) noexcept { return symbol.text; }

}  // namespace ravo::czech
