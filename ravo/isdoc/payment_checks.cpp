#include "invoice.h"
#include <ravo/czech/account.h>
#include <ravo/czech/banks.h>
#include <ravo/czech/bic.h>
#include <ravo/czech/iban.h>
#include <ravo/czech/symbols.h>

#include <algorithm>
#include <optional>
#include <string>

// Where to pay, under which symbols, and how much.
namespace ravo::isdoc::detail {
namespace {

const Element* Filled(const Invoice& invoice, const Element& element, std::string_view name) {
  const Element* const child = invoice.Child(element, name);
  return child == nullptr || Trimmed(child->text).empty() ? nullptr : child;
}

template <class Parse>
void CheckSymbol(const Invoice& invoice, Rule rule, const Element& parent, std::string_view name,
                 Parse parse) {
  const Element* const symbol = Filled(invoice, parent, name);
  if (symbol == nullptr) return;
  const auto parsed = parse(Trimmed(symbol->text));
  if (!parsed) invoice.Refuse(rule, *symbol, Trimmed(symbol->text), parsed.code);
}

void CheckVariableSymbol(const Invoice& invoice, const Element& parent) {
  CheckSymbol(invoice, Rule::VariableSymbolWrong, parent, "VariableSymbol",
              [](std::string_view text) { return czech::ParseVariableSymbol(text); });
}

void CheckSymbols(const Invoice& invoice, const Element& details) {
  CheckVariableSymbol(invoice, details);
  CheckSymbol(invoice, Rule::ConstantSymbolWrong, details, "ConstantSymbol",
              [](std::string_view text) { return czech::ParseConstantSymbol(text); });
  CheckSymbol(invoice, Rule::SpecificSymbolWrong, details, "SpecificSymbol",
              [](std::string_view text) { return czech::ParseSpecificSymbol(text); });
}

std::optional<czech::Iban> CheckIban(const Invoice& invoice, const Element& place) {
  const Element* const iban = Filled(invoice, place, "IBAN");
  if (iban == nullptr) return std::nullopt;
  const auto parsed = czech::ParseIban(Trimmed(iban->text));
  if (parsed) return parsed.value;
  invoice.Refuse(Rule::IbanWrong, *iban, Trimmed(iban->text), parsed.code);
  return std::nullopt;
}

// The number may have its bank code after a slash, or beside it.
std::string AccountText(const Invoice& invoice, const Element& place, const Element& number) {
  std::string text(Trimmed(number.text));
  if (text.find('/') == std::string::npos) text += "/" + std::string(invoice.Text(place, "BankCode"));
  return text;
}

// Numbers of accounts in other countries have the forms of these.
bool IsCzechAccount(const std::optional<czech::Iban>& iban, std::string_view text) {
  return iban ? iban->text.View().starts_with("CZ")
              : text.find_first_not_of("0123456789-/ ") == std::string_view::npos;
}

std::optional<czech::Account> CheckAccount(const Invoice& invoice, const Element& place,
                                           const std::optional<czech::Iban>& iban) {
  const Element* const number = Filled(invoice, place, "ID");
  if (number == nullptr) return std::nullopt;
  const std::string text = AccountText(invoice, place, *number);
  if (!IsCzechAccount(iban, text)) return std::nullopt;
  const auto parsed = czech::ParseAccount(text);
  if (parsed) return parsed.value;
  invoice.Refuse(Rule::AccountWrong, *number, text, parsed.code);
  return std::nullopt;
}

// The list of banks is of one day: what differs from it is worth a look, no more.
void CheckBank(const Invoice& invoice, const Element& place, const czech::Account& account) {
  const auto answer = czech::FindBank(czech::BuiltInBanks(), account.bank, {});
  const Element* const code = Filled(invoice, place, "BankCode");
  if (answer.bank == nullptr && code != nullptr)
    invoice.Report(Rule::BankUnknown, Severity::Note, *code, std::string(Trimmed(code->text)));
  const Element* const bic = Filled(invoice, place, "BIC");
  if (answer.bank == nullptr || bic == nullptr || answer.bank->bic.empty()) return;
  if (Trimmed(bic->text).substr(0, 8) != answer.bank->bic.substr(0, 8))
    invoice.Report(Rule::BicOfBank, Severity::Note, *bic, std::string(Trimmed(bic->text)),
                   std::string(answer.bank->bic));
}

void CheckBic(const Invoice& invoice, const Element& place) {
  const Element* const bic = Filled(invoice, place, "BIC");
  if (bic == nullptr) return;
  const auto parsed = czech::ParseBic(Trimmed(bic->text));
  if (!parsed) invoice.Refuse(Rule::BicWrong, *bic, Trimmed(bic->text), parsed.code);
}

void CheckPlaceOfPayment(const Invoice& invoice, const Element& place) {
  const auto iban = CheckIban(invoice, place);
  const auto account = CheckAccount(invoice, place, iban);
  CheckBic(invoice, place);
  if (account) CheckBank(invoice, place, *account);
  if (!iban || !account || czech::IbanOf(*account) == *iban) return;
  invoice.Report(Rule::AccountIban, Severity::Error, *invoice.Child(place, "IBAN"),
                 std::string(iban->text.View()), std::string(czech::IbanOf(*account).text.View()));
}

void CheckClientAccount(const Invoice& invoice) {
  const Element* const client = Filled(invoice, invoice.Root(), "ClientBankAccount");
  if (client == nullptr) return;
  const auto account = czech::ParseAccount(Trimmed(client->text));
  if (!account) invoice.Refuse(Rule::AccountWrong, *client, Trimmed(client->text), account.code);
}

// What is paid, in the currency of the books or of the document.
void CheckPaid(const Invoice& invoice, const Element& means) {
  Amount sum;
  std::size_t payments = 0;
  const Element* last = nullptr;
  bool in_parts = false;
  ForEachChild(invoice.Source(), means, "Payment", [&](const Element& payment) {
    if (const auto paid = invoice.Number(payment, "PaidAmount")) {
      sum += *paid;
      ++payments;
    }
    in_parts = in_parts || invoice.AttributeOf(payment, "partialPayment") == "true";
    last = invoice.Child(payment, "PaidAmount");
  });
  const Element* const totals = invoice.Totals();
  if (totals == nullptr || last == nullptr || payments == 0) return;
  const auto payable = invoice.Number(*totals, kPayable.local);
  const auto foreign = invoice.Number(*totals, kPayable.foreign);
  if (!payable || sum == *payable || (foreign && sum == *foreign)) return;
  const bool is_note = in_parts || sum.IsZero();
  invoice.Report(Rule::PaymentSum, is_note ? Severity::Note : Severity::Error, *last, sum.Text(),
                 foreign ? foreign->Text() : payable->Text());
}

void CheckDepositSymbols(const Invoice& invoice) {
  for (const auto& [all, one] :
       {std::pair("NonTaxedDeposits", "NonTaxedDeposit"), {"TaxedDeposits", "TaxedDeposit"}}) {
    const Element* const deposits = invoice.Child(invoice.Root(), all);
    if (deposits == nullptr) continue;
    ForEachChild(invoice.Source(), *deposits, one,
                 [&](const Element& deposit) { CheckVariableSymbol(invoice, deposit); });
  }
}

}  // namespace

void CheckPayment(const Invoice& invoice) {
  CheckClientAccount(invoice);
  CheckDepositSymbols(invoice);
  const Element* const means = invoice.Child(invoice.Root(), "PaymentMeans");
  if (means == nullptr) return;
  CheckPaid(invoice, *means);
  ForEachChild(invoice.Source(), *means, "Payment", [&](const Element& payment) {
    const Element* const details = invoice.Child(payment, "Details");
    if (details == nullptr) return;
    CheckPlaceOfPayment(invoice, *details);
    CheckSymbols(invoice, *details);
  });
  const Element* const others = invoice.Child(*means, "AlternateBankAccounts");
  if (others == nullptr) return;
  ForEachChild(invoice.Source(), *others, "AlternateBankAccount",
               [&](const Element& account) { CheckPlaceOfPayment(invoice, account); });
}

}  // namespace ravo::isdoc::detail
