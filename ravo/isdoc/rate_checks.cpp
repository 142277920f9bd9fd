#include "invoice.h"
#include <ravo/czech/vat_rates.h>

#include <algorithm>
#include <string>

// Rates of VAT: in force on the day of the tax point, the same on lines and in the recapitulation, and no tax
// on lines that are not taxed.
namespace ravo::isdoc::detail {
namespace {

// Rates of other countries are theirs.
bool IsCzech(const Invoice& invoice) {
  const Element* const supplier = invoice.Child(invoice.Root(), "AccountingSupplierParty");
  const Element* const party = supplier == nullptr ? nullptr : invoice.Child(*supplier, "Party");
  if (party == nullptr || invoice.Text(invoice.Root(), "LocalCurrencyCode") != "CZK") return false;
  const Element* const scheme = invoice.Child(*party, "PartyTaxScheme");
  return scheme != nullptr && invoice.Text(*scheme, "CompanyID").starts_with("CZ");
}

std::optional<std::int32_t> WholePercent(const Amount& percent) {
  for (std::int32_t whole = 0; whole <= 100; ++whole) {
    if (percent == Amount(whole)) return whole;
  }
  return std::nullopt;
}

std::string RatesOn(czech::Day day) {
  std::string rates = "0";
  for (const czech::VatRate& rate : czech::VatRates()) {
    if (rate.first <= day && day <= rate.last) rates += ", " + std::to_string(rate.percent);
  }
  return rates;
}

// A corrective document has the rates of its original.
void CheckLawful(const Invoice& invoice, const Line& line, czech::Day day) {
  if (!line.is_taxed || line.percent.IsZero()) return;
  const auto percent = WholePercent(line.percent);
  if (percent && czech::VatRateKindOn(day, *percent)) return;
  const Element& category = *invoice.Child(*line.element, "ClassifiedTaxCategory");
  const Element* const at = invoice.Child(category, "Percent");
  if (at != nullptr)
    invoice.Report(Rule::RateUnlawful, invoice.IsCorrective() ? Severity::Note : Severity::Error, *at,
                   std::string(Trimmed(at->text)), RatesOn(day));
}

std::string RatesOfRows(const Invoice& invoice) {
  std::string rates;
  for (const Subtotal& subtotal : invoice.Subtotals()) {
    const Element& category = *invoice.Child(*subtotal.element, "TaxCategory");
    rates += (rates.empty() ? "" : ", ") + std::string(invoice.Text(category, "Percent"));
  }
  return rates;
}

void CheckRow(const Invoice& invoice, const Line& line) {
  const Element* const category = invoice.Child(*line.element, "ClassifiedTaxCategory");
  const Element* const percent = category == nullptr ? nullptr : invoice.Child(*category, "Percent");
  if (percent == nullptr || invoice.Subtotals().empty() || line.has_row) return;
  const auto base = invoice.Number(*line.element, kLineBase.local);
  if (base && !base->IsZero())
    invoice.Report(Rule::RateMissing, Severity::Error, *percent, std::string(Trimmed(percent->text)),
                   RatesOfRows(invoice));
}

// A document has no tax if the customer owes it, or no one.
void CheckUntaxed(const Invoice& invoice, const Subtotal& subtotal) {
  if (!subtotal.reverse && subtotal.is_taxed && !subtotal.percent.IsZero()) return;
  for (const std::string_view name : {kTax.local, kTax.foreign})
    invoice.Expect(Rule::TaxNotZero, *subtotal.element, name, Amount());
}

void CheckReverseFlag(const Invoice& invoice, const Subtotal& subtotal) {
  const Element& category = *invoice.Child(*subtotal.element, "TaxCategory");
  for (const Line* const line : subtotal.lines) {
    if (line->reverse == subtotal.reverse) continue;
    const Element* const flag = invoice.Child(category, "LocalReverseChargeFlag");
    return invoice.Report(Rule::ReverseFlag, Severity::Error, flag == nullptr ? category : *flag,
                          subtotal.reverse ? "true" : "false", line->reverse ? "true" : "false");
  }
}

}  // namespace

void CheckRates(const Invoice& invoice) {
  const auto day = invoice.TaxDay();
  const bool is_czech = IsCzech(invoice);
  for (const Line& line : invoice.Lines()) {
    if (day && is_czech) CheckLawful(invoice, line, *day);
    CheckRow(invoice, line);
  }
  for (const Subtotal& subtotal : invoice.Subtotals()) {
    CheckUntaxed(invoice, subtotal);
    CheckReverseFlag(invoice, subtotal);
  }
}

}  // namespace ravo::isdoc::detail
