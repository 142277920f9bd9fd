#include "isdoc_payment.h"

#include "document_file.h"
#include "isdoc_file.h"
#include "text.h"
#include <ravo/czech/account.h>
#include <ravo/czech/iban.h>
#include <ravo/isdoc/amount.h>
#include <ravo/isdoc/fields.h>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>

namespace tool {
namespace {

namespace czech = ravo::czech;
namespace isdoc = ravo::isdoc;
using isdoc::Document;
using isdoc::Element;
using isdoc::ElementAt;

std::string TextOwned(const Document& invoice, const Element* element,
                      std::initializer_list<std::string_view> path) {
  return std::string(isdoc::TextAt(invoice, element, path));
}

// One payment that an invoice asks for, and how many there are.
struct AskedPayment {
  const Element* payment = nullptr;
  std::size_t count = 0;
};

// A transfer to an account comes before one that may have been made already.
AskedPayment TransferOf(const Document& invoice) {
  AskedPayment asked;
  const Element* const means = invoice.Child(invoice.Root(), "PaymentMeans");
  if (means == nullptr) return asked;
  const Element* second = nullptr;
  isdoc::ForEachChild(invoice, *means, "Payment", [&](const Element& payment) {
    ++asked.count;
    const std::string code = TextOwned(invoice, &payment, {"PaymentMeansCode"});
    if (code == "42" && asked.payment == nullptr) asked.payment = &payment;
    if (code == "31" && second == nullptr) second = &payment;
  });
  if (asked.payment == nullptr) asked.payment = second;
  return asked;
}

// Line ends of a text are layout.
std::string Line(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return text;
}

// "2026-11-16", perhaps with a time zone, as the digits of a code; another text as it is.
std::string DayDigits(std::string text) {
  constexpr std::size_t kDayLength = 10;
  if (text.size() < kDayLength || text[4] != '-' || text[7] != '-') return text;
  text.resize(kDayLength);
  std::erase(text, '-');
  return text;
}

std::string CountryOf(std::string_view iban) { return std::string(iban.substr(0, 2)); }

class Filler {
 public:
  Filler(const std::string& file, const Document& invoice, PaymentRequest& request)
      : name_(ShownName(file)), invoice_(invoice), request_(request), asked_(TransferOf(invoice)) {
    if (asked_.payment != nullptr) details_ = invoice.Child(*asked_.payment, "Details");
    local_ = Head("LocalCurrencyCode");
    foreign_ = Head("ForeignCurrencyCode");
  }

  void FillPayment() {
    RefuseCreditNote();
    FillAccount();
    FillAmount();
    FillDue();
    Fill(request_.vs, "X-VS", "VariableSymbol", Detail("VariableSymbol"));
    Fill(request_.ks, "X-KS", "ConstantSymbol", Detail("ConstantSymbol"));
    Fill(request_.ss, "X-SS", "SpecificSymbol", Detail("SpecificSymbol"));
    Fill(request_.recipient, "RN", "Name", Party("AccountingSupplierParty", {"PartyName", "Name"}));
    Fill(request_.message, "MSG", "ID", Head("ID"));
  }

  void FillInvoice() {
    constexpr const char* kSupplier = "AccountingSupplierParty";
    constexpr const char* kCustomer = "AccountingCustomerParty";
    AddToInvoice("ID", Head("ID"));
    AddToInvoice("DD", DayDigits(Head("IssueDate")));
    AddToInvoice("AM", Money(Payable(IsLocal())));
    AddToInvoice("CC", request_.currency);
    AddToInvoice("VS", Detail("VariableSymbol"));
    AddToInvoice("VII", std::string(isdoc::PartyOf(invoice_, kSupplier).dic));
    AddToInvoice("INI", Party(kSupplier, {"PartyIdentification", "ID"}));
    AddToInvoice("VIR", std::string(isdoc::PartyOf(invoice_, kCustomer).dic));
    AddToInvoice("INR", Party(kCustomer, {"PartyIdentification", "ID"}));
    AddToInvoice("DUZP", DayDigits(Head("TaxPointDate")));
  }

  [[nodiscard]] std::vector<PaymentNote> TakeNotes() { return std::move(notes_); }

 private:
  [[noreturn]] void Refuse(const std::string& why) const { throw FileError(name_ + ": " + why); }

  [[nodiscard]] std::string Head(std::string_view name) const {
    return TextOwned(invoice_, &invoice_.Root(), {name});
  }
  [[nodiscard]] std::string Detail(std::string_view name) const {
    return TextOwned(invoice_, details_, {name});
  }
  [[nodiscard]] std::string Party(std::string_view role, std::initializer_list<std::string_view> path) const {
    return TextOwned(invoice_, ElementAt(invoice_, &invoice_.Root(), {role, "Party"}), path);
  }
  [[nodiscard]] std::string Payable(bool is_local) const {
    const char* const name = is_local ? "PayableAmount" : "PayableAmountCurr";
    return TextOwned(invoice_, &invoice_.Root(), {"LegalMonetaryTotal", name});
  }
  [[nodiscard]] bool IsLocal() const { return request_.currency == local_; }

