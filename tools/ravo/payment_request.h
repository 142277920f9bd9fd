#pragma once

#include <ravo/czech/payment_code.h>

#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tool {

/// What a payment code, an invoice code or both in one shall say, as people write it.
struct PaymentRequest {
  std::string
      account;  ///< "19-2000145399/0800" or an IBAN, perhaps with "+" and a BIC; empty for an invoice code
  std::string amount;    ///< as `ReadAmount` reads it
  std::string currency;  ///< CZK if empty
  std::string vs;
  std::string ks;
  std::string ss;
  std::string message;
  std::string due;  ///< as `ReadDate` reads it
  std::string recipient;
  std::vector<std::string> fields;   ///< "KEY=VALUE", other attributes of the payment
  std::vector<std::string> invoice;  ///< "KEY=VALUE", the attributes of an invoice
  bool utf8 = false;                 ///< keeps the case of messages and names, and characters beyond ASCII
  bool checksum = false;
  /// What messages call the values that the user did not give, by the key of the attribute: "X-VS", and
  /// "X-INV/INI" in an invoice. Those that are too long are shortened.
  std::map<std::string, std::string> origins;
};

/// What a user should know about a code: a word for scripts, and a sentence.
struct PaymentNote {
  std::string_view code;
  std::string text;
};

/// The text of a code.
struct PaymentAnswer {
  std::string text;
  std::vector<PaymentNote> notes;
};

/// Why there is no code, for people.
struct PaymentFault {
  std::string message;
};

/// Returns the text of the code.
///
/// Without `utf8`, messages and names are in upper case and all characters in ASCII, because some banks read
/// nothing else; a note says so. Of an invoice inside a payment code, values that the payment has too are
/// left out.
[[nodiscard]] std::variant<PaymentAnswer, PaymentFault> AskForPayment(const PaymentRequest& request);

}  // namespace tool
