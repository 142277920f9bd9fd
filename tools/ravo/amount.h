#pragma once

#include <ravo/RavoInterfaceCommon.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tool {

/// How an amount is written.
struct Notation {
  std::string before;       ///< blanks and a currency before the number
  std::string after;        ///< blanks and a currency after it
  std::string minus = "-";  ///< "-" or U+2212
  std::string group;        ///< between groups of three digits; empty without groups
  char decimal = '.';
};

/// Why a text is no amount.
enum class AmountFault : std::uint8_t {
  NotAnAmount,
  Groups,     ///< digits that are not in groups of three, or groups of two kinds
  Decimals,   ///< more than four decimals
  Ambiguous,  ///< with a currency, three digits after the only point or comma: thousands or decimals
  Range,      ///< outside 64 bits
};

struct Amount {
  ravo::Currency value;
  Notation notation;
};

/// Returns the amount that a UTF-8 text is as a whole, as people write it: "1234.56", "1 234,56 Kč",
/// "1.234,56", "€ .5", "-12,-".
///
/// A single point or comma separates decimals; several of one kind, the first kind of two, and a point in
/// "12.500,-" separate groups of three digits, as blanks do (also no-break, narrow and thin ones).
[[nodiscard]] std::variant<Amount, AmountFault> ReadAmount(std::string_view utf8);

/// Returns the value of such a text, or nothing.
[[nodiscard]] std::optional<ravo::Currency> ParseAmount(std::string_view utf8);

/// Returns the notation of an answer to an amount: that of the amount for "input", without groups and
/// currency for "plain", with the separators of Czech or English for "cs" and "en".
[[nodiscard]] Notation NotationAsked(const Notation& input, std::string_view name);

/// Returns an amount with at least two and at most four decimals.
[[nodiscard]] std::string AmountText(ravo::Currency amount, const Notation& notation = {});

}  // namespace tool
