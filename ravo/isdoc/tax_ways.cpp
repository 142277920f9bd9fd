#include "tax_ways.h"

#include "invoice.h"
#include <ravo/czech/vat_rates.h>

#include <algorithm>

namespace ravo::isdoc {
namespace detail {
namespace {

using czech::VatMethod;

bool IsLawfulOn(VatMethod method, const std::optional<czech::Day>& day) {
  return !day || czech::IsLawful(method, *day);
}

TaxWay WayOfRow(const Invoice& invoice, const Subtotal& subtotal) {
  const Element& row = *subtotal.element;
  const auto base = invoice.Number(row, kBase.local);
  const auto tax = invoice.Number(row, kTax.local);
  const auto total = invoice.Number(row, kTotal.local);
  if (!base || !tax || !total) return TaxWay::None;
  if (subtotal.percent.IsZero() || subtotal.reverse || !subtotal.is_taxed)
    return tax->IsZero() ? TaxWay::Untaxed : TaxWay::None;
  const TaxWay way =
      LawfulTaxes(*base, *total, subtotal.percent, invoice.TaxDay(), 2).WayOf(*tax, IsFromTotal(subtotal));
  if (way != TaxWay::None) return way;
  const auto lines = TaxOfLines(invoice, subtotal);
  return lines && *lines == *tax ? TaxWay::SumOfLines : TaxWay::None;
}

}  // namespace

LawfulTaxes::LawfulTaxes(const Amount& base, const Amount& total, const Amount& percent,
                         std::optional<czech::Day> day, int decimals) {
  const Amount whole = percent + Amount(100);
  Add(TaxWay::FromBase, (base * percent).Hundredth().Rounded(decimals));
  const auto from_total = (total * percent).DividedBy(whole, decimals);
  if (from_total && IsLawfulOn(VatMethod::FromTotal, day)) Add(TaxWay::FromTotal, *from_total);
  const auto coefficient = percent.DividedBy(whole, 4);
  if (coefficient && IsLawfulOn(VatMethod::FromTotalByCoefficient, day))
    Add(TaxWay::ByCoefficient, (total * *coefficient).Rounded(decimals));
}

TaxWay LawfulTaxes::WayOf(const Amount& tax, bool from_total) const noexcept {
  TaxWay way = TaxWay::None;
  for (const Tax& lawful : All()) {
    if (lawful.amount != tax) continue;
    if (way == TaxWay::None || (from_total && way == TaxWay::FromBase)) way = lawful.way;
  }
  return way;
}

bool IsFromTotal(const Subtotal& subtotal) noexcept {
  return !subtotal.lines.empty() && std::ranges::all_of(subtotal.lines, &Line::from_total);
}

std::optional<Amount> TaxOfLines(const Invoice& invoice, const Subtotal& subtotal) {
  Amount sum;
  for (const Line* const line : subtotal.lines) {
    const auto tax = invoice.Number(*line->element, "LineExtensionTaxAmount");
    if (!tax) return std::nullopt;
    sum += *tax;
  }
  return sum;
}

}  // namespace detail

std::vector<RateWay> TaxWays(const Document& document) {
  Findings none;
  const detail::Invoice invoice(document, none);
  std::vector<RateWay> ways;
  for (const detail::Subtotal& subtotal : invoice.Subtotals())
    ways.push_back({subtotal.element, detail::WayOfRow(invoice, subtotal)});
  return ways;
}

}  // namespace ravo::isdoc
