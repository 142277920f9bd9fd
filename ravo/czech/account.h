#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/iban.h>
#include <ravo/czech/reason.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ravo::czech {

/// A Czech bank account: prefix, number, bank code.
struct Account {
  std::uint64_t number = 0;  ///< at most ten digits
  std::uint32_t prefix = 0;  ///< at most six digits; 0 for none
  std::uint16_t bank = 0;    ///< the bank code, four digits: 800 is 0800
  friend constexpr bool operator==(const Account&, const Account&) noexcept = default;
};

/// Returns the account in `text`, correct in form by decree 169/2011: prefix and number each by its own
/// weighted sum.
///
/// The prefix has one to six digits, the number two to ten, the bank code four. Refused: `AccountEmpty`,
/// `AccountCharacter`, `AccountPrefixLength`, `AccountLength`, `AccountBank`, `AccountPrefixChecksum`,
/// `AccountChecksum`, `AccountZero`. Whether there is such a bank is `FindBank`'s answer.
///
///     ParseAccount("č. ú. 19-2000145399 / 0800")
[[nodiscard]] Parsed<Account> ParseAccount(std::string_view text) noexcept;
[[nodiscard]] Parsed<Account> ParseAccount(std::u16string_view text) noexcept;

/// Returns the usual spelling: "19-2000145399/0800", no zeros before prefix or number, a number of two digits
/// at least.
[[nodiscard]] FixedText<22> Format(const Account& account) noexcept;

/// Returns the IBAN of an account. Precondition: `account` is from `ParseAccount` or `AccountOf`.
[[nodiscard]] Iban IbanOf(const Account& account) noexcept;

/// Returns the account of a Czech IBAN; nothing for one of another country. Precondition: `iban` is from
/// `ParseIban` or `IbanOf`.
[[nodiscard]] std::optional<Account> AccountOf(const Iban& iban) noexcept;

namespace detail {

/// An account, and whether its text was in the usual spelling already.
struct ReadAccount {
  Parsed<Account> parsed;
  bool usual = false;  ///< false also if that is not known
};

/// Does what `ParseAccount` does.
[[nodiscard]] ReadAccount ReadAccountText(std::string_view text) noexcept;

/// The usual spelling in a text of any capacity. Made in place: a copy would stall on the bytes just stored.
template <std::size_t capacity>
[[nodiscard]] constexpr FixedText<capacity> AccountText(const Account& account) noexcept {
  FixedText<capacity> text;
  if (account.prefix != 0) {
    text.AppendNumber(account.prefix, 1);
    text.Append('-');
  }
  text.AppendNumber(account.number, 2);
  text.Append('/');
  text.AppendNumber(account.bank, 4);
  return text;
}

}  // namespace detail
}  // namespace ravo::czech
