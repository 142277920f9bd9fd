#include "invoice.h"

#include <algorithm>
#include <string>

// Amounts in the currency of the books and in a foreign one: both or one, and the rate between them.
namespace ravo::isdoc::detail {
namespace {

const MoneyName* Named(std::string_view name, bool is_foreign) {
  const auto* const found =
      std::ranges::find_if(kMoneyNames, [&](const MoneyName& names) { return names.In(is_foreign) == name; });
  return found == std::end(kMoneyNames) ? nullptr : found;
}

void CheckForeignAmount(const Invoice& invoice, const Element& amount) {
  const MoneyName* const name = Named(amount.name, false);
  const Element* const parent = invoice.Source().Parent(amount);
  if (name == nullptr || parent == nullptr || invoice.Child(*parent, name->foreign) != nullptr) return;
  invoice.Report(Rule::ForeignAmountMissing, Severity::Error, amount, {}, std::string(name->foreign));
}

void CheckLocalAmount(const Invoice& invoice, const Element& amount) {
  if (Named(amount.name, true) == nullptr) return;
  invoice.Report(Rule::ForeignAmountUnexpected, Severity::Error, amount, std::string(Trimmed(amount.text)));
}

void CheckAmounts(const Invoice& invoice) {
  for (const Element& element : invoice.Source().Elements()) {
    if (element.name.find("Amount") == std::string_view::npos) continue;
    if (invoice.IsForeign())
      CheckForeignAmount(invoice, element);
    else
      CheckLocalAmount(invoice, element);
  }
}

void CheckRatesAreOne(const Invoice& invoice) {
  for (const std::string_view name : {"CurrRate", "RefCurrRate"}) {
    const auto rate = invoice.Number(invoice.Root(), name);
    if (rate && *rate != Amount(1))
      invoice.Report(Rule::LocalRate, Severity::Error, *invoice.Child(invoice.Root(), name),
                     std::string(invoice.Text(invoice.Root(), name)), "1");
  }
}

// Checks amounts in two currencies by the rate of the document.
class RateChecker {
 public:
  RateChecker(const Invoice& invoice, const Amount& rate, const Amount& reference)
      : invoice_(invoice), rate_(rate), reference_(reference) {}

  // `count`: of how many amounts, each converted by itself, the sum may be. A tax may be computed in both
  // currencies, and each then has a rounding of its own.
  void Check(const Element& element, const MoneyName& name, std::size_t count, bool has_tax) const {
    const auto local = invoice_.Number(element, name.local);
    const auto foreign = invoice_.Number(element, name.foreign);
    if (!local || !foreign) return;
    const Amount exact = *foreign * rate_;
    const Amount difference = *local * reference_ - exact;
    const Amount rounding = local->HalfUnit() * reference_.Absolute();
    const Amount foreign_rounding = foreign->HalfUnit() * rate_.Absolute();
    if (difference.Absolute() <= (has_tax ? rounding + foreign_rounding : rounding)) return;
    const Amount tolerance = Tolerance(count + 1) * reference_.Absolute() + foreign_rounding;
    const auto expected = exact.DividedBy(reference_, 2);
    invoice_.Report(Rule::Conversion, GravityOf(difference, tolerance), *invoice_.Child(element, name.local),
                    std::string(invoice_.Text(element, name.local)), expected ? expected->Text() : "");
  }

 private:
  const Invoice& invoice_;
  const Amount& rate_;
  const Amount& reference_;
};

// Deposits were converted by the rates of their own days, and so was what is less by them.
void CheckConversions(const Invoice& invoice) {
  const auto rate = invoice.Number(invoice.Root(), "CurrRate");
  const auto reference = invoice.Number(invoice.Root(), "RefCurrRate");
  if (!rate || !reference || reference->IsZero()) return;
  const RateChecker checker(invoice, *rate, *reference);
  for (const Line& line : invoice.Lines()) {
    checker.Check(*line.element, kLineBase, 1, false);
    checker.Check(*line.element, kLineTotal, 1, true);
  }
  for (const Subtotal& subtotal : invoice.Subtotals()) {
    checker.Check(*subtotal.element, kBase, subtotal.lines.size(), false);
    for (const MoneyName& name : {kTax, kTotal})
      checker.Check(*subtotal.element, name, subtotal.lines.size(), true);
  }
  if (const Element* const tax = invoice.Child(invoice.Root(), "TaxTotal"))
    checker.Check(*tax, kTax, invoice.Lines().size(), true);
  if (const Element* const totals = invoice.Totals()) {
    checker.Check(*totals, kSumBase, invoice.Lines().size(), false);
    checker.Check(*totals, kTotal, invoice.Lines().size(), true);
  }
}

void CheckForeign(const Invoice& invoice) {
  const Element& foreign = *invoice.Child(invoice.Root(), "ForeignCurrencyCode");
  const std::string_view code = Trimmed(foreign.text);
  if (code == invoice.Text(invoice.Root(), "LocalCurrencyCode"))
    invoice.Report(Rule::SameCurrency, Severity::Error, foreign, std::string(code));
  CheckConversions(invoice);
}

}  // namespace

void CheckCurrencies(const Invoice& invoice) {
  CheckAmounts(invoice);
  if (invoice.IsForeign())
    CheckForeign(invoice);
  else
    CheckRatesAreOne(invoice);
}

}  // namespace ravo::isdoc::detail
