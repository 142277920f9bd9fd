#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/kinds.h>

#include <cstddef>
#include <optional>
#include <string_view>

namespace ravo::czech {

/// A piece of payment data in a text.
struct FoundPayment {
  /// `Account`, `Iban`, `VariableSymbol`, `ConstantSymbol` or `SpecificSymbol`.
  Kind kind = Kind::Account;
  std::size_t begin = 0;    ///< where it begins, past its label; in units of the text
  std::size_t end = 0;      ///< where it ends; the next search begins there
  FixedText<34> canonical;  ///< as `Check` gives it
};

/// Returns the first account, IBAN or symbol that ends after `from`, or nothing.
///
/// Accounts and IBANs are found by their form, symbols by their labels ("VS", "v. s.:", "variabilní symbol").
/// Single blanks may divide groups: those of a symbol after the first have three digits. Digits next to
/// a letter, a hyphen or a slash are a part of something else. An account without a prefix has at least
/// five digits here, because "51/2026" is rather the number of a document.
///
///     FindPayment("VS 2026 000 579, 19-2000145399/0800")  // the symbol; the account is next, from its end
[[nodiscard]] std::optional<FoundPayment> FindPayment(std::string_view text, std::size_t from = 0) noexcept;
[[nodiscard]] std::optional<FoundPayment> FindPayment(std::u16string_view text,
                                                      std::size_t from = 0) noexcept;

}  // namespace ravo::czech
