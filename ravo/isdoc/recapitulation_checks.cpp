#include "invoice.h"
#include "tax_ways.h"

#include <algorithm>
#include <optional>
#include <string>

// The recapitulation: rows within themselves, with the lines of their rate, and the tax by every lawful way.
namespace ravo::isdoc::detail {
namespace {

// One amount is the sum of two others, or their difference.
struct Equation {
  Rule rule;
  MoneyName result;
  MoneyName first;
  MoneyName second;
  bool subtracts;
};

constexpr Equation kRowEquations[] = {
    {Rule::RateTotal, kTotal, kBase, kTax, false},
    {Rule::RateTotal, kClaimedTotal, kClaimedBase, kClaimedTax, false},
    {Rule::RateTotal, kDifferenceTotal, kDifferenceBase, kDifferenceTax, false},
    {Rule::RateDifference, kDifferenceBase, kBase, kClaimedBase, true},
    {Rule::RateDifference, kDifferenceTax, kTax, kClaimedTax, true},
    {Rule::RateDifference, kDifferenceTotal, kTotal, kClaimedTotal, true},
};

void CheckEquation(const Invoice& invoice, const Element& row, const Equation& equation, bool is_foreign) {
  const auto first = invoice.Number(row, equation.first.In(is_foreign));
  const auto second = invoice.Number(row, equation.second.In(is_foreign));
  if (!first || !second) return;
  const Amount expected = equation.subtracts ? *first - *second : *first + *second;
  invoice.Expect(equation.rule, row, equation.result.In(is_foreign), expected);
}

std::optional<Amount> SumOf(const Invoice& invoice, const Subtotal& subtotal, std::string_view name) {
  Amount sum;
  for (const Line* const line : subtotal.lines) {
    const auto amount = invoice.Number(*line->element, name);
    if (!amount) return std::nullopt;
    sum += *amount;
  }
  return sum;
}

// A row against the lines of its rate. Bases or totals must agree, as the tax is computed from the one or the
// other; what is left to the rounding of each line is a note.
void CheckSums(const Invoice& invoice, const Subtotal& subtotal, bool is_foreign) {
  const auto base = SumOf(invoice, subtotal, kLineBase.In(is_foreign));
  const auto total = SumOf(invoice, subtotal, kLineTotal.In(is_foreign));
  const std::size_t count = subtotal.lines.size();
  const auto agrees = [&](std::string_view name, const std::optional<Amount>& sum) {
    const auto amount = invoice.Number(*subtotal.element, name);
    return !amount || !sum || *amount == *sum;
  };
  const bool fits = agrees(kBase.In(is_foreign), base) || agrees(kTotal.In(is_foreign), total);
  // The tax of the row is rounded too.
  const std::size_t roundings = fits ? count + 1 : count;
  if (base) invoice.Expect(Rule::SumOfLines, *subtotal.element, kBase.In(is_foreign), *base, roundings);
  if (total) invoice.Expect(Rule::SumOfTotals, *subtotal.element, kTotal.In(is_foreign), *total, roundings);
}

std::string Joined(const LawfulTaxes& lawful, const std::optional<Amount>& lines) {
  std::string text;
  const auto add = [&](const Amount& amount) {
    if (text.find(amount.Text()) == std::string::npos) text += (text.empty() ? "" : ", ") + amount.Text();
  };
  for (const auto& tax : lawful.All()) add(tax.amount);
  if (lines) add(*lines);
  return text;
}

Severity GravityOfTax(const LawfulTaxes& lawful, const Amount& tax, std::size_t count) {
  const bool is_near = std::ranges::any_of(lawful.All(), [&](const LawfulTaxes::Tax& other) {
    return GravityOf(other.amount - tax, Tolerance(count)) == Severity::Note;
  });
  return is_near ? Severity::Note : Severity::Error;
}

// The way that fits, named where another one would give another tax.
std::optional<Rule> NamedWay(TaxWay way) {
  switch (way) {
    case TaxWay::FromBase:
      return Rule::TaxFromBase;
    case TaxWay::FromTotal:
      return Rule::TaxFromTotal;
    case TaxWay::ByCoefficient:
      return Rule::TaxByCoefficient;
    case TaxWay::SumOfLines:
      return Rule::TaxOfLines;
    default:
      return std::nullopt;
  }
}

// In the currency of the books the tax of a document in another may be the converted one.
bool IsConverted(const Invoice& invoice, const Element& row, const Amount& tax) {
  const auto rate = invoice.Number(invoice.Root(), "CurrRate");
  const auto reference = invoice.Number(invoice.Root(), "RefCurrRate");
  const auto foreign = invoice.Number(row, kTax.foreign);
  if (!rate || !reference || !foreign) return false;
  const auto converted = (*foreign * *rate).DividedBy(*reference, 2);
  return converted && *converted == tax;
}

void CheckTaxOfRow(const Invoice& invoice, const Subtotal& subtotal, bool is_foreign) {
  const Element& row = *subtotal.element;
  const auto base = invoice.Number(row, kBase.In(is_foreign));
  const auto tax = invoice.Number(row, kTax.In(is_foreign));
  const auto total = invoice.Number(row, kTotal.In(is_foreign));
  if (!base || !tax || !total || subtotal.reverse || !subtotal.is_taxed || subtotal.percent.IsZero()) return;
  const LawfulTaxes lawful(*base, *total, subtotal.percent, invoice.TaxDay(), 2);
  const auto lines = is_foreign || subtotal.lines.empty() ? std::nullopt : TaxOfLines(invoice, subtotal);
  const Element& at = *invoice.Child(row, kTax.In(is_foreign));
  TaxWay way = lawful.WayOf(*tax, IsFromTotal(subtotal));
  const bool differs = lines && *lines != *tax;
  if (way != TaxWay::None && !differs) return;
  if (!is_foreign && way == TaxWay::None && IsConverted(invoice, row, *tax)) return;
  if (way == TaxWay::None && lines && !differs) way = TaxWay::SumOfLines;
  const std::size_t count = subtotal.lines.size();
  if (const auto named = NamedWay(way)) {
    const Amount& other = way == TaxWay::SumOfLines ? lawful.All()[0].amount : *lines;
    return invoice.Report(*named, GravityOf(other - *tax, Tolerance(count + 1)), at, tax->Text(),
                          other.Text());
  }
  invoice.Report(Rule::TaxOfRate, GravityOfTax(lawful, *tax, count), at, tax->Text(), Joined(lawful, lines));
}

bool IsTwice(const Invoice& invoice, const Subtotal& subtotal) {
  return std::ranges::count_if(invoice.Subtotals(), [&](const Subtotal& other) {
           return other.percent == subtotal.percent && other.reverse == subtotal.reverse &&
                  other.is_taxed == subtotal.is_taxed;
         }) > 1;
}

void CheckSubtotal(const Invoice& invoice, const Subtotal& subtotal, bool is_foreign) {
  for (const Equation& equation : kRowEquations)
    CheckEquation(invoice, *subtotal.element, equation, is_foreign);
  if (IsTwice(invoice, subtotal)) {
    if (!is_foreign)
      invoice.Report(Rule::RateTwice, Severity::Note, *subtotal.element, subtotal.percent.Text());
    return;
  }
  CheckSums(invoice, subtotal, is_foreign);
  CheckTaxOfRow(invoice, subtotal, is_foreign);
}

void CheckTaxTotal(const Invoice& invoice, bool is_foreign) {
  const Element* const tax = invoice.Child(invoice.Root(), "TaxTotal");
  if (tax == nullptr) return;
  Amount sum;
  for (const Subtotal& subtotal : invoice.Subtotals())
    sum += invoice.Number(*subtotal.element, kTax.In(is_foreign)).value_or(Amount());
  invoice.Expect(Rule::TaxTotal, *tax, kTax.In(is_foreign), sum);
}

}  // namespace

void CheckRecapitulation(const Invoice& invoice) {
  for (const bool is_foreign : {false, true}) {
    if (is_foreign && !invoice.IsForeign()) break;
    for (const Subtotal& subtotal : invoice.Subtotals()) CheckSubtotal(invoice, subtotal, is_foreign);
    CheckTaxTotal(invoice, is_foreign);
  }
}

}  // namespace ravo::isdoc::detail
