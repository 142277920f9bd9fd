#pragma once

#include <ravo/czech/payment_code.h>

#include <cstddef>
#include <span>
#include <string_view>

/// What the value of each key may be.
namespace ravo::czech::detail {

/// What a value consists of.
enum class ValueForm : std::uint8_t {
  Account,   ///< an IBAN, perhaps with "+" and a BIC
  Accounts,  ///< two of them at most, divided by a comma
  Amount,
  SignedAmount,
  Rate,  ///< digits, perhaps a point and more digits
  Currency,
  Date,
  Digits,
  RetryDays,  ///< 1 to 30
  Hex,
  Choice,  ///< one character of a set
  Ico,
  Dic,  ///< by its rule if it begins with CZ
  Text,
  Invoice,  ///< an invoice code
};

/// When a key must be there.
enum class ValueNeed : std::uint8_t { Never, Alone, Always };

/// A row of payment_code_keys.inc.
struct PaymentKey {
  PaymentCodeKind kind;
  std::string_view key;
  ValueForm form;
  std::size_t longest;
  ValueNeed need;
  std::string_view choices;
};

/// Returns the keys of both codes.
[[nodiscard]] std::span<const PaymentKey> PaymentKeys() noexcept;

/// Returns the row of a key, or null for a key that the standard does not have.
[[nodiscard]] const PaymentKey* FindPaymentKey(PaymentCodeKind kind, std::string_view key) noexcept;

/// A reason, and where the value is at fault in bytes.
struct ValueFault {
  Code code = Code::Correct;
  std::size_t position = 0;
};

/// Returns why a value, not percent-encoded, is not one of that key; null is a key of others.
[[nodiscard]] ValueFault CheckPaymentValue(const PaymentKey* key, std::string_view value) noexcept;

/// Returns why a text is no invoice code inside a payment code.
[[nodiscard]] ValueFault CheckInvoiceInside(std::string_view text) noexcept;

}  // namespace ravo::czech::detail
