#include "invoice.h"
#include <ravo/czech/dic.h>
#include <ravo/czech/ico.h>
#include <ravo/czech/post_code.h>
#include <ravo/czech/vat_number.h>

#include <algorithm>
#include <string>

// Who sells and who buys: company and tax numbers, postcodes, countries.
namespace ravo::isdoc::detail {
namespace {

constexpr std::string_view kCzech = "CZ";

// A party of the document; what it lacks is null or empty.
struct Party {
  const Element* element = nullptr;
  const Element* ico = nullptr;
  const Element* dic = nullptr;  // of VAT
  const Element* address = nullptr;
  std::string_view country;
  [[nodiscard]] bool IsCzech() const { return country == kCzech || country.empty(); }
};

const Element* TaxNumber(const Invoice& invoice, const Element& party) {
  const Element* number = nullptr;
  ForEachChild(invoice.Source(), party, "PartyTaxScheme", [&](const Element& scheme) {
    if (number == nullptr && invoice.Text(scheme, "TaxScheme") == "VAT")
      number = invoice.Child(scheme, "CompanyID");
  });
  return number == nullptr || Trimmed(number->text).empty() ? nullptr : number;
}

Party PartyOf(const Invoice& invoice, std::string_view role) {
  Party party;
  const Element* const element = invoice.Child(invoice.Root(), role);
  party.element = element == nullptr ? nullptr : invoice.Child(*element, "Party");
  if (party.element == nullptr) return party;
  if (const Element* const names = invoice.Child(*party.element, "PartyIdentification"))
    party.ico = invoice.Child(*names, "ID");
  party.dic = TaxNumber(invoice, *party.element);
  party.address = invoice.Child(*party.element, "PostalAddress");
  const Element* const country =
      party.address == nullptr ? nullptr : invoice.Child(*party.address, "Country");
  if (country != nullptr) party.country = invoice.Text(*country, "IdentificationCode");
  return party;
}

// Reports a refusal, or a spelling that programs do not expect.
template <class Parsed>
bool CheckSpelling(const Invoice& invoice, Rule rule, const Element& element, const Parsed& parsed) {
  const std::string_view text = Trimmed(element.text);
  if (!parsed)
    invoice.Refuse(rule, element, text, parsed.code);
  else if (parsed.value.text.View() != text)
    invoice.Report(Rule::Spelling, Severity::Note, element, std::string(text),
                   std::string(parsed.value.text.View()));
  return bool(parsed);
}

bool CheckIco(const Invoice& invoice, const Party& party) {
  if (party.ico == nullptr || !party.IsCzech() || Trimmed(party.ico->text).empty()) return false;
  return CheckSpelling(invoice, Rule::IcoWrong, *party.ico, czech::ParseIco(Trimmed(party.ico->text)));
}

bool CheckTaxNumber(const Invoice& invoice, const Party& party) {
  if (party.dic == nullptr) return false;
  const std::string_view text = Trimmed(party.dic->text);
  const auto number = czech::ParseVatNumber(text);
  const bool is_foreign = number || number.code != czech::Code::VatCountry;
  if (text.starts_with(kCzech) || (!is_foreign && party.country == kCzech))
    return CheckSpelling(invoice, Rule::DicWrong, *party.dic, czech::ParseDic(text));
  // Countries outside of the Union have numbers of their own.
  if (is_foreign) CheckSpelling(invoice, Rule::VatNumberWrong, *party.dic, number);
  return false;
}

// The tax number of a company is its company number, of a person or a group it is not.
void CompareNumbers(const Invoice& invoice, const Party& party) {
  const auto ico = czech::ParseIco(Trimmed(party.ico->text));
  const auto dic = czech::ParseDic(Trimmed(party.dic->text));
  if (dic.value.form != czech::DicForm::LegalEntity) return;
  const std::string expected = std::string(kCzech) + std::string(ico.value.text.View());
  if (dic.value.text.View() != expected)
    invoice.Report(Rule::DicOfIco, Severity::Note, *party.dic, std::string(dic.value.text.View()), expected);
}

void CheckAddress(const Invoice& invoice, const Party& party) {
  if (party.address == nullptr) return;
  const auto is_capital = [](char c) { return c >= 'A' && c <= 'Z'; };
  const bool is_code = party.country.size() == 2 && std::ranges::all_of(party.country, is_capital);
  const Element* const country = invoice.Child(*party.address, "Country");
  if (country != nullptr && !is_code)
    invoice.Report(Rule::CountryCode, party.country.empty() ? Severity::Note : Severity::Error, *country,
                   std::string(party.country), "ISO 3166-1");
  const Element* const zone = invoice.Child(*party.address, "PostalZone");
  if (zone == nullptr || party.country != kCzech || Trimmed(zone->text).empty()) return;
  const auto code = czech::ParsePostCode(Trimmed(zone->text));
  if (!code) invoice.Refuse(Rule::PostCodeWrong, *zone, Trimmed(zone->text), code.code);
}

void CheckParty(const Invoice& invoice, const Party& party) {
  if (party.element == nullptr) return;
  const bool has_ico = CheckIco(invoice, party);
  const bool has_dic = CheckTaxNumber(invoice, party);
  if (has_ico && has_dic) CompareNumbers(invoice, party);
  CheckAddress(invoice, party);
}

void CheckSupplier(const Invoice& invoice, const Party& supplier) {
  if (supplier.element == nullptr) return;
  if (invoice.IsTaxed() && invoice.Type() != "4" && supplier.dic == nullptr)
    invoice.Report(Rule::SupplierTaxNumber, Severity::Note, *supplier.element, {}, "CompanyID");
  if (supplier.ico != nullptr && Trimmed(supplier.ico->text).empty())
    invoice.Report(Rule::IcoMissing, Severity::Note, *supplier.ico, {});
  const bool is_czech = supplier.dic != nullptr && Trimmed(supplier.dic->text).starts_with(kCzech);
  if (is_czech && supplier.country.size() == 2 && supplier.country != kCzech)
    invoice.Report(Rule::SupplierCountry, Severity::Note, *supplier.address, std::string(supplier.country),
                   std::string(kCzech));
}

// A customer without a number of VAT cannot owe the tax.
void CheckReverse(const Invoice& invoice, const Party& customer) {
  const auto line = std::ranges::find_if(invoice.Lines(), &Line::reverse);
  if (line == invoice.Lines().end() || customer.dic != nullptr) return;
  const Element& at = customer.element == nullptr ? invoice.Root() : *customer.element;
  invoice.Report(Rule::ReverseTaxNumber, Severity::Error, at, {}, "CompanyID");
}

}  // namespace

void CheckParties(const Invoice& invoice) {
  for (const std::string_view role : {"AccountingSupplierParty", "SellerSupplierParty",
                                      "AccountingCustomerParty", "BuyerCustomerParty", "Delivery"})
    CheckParty(invoice, PartyOf(invoice, role));
  CheckSupplier(invoice, PartyOf(invoice, "AccountingSupplierParty"));
  if (invoice.Root().name == "Invoice") CheckReverse(invoice, PartyOf(invoice, "AccountingCustomerParty"));
}

}  // namespace ravo::isdoc::detail
