#pragma once

#include <ravo/czech/day.h>
#include <ravo/czech/reason.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace ravo::czech {

/// A provider of payments as the central bank lists it.
struct Bank {
  std::uint16_t code = 0;  ///< four digits: 800 is 0800
  bool clears = false;     ///< whether it takes part in the clearing system CERTIS
  std::string_view bic;    ///< empty if it has none
  std::string_view name;   ///< in UTF-8
};

/// A list of banks and the day on which it held.
struct BankList {
  std::span<const Bank> banks;  ///< by code, ascending
  Day date;                     ///< the day of the list
};

/// Returns the list that is built in: the central bank's, dated 13 November 2022.
[[nodiscard]] BankList BuiltInBanks() noexcept;

/// Whether a list has a bank.
struct BankAnswer {
  const Bank* bank = nullptr;     ///< the row, or null
  Code code = Code::BankUnknown;  ///< `Correct`, `BankUnknown`, or `BankEmpty` for a list without rows
  Day list_date;                  ///< the list's day, which an answer must name
  std::int32_t days_after = 0;    ///< how many days after the list's the day asked for is; negative before it
};

/// Returns whether `list` has the bank code `code`, and how far the list's day is from `day`.
///
/// A list says nothing about other days: the farther away, the less the answer is worth.
[[nodiscard]] BankAnswer FindBank(const BankList& list, std::uint16_t code, Day day) noexcept;

/// Reads a list in the central bank's CSV form into `room`, sorted by code; returns how many rows there are.
///
/// `text` is UTF-8: a line of captions, then lines of code, name, BIC and "A" for the clearing system, with
/// semicolons between them. Names and BICs are views into `text`. Refused, with the position in `text`:
/// `BankLine`, `BankCode`, `BankTwice`, `BankRoom`, `BankEmpty`; `BankTwice`
/// is at the later name. Skips a byte-order mark, quotes around a column, blanks at its ends and empty
/// lines.
[[nodiscard]] Parsed<std::size_t> ReadBankList(std::string_view text, std::span<Bank> room) noexcept;

}  // namespace ravo::czech
