#include "invoice.h"

#include <string>

// The totals of the document, down to the payable amount.
namespace ravo::isdoc::detail {
namespace {

// A total and the column of the recapitulation whose sum it is.
struct SumOfRows {
  MoneyName total;
  MoneyName column;
};

constexpr SumOfRows kSums[] = {
    {kSumBase, kBase},
    {kTotal, kTotal},
    {kSumClaimedBase, kClaimedBase},
    {kClaimedTotal, kClaimedTotal},
    {kSumDifferenceBase, kDifferenceBase},
    {kDifferenceTotal, kDifferenceTotal},
};

void CheckSum(const Invoice& invoice, const Element& totals, const SumOfRows& names, bool is_foreign) {
  Amount sum;
  for (const Subtotal& subtotal : invoice.Subtotals()) {
    const auto amount = invoice.Number(*subtotal.element, names.column.In(is_foreign));
    if (!amount) return;
    sum += *amount;
  }
  invoice.Expect(Rule::SumOfRates, totals, names.total.In(is_foreign), sum);
}

void CheckDifference(const Invoice& invoice, const Element& totals, const MoneyName& result,
                     const MoneyName& all, const MoneyName& claimed, bool is_foreign) {
  const auto amount = invoice.Number(totals, all.In(is_foreign));
  const auto less = invoice.Number(totals, claimed.In(is_foreign));
  if (amount && less) invoice.Expect(Rule::TotalDifference, totals, result.In(is_foreign), *amount - *less);
}

void CheckPayable(const Invoice& invoice, const Element& totals, bool is_foreign) {
  const auto difference = invoice.Number(totals, kDifferenceTotal.In(is_foreign));
  const auto deposits = invoice.Number(totals, kPaidDeposits.In(is_foreign));
  const Amount rounding = invoice.Number(totals, kRounding.In(is_foreign)).value_or(Amount());
  if (difference && deposits)
    invoice.Expect(Rule::Payable, totals, kPayable.In(is_foreign), *difference + rounding - *deposits);
}

// Rounding makes whole crowns, up, down or to the nearest: less than one crown.
void CheckRounding(const Invoice& invoice, const Element& totals) {
  const auto rounding = invoice.Number(totals, kRounding.local);
  const auto payable = invoice.Number(totals, kPayable.local);
  if (!rounding || !payable || rounding->IsZero() || invoice.IsForeign()) return;
  if (invoice.Text(invoice.Root(), "LocalCurrencyCode") != "CZK") return;
  const Amount exact = *payable - *rounding;
  const Amount whole = exact.Rounded(0);
  if (rounding->Absolute() < Amount(1) && payable->Rounded(0) == *payable) return;
  invoice.Report(Rule::Rounding, Severity::Note, *invoice.Child(totals, kRounding.local), rounding->Text(),
                 (whole - exact).Text());
}

void CheckIn(const Invoice& invoice, const Element& totals, bool is_foreign) {
  if (!invoice.Subtotals().empty()) {
    for (const SumOfRows& names : kSums) CheckSum(invoice, totals, names, is_foreign);
  }
  CheckDifference(invoice, totals, kSumDifferenceBase, kSumBase, kSumClaimedBase, is_foreign);
  CheckDifference(invoice, totals, kDifferenceTotal, kTotal, kClaimedTotal, is_foreign);
  CheckPayable(invoice, totals, is_foreign);
}

}  // namespace

void CheckTotals(const Invoice& invoice) {
  const Element* const totals = invoice.Totals();
  if (totals == nullptr) return;
  CheckIn(invoice, *totals, false);
  if (invoice.IsForeign()) CheckIn(invoice, *totals, true);
  CheckRounding(invoice, *totals);
}

}  // namespace ravo::isdoc::detail