  [[nodiscard]] static bool HasKey(const std::vector<std::string>& fields, const std::string& key) {
    return std::ranges::any_of(fields,
                               [&](const std::string& field) { return field.starts_with(key + "="); });
  }

  void Fill(std::string& value, const char* key, const std::string& source, const std::string& text) {
    if (!value.empty() || text.empty() || HasKey(request_.fields, key)) return;
    value = Line(text);
    request_.origins[key] = name_ + ": " + source;
  }

  void AddToInvoice(const std::string& key, const std::string& text) {
    if (text.empty() || HasKey(request_.invoice, key)) return;
    request_.invoice.push_back(key + "=" + Line(text));
    request_.origins["X-INV/" + key] = name_ + ": " + key;
  }

  void RefuseCreditNote() const {
    const std::string type = Head("DocumentType");
    if (type == "2" || type == "6") Refuse(Text("a credit note asks for no payment"));
  }

  void FillAccount() {
    if (!request_.account.empty()) return;
    if (asked_.count == 0) Refuse(Text("the document asks for no payment; give ACCOUNT to make one"));
    if (asked_.payment == nullptr)
      Refuse(Text("no payment of the document is a transfer to an account; give ACCOUNT to make one"));
    Fill(request_.account, "ACC", Text("the account"), AccountOf());
    if (request_.account.empty()) Refuse(Text("the document does not say to which account; give ACCOUNT"));
  }

  // The number may have its bank code after a slash, or beside it.
  [[nodiscard]] std::string NumberOf() const {
    std::string number = Detail("ID");
    if (!number.empty() && number.find('/') == std::string::npos) number += "/" + Detail("BankCode");
    return number;
  }

  // Of one account spelled twice the IBAN, if both are right; a wrong one is refused by who takes it.
  [[nodiscard]] std::string AccountOf() const {
    std::string iban = Detail("IBAN");
    std::string number = NumberOf();
    if (!iban.empty() && CountryOf(iban) != "CZ") {
      const std::string bic = Detail("BIC");
      return bic.empty() ? iban : iban + "+" + bic;
    }
    if (number.empty()) return iban;
    const auto account = czech::ParseAccount(number);
    if (!account || iban.empty()) return number;
    const auto parsed = czech::ParseIban(iban);
    if (parsed && !(czech::IbanOf(account.value) == parsed.value))
      Refuse(Text("account {0} and IBAN {1} are two accounts; give ACCOUNT", {number, iban}));
    return iban;
  }

  [[nodiscard]] static std::string Money(const std::string& text) {
    const auto amount = isdoc::Amount::Read(text);
    return amount ? amount->Text() : text;
  }

  void FillAmount() {
    Fill(request_.currency, "CC", "CurrencyCode", foreign_.empty() ? local_ : foreign_);
    if (!request_.amount.empty() || HasKey(request_.fields, "AM")) return;
    if (request_.currency != local_ && request_.currency != foreign_)
      Refuse(Text("the document has no amount in {0}; give --amount", {request_.currency}));
    const std::string text = asked_.count > 1 ? PartOf() : Payable(IsLocal());
    if (text.empty()) Refuse(Text("the document has no amount to pay; give --amount"));
    const auto amount = isdoc::Amount::Read(text);
    if (!amount) Refuse(Text("the amount to pay '{0}' is not a number; give --amount", {text}));
    if (amount->IsZero() || amount->IsNegative())
      Refuse(Text("there is nothing to pay: the amount is {0}", {amount->Text()}));
    Fill(request_.amount, "AM", "PayableAmount", amount->Text());
  }

  // Each of several payments has its own part of the amount. It does not say in which currency.
  [[nodiscard]] std::string PartOf() {
    if (!foreign_.empty())
      Refuse(Text("the document has several payments and two currencies; give --amount and --currency"));
    if (asked_.payment == nullptr)
      Refuse(Text("no payment of the document is a transfer to an account; give --amount"));
    std::string part = TextOwned(invoice_, asked_.payment, {"PaidAmount"});
    notes_.push_back({"payments", Text("the document has {0} payments; this is the first transfer, of {1}",
                                       {std::to_string(asked_.count), Money(part)})});
    return part;
  }

  void FillDue() {
    const std::string text = Detail("PaymentDueDate");
    const std::string day = DayDigits(text);
    const bool is_day = day.size() == 8 && day.find_first_not_of("0123456789") == std::string::npos;
    if (!text.empty() && request_.due.empty() && !HasKey(request_.fields, "DT") && !is_day)
      Refuse(Text("the due date '{0}' is not a date; give --due", {text}));
    Fill(request_.due, "DT", "PaymentDueDate", day);
  }

  std::string name_;
  const Document& invoice_;
  PaymentRequest& request_;
  AskedPayment asked_;
  const Element* details_ = nullptr;
  std::string local_;
  std::string foreign_;
  std::vector<PaymentNote> notes_;
};

}  // namespace

std::vector<PaymentNote> FillFromInvoice(const std::string& file, bool with_invoice,
                                         PaymentRequest& request) {
  const Document invoice = ReadKnownInvoice(file);
  Filler filler(file, invoice, request);
  filler.FillPayment();
  if (with_invoice) filler.FillInvoice();
  return filler.TakeNotes();
}

}  // namespace tool
