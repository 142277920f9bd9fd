#include "invoice.h"
#include <ravo/czech/ean.h>

#include <algorithm>
#include <optional>
#include <string>

// Goods of a line: their identifiers and batches.
namespace ravo::isdoc::detail {
namespace {

void CheckSellersNames(const Invoice& invoice, const Element& item) {
  const bool has_first = invoice.Child(item, "SellersItemIdentification") != nullptr;
  const Element* const second = invoice.Child(item, "SecondarySellersItemIdentification");
  const Element* const third = invoice.Child(item, "TertiarySellersItemIdentification");
  if (second != nullptr && !has_first)
    invoice.Report(Rule::SecondaryItem, Severity::Error, *second, {}, "SellersItemIdentification");
  if (third != nullptr && (second == nullptr || !has_first))
    invoice.Report(Rule::TertiaryItem, Severity::Error, *third, {},
                   has_first ? "SecondarySellersItemIdentification" : "SellersItemIdentification");
}

bool IsDigits(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

// A catalogue may have numbers of its own; digits of the length of an EAN are one.
void CheckEan(const Invoice& invoice, const Element& item) {
  const Element* const catalogue = invoice.Child(item, "CatalogueItemIdentification");
  const Element* const id = catalogue == nullptr ? nullptr : invoice.Child(*catalogue, "ID");
  if (id == nullptr) return;
  const std::string_view text = Trimmed(id->text);
  if (!IsDigits(text) || (text.size() != 8 && (text.size() < 12 || text.size() > 14))) return;
  const auto ean = czech::ParseEan(text);
  if (!ean) invoice.Refuse(Rule::EanWrong, *id, text, ean.code);
}

// A batch without a unit has that of its line.
void CheckUnits(const Invoice& invoice, const Line& line, const Element& batches) {
  const Element* const quantity = invoice.Child(*line.element, "InvoicedQuantity");
  std::string_view unit =
      quantity == nullptr ? std::string_view() : invoice.AttributeOf(*quantity, "unitCode");
  ForEachChild(invoice.Source(), batches, "StoreBatch", [&](const Element& batch) {
    const Element* const own = invoice.Child(batch, "Quantity");
    const std::string_view code = own == nullptr ? std::string_view() : invoice.AttributeOf(*own, "unitCode");
    if (code.empty()) return;
    if (unit.empty()) unit = code;
    if (code != unit)
      invoice.Report(Rule::BatchUnit, Severity::Error, *own, std::string(code), std::string(unit));
  });
}

void CheckBatchSum(const Invoice& invoice, const Line& line, const Element& batches) {
  Amount sum;
  bool is_whole = true;
  ForEachChild(invoice.Source(), batches, "StoreBatch", [&](const Element& batch) {
    const auto quantity = invoice.Number(batch, "Quantity");
    is_whole = is_whole && quantity;
    sum += quantity.value_or(Amount());
  });
  const auto quantity = invoice.Number(*line.element, "InvoicedQuantity");
  if (is_whole && quantity && *quantity != sum)
    invoice.Report(Rule::BatchSum, Severity::Error, *invoice.Child(*line.element, "InvoicedQuantity"),
                   quantity->Text(), sum.Text());
}

}  // namespace

void CheckItems(const Invoice& invoice) {
  for (const Line& line : invoice.Lines()) {
    const Element* const item = invoice.Child(*line.element, "Item");
    if (item == nullptr) continue;
    CheckSellersNames(invoice, *item);
    CheckEan(invoice, *item);
    const Element* const batches = invoice.Child(*item, "StoreBatches");
    if (batches == nullptr) continue;
    CheckUnits(invoice, line, *batches);
    CheckBatchSum(invoice, line, *batches);
  }
}

}  // namespace ravo::isdoc::detail
