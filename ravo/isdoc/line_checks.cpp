#include "invoice.h"
#include "tax_ways.h"

#include <algorithm>
#include <string>

// Sums of a line: its tax, and its price by the unit.
namespace ravo::isdoc::detail {
namespace {

constexpr std::string_view kLineTax = "LineExtensionTaxAmount";
constexpr std::string_view kUnitPrice = "UnitPrice";
constexpr std::string_view kUnitTotal = "UnitPriceTaxInclusive";

Amount PercentOf(const Line& line) { return line.reverse || !line.is_taxed ? Amount() : line.percent; }

int WrittenDecimals(const Amount& amount) { return std::max(amount.Decimals(), 2); }

void CheckTotal(const Invoice& invoice, const Element& line) {
  const auto base = invoice.Number(line, kLineBase.local);
  const auto tax = invoice.Number(line, kLineTax);
  if (base && tax) invoice.Expect(Rule::LineTotal, line, kLineTotal.local, *base + *tax);
}

// Of the taxes that the lawful ways give, that which the line says is the right one.
void CheckTax(const Invoice& invoice, const Line& line) {
  const auto base = invoice.Number(*line.element, kLineBase.local);
  const auto tax = invoice.Number(*line.element, kLineTax);
  const auto total = invoice.Number(*line.element, kLineTotal.local);
  if (!base || !tax || !total) return;
  const LawfulTaxes lawful(*base, *total, PercentOf(line), invoice.TaxDay(), WrittenDecimals(*tax));
  if (lawful.WayOf(*tax) != TaxWay::None) return;
  const auto all = lawful.All();
  const Amount& expected = line.from_total && all.size() > 1 ? all[1].amount : all[0].amount;
  invoice.Expect(Rule::LineTax, *line.element, kLineTax, expected);
}

// A unit price in two of its parts: the amount of the line that it gives, before a discount if there is one.
struct Price {
  std::string_view price;
  std::string_view amount;
  std::string_view before_discount;
  Rule rule;
};

// What a price by the unit leaves to its rounding is a note: the price of the line is the right one.
void CheckPrice(const Invoice& invoice, const Element& line, const Price& names) {
  const auto quantity = invoice.Number(line, "InvoicedQuantity");
  const auto price = invoice.Number(line, names.price);
  const auto amount = invoice.Number(line, names.amount);
  const auto before = invoice.Number(line, names.before_discount);
  if (!quantity || !price || !amount) return;
  const Amount exact = *quantity * *price;
  const auto fits = [&](const Amount& sum) { return exact.Rounded(WrittenDecimals(sum)) == sum; };
  if (fits(*amount) || (before && fits(*before))) return;
  const std::string_view name = before ? names.before_discount : names.amount;
  const Amount& nearest = before ? *before : *amount;
  const Amount tolerance = quantity->Absolute() * price->HalfUnit() + Tolerance(1);
  invoice.Report(names.rule, GravityOf(exact - nearest, tolerance), *invoice.Child(line, name),
                 std::string(invoice.Text(line, name)), exact.Rounded(WrittenDecimals(nearest)).Text());
}

// The unit price that follows from the other is the one that the line's way of computing gives.
void CheckUnitTax(const Invoice& invoice, const Line& line) {
  const auto price = invoice.Number(*line.element, kUnitPrice);
  const auto with_tax = invoice.Number(*line.element, kUnitTotal);
  if (!price || !with_tax) return;
  const Amount whole = PercentOf(line) + Amount(100);
  const Amount exact = (*price * whole).Hundredth();
  const auto back = (*with_tax * Amount(100)).DividedBy(whole, WrittenDecimals(*price));
  const bool fits =
      line.from_total ? back && *back == *price : exact.Rounded(WrittenDecimals(*with_tax)) == *with_tax;
  if (fits) return;
  const Amount tolerance = with_tax->HalfUnit() + (price->HalfUnit() * whole).Hundredth();
  const std::string_view name = line.from_total ? kUnitPrice : kUnitTotal;
  const Amount expected = line.from_total && back ? *back : exact.Rounded(WrittenDecimals(*with_tax));
  invoice.Report(Rule::UnitPriceTax, GravityOf(exact - *with_tax, tolerance),
                 *invoice.Child(*line.element, name), std::string(invoice.Text(*line.element, name)),
                 expected.Text());
}

// What the line would be without its discount, without tax and with it.
void CheckDiscount(const Invoice& invoice, const Line& line) {
  const auto base = invoice.Number(*line.element, "LineExtensionAmountBeforeDiscount");
  const auto total = invoice.Number(*line.element, "LineExtensionAmountTaxInclusiveBeforeDiscount");
  if (!base || !total) return;
  const Amount tax = *total - *base;
  const LawfulTaxes lawful(*base, *total, PercentOf(line), invoice.TaxDay(), WrittenDecimals(tax));
  if (lawful.WayOf(tax) == TaxWay::None)
    invoice.Expect(Rule::DiscountTax, *line.element, "LineExtensionAmountTaxInclusiveBeforeDiscount",
                   *base + lawful.All()[0].amount);
}

// In the currency of the document there is no tax of the line: the rate alone tells it.
void CheckForeignTotal(const Invoice& invoice, const Line& line) {
  const auto base = invoice.Number(*line.element, kLineBase.foreign);
  const auto total = invoice.Number(*line.element, kLineTotal.foreign);
  if (!base || !total) return;
  const Amount tax = *total - *base;
  const LawfulTaxes lawful(*base, *total, PercentOf(line), invoice.TaxDay(), WrittenDecimals(tax));
  if (lawful.WayOf(tax) == TaxWay::None)
    invoice.Expect(Rule::LineTotal, *line.element, kLineTotal.foreign, *base + lawful.All()[0].amount);
}

}  // namespace

void CheckLines(const Invoice& invoice) {
  constexpr Price kPrices[] = {
      {kUnitPrice, kLineBase.local, "LineExtensionAmountBeforeDiscount", Rule::LinePrice},
      {kUnitTotal, kLineTotal.local, "LineExtensionAmountTaxInclusiveBeforeDiscount", Rule::LinePriceTaxed},
  };
  for (const Line& line : invoice.Lines()) {
    CheckTotal(invoice, *line.element);
    CheckTax(invoice, line);
    for (const Price& price : kPrices) CheckPrice(invoice, *line.element, price);
    CheckUnitTax(invoice, line);
    CheckDiscount(invoice, line);
    if (invoice.IsForeign()) CheckForeignTotal(invoice, line);
  }
}

}  // namespace ravo::isdoc::detail
