#include "invoice.h"
#include "tax_ways.h"

#include <algorithm>
#include <string>

// What was paid before: deposits without tax, which are taken from the payable amount, and taxed ones, which
// are taken from the row of their rate.
namespace ravo::isdoc::detail {
namespace {

// A sum of deposits that are not listed may be right.
void CheckUnlisted(const Invoice& invoice, std::string_view name) {
  const auto paid = invoice.Number(*invoice.Totals(), name);
  if (paid && !paid->IsZero())
    invoice.Report(Rule::UntaxedDeposits, Severity::Note, *invoice.Child(*invoice.Totals(), name),
                   paid->Text(), Amount().Text());
}

void CheckUntaxedDeposits(const Invoice& invoice, bool is_foreign) {
  const Element* const deposits = invoice.Child(invoice.Root(), "NonTaxedDeposits");
  if (invoice.Totals() == nullptr) return;
  if (deposits == nullptr) return CheckUnlisted(invoice, kPaidDeposits.In(is_foreign));
  Amount sum;
  ForEachChild(invoice.Source(), *deposits, "NonTaxedDeposit", [&](const Element& deposit) {
    sum += invoice.Number(deposit, kDeposit.In(is_foreign)).value_or(Amount());
  });
  invoice.Expect(Rule::UntaxedDeposits, *invoice.Totals(), kPaidDeposits.In(is_foreign), sum);
}

Amount PercentOf(const Invoice& invoice, const Element& deposit) {
  const Element* const category = invoice.Child(deposit, "ClassifiedTaxCategory");
  if (category == nullptr || invoice.Child(*category, "LocalReverseCharge") != nullptr) return {};
  return invoice.Number(*category, "Percent").value_or(Amount());
}

// A deposit may be of a time when other ways were lawful.
void CheckTaxOfDeposit(const Invoice& invoice, const Element& deposit, bool is_foreign) {
  const auto base = invoice.Number(deposit, kDepositBase.In(is_foreign));
  const auto total = invoice.Number(deposit, kDepositTotal.In(is_foreign));
  if (!base || !total) return;
  const Amount tax = *total - *base;
  const LawfulTaxes lawful(*base, *total, PercentOf(invoice, deposit), std::nullopt,
                           std::max(2, tax.Decimals()));
  if (lawful.WayOf(tax) == TaxWay::None)
    invoice.Expect(Rule::DepositTax, deposit, kDepositTotal.In(is_foreign), *base + lawful.All()[0].amount);
}

struct Column {
  MoneyName deposit;
  MoneyName claimed;
};
constexpr Column kColumns[] = {{kDepositBase, kClaimedBase}, {kDepositTotal, kClaimedTotal}};

Amount SumOfRate(const Invoice& invoice, const Element& deposits, const Subtotal& subtotal,
                 std::string_view name) {
  Amount sum;
  ForEachChild(invoice.Source(), deposits, "TaxedDeposit", [&](const Element& deposit) {
    const Element* const category = invoice.Child(deposit, "ClassifiedTaxCategory");
    const auto percent = category == nullptr ? std::nullopt : invoice.Number(*category, "Percent");
    if (percent && *percent == subtotal.percent) sum += invoice.Number(deposit, name).value_or(Amount());
  });
  return sum;
}

// Rows of one rate share its deposits: with reverse charge or without.
bool HasOwnRate(const Invoice& invoice, const Subtotal& subtotal) {
  return std::ranges::count_if(invoice.Subtotals(),
                               [&](const Subtotal& other) { return other.percent == subtotal.percent; }) == 1;
}

void CheckTaxedDeposits(const Invoice& invoice, bool is_foreign) {
  const Element* const deposits = invoice.Child(invoice.Root(), "TaxedDeposits");
  if (deposits == nullptr) return;
  ForEachChild(invoice.Source(), *deposits, "TaxedDeposit",
               [&](const Element& deposit) { CheckTaxOfDeposit(invoice, deposit, is_foreign); });
  for (const Subtotal& subtotal : invoice.Subtotals()) {
    if (!HasOwnRate(invoice, subtotal)) continue;
    for (const Column& column : kColumns)
      invoice.Expect(Rule::TaxedDeposits, *subtotal.element, column.claimed.In(is_foreign),
                     SumOfRate(invoice, *deposits, subtotal, column.deposit.In(is_foreign)));
  }
}

// A positive amount is taken away; a negative one would be added.
void CheckPositive(const Invoice& invoice) {
  for (const Element& element : invoice.Source().Elements()) {
    if (element.name != kDeposit.local && element.name != kDepositBase.local &&
        element.name != kDepositTotal.local)
      continue;
    const auto amount = Amount::Read(element.text);
    if (amount && amount->IsNegative())
      invoice.Report(Rule::DepositNegative, Severity::Error, element, amount->Text(),
                     amount->Absolute().Text());
  }
}

}  // namespace

void CheckDeposits(const Invoice& invoice) {
  CheckPositive(invoice);
  for (const bool is_foreign : {false, true}) {
    if (is_foreign && !invoice.IsForeign()) break;
    CheckUntaxedDeposits(invoice, is_foreign);
    CheckTaxedDeposits(invoice, is_foreign);
  }
}

}  // namespace ravo::isdoc::detail
