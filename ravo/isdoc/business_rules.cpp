#include "invoice.h"

#include <algorithm>
#include <string>

// What the standard asks of a document as a whole, beside its schema.
namespace ravo::isdoc::detail {
namespace {

void CheckOriginal(const Invoice& invoice) {
  if (!invoice.IsCorrective()) return;
  const Element* const references = invoice.Child(invoice.Root(), "OriginalDocumentReferences");
  if (references != nullptr && invoice.Source().FirstChild(*references) != nullptr) return;
  const Element& at = references == nullptr ? invoice.Root() : *references;
  invoice.Report(Rule::OriginalMissing, Severity::Error, at, {}, "OriginalDocumentReference");
}

// Without taxes on the document there are none on its lines.
void CheckUntaxedLines(const Invoice& invoice) {
  if (invoice.IsTaxed()) return;
  for (const Line& line : invoice.Lines()) {
    const Element* const category = invoice.Child(*line.element, "ClassifiedTaxCategory");
    const Element* const taxed = category == nullptr ? nullptr : invoice.Child(*category, "VATApplicable");
    if (taxed != nullptr && Trimmed(taxed->text) != "false")
      invoice.Report(Rule::TaxedLine, Severity::Error, *taxed, std::string(Trimmed(taxed->text)), "false");
  }
}

void CheckSubTypeOrigin(const Invoice& invoice) {
  const Element* const origin = invoice.Child(invoice.Root(), "SubDocumentTypeOrigin");
  if (origin != nullptr && Trimmed(origin->text) != "CBA")
    invoice.Report(Rule::SubTypeOrigin, Severity::Error, *origin, std::string(Trimmed(origin->text)), "CBA");
}

// Receivers take a second document with the empty identifier for a correction of the first one.
void CheckUuids(const Invoice& invoice) {
  for (const Element& element : invoice.Source().Elements()) {
    if (element.name == "UUID" && Trimmed(element.text) == "00000000-0000-0000-0000-000000000000")
      invoice.Report(Rule::UuidEmpty, Severity::Error, element, std::string(Trimmed(element.text)));
  }
}

void CheckPreviews(const Invoice& invoice) {
  const Element* const list = invoice.Child(invoice.Root(), "SupplementsList");
  if (list == nullptr) return;
  int previews = 0;
  ForEachChild(invoice.Source(), *list, "Supplement", [&](const Element& supplement) {
    if (invoice.AttributeOf(supplement, "preview") != "true" || ++previews < 2) return;
    invoice.Report(Rule::PreviewTwice, Severity::Error, supplement, "true", "false");
  });
}

void CheckNotNegative(const Invoice& invoice, Rule rule, const Element& element, std::string_view name) {
  const auto amount = invoice.Number(element, name);
  if (amount && amount->IsNegative())
    invoice.Report(rule, Severity::Error, *invoice.Child(element, name), amount->Text(),
                   amount->Absolute().Text());
}

// That a credit note takes away is in its type: its amounts are positive.
void CheckSigns(const Invoice& invoice) {
  const Element* const totals = invoice.Totals();
  if (totals == nullptr) return;
  if (invoice.Type() == "2" || invoice.Type() == "6")
    CheckNotNegative(invoice, Rule::CreditNegative, *totals, kTotal.local);
  for (const MoneyName& name : {kSumClaimedBase, kClaimedTotal, kPaidDeposits})
    CheckNotNegative(invoice, Rule::DepositNegative, *totals, name.local);
}

// What has more digits than any amount takes no part in the sums.
void CheckRange(const Invoice& invoice) {
  for (const Element& element : invoice.Source().Elements()) {
    const std::string_view text = Trimmed(element.text);
    const bool may_be = element.first_child == kNone && text.size() > Amount::kMostDigits &&
                        (element.name.find("Amount") != std::string_view::npos ||
                         element.name.find("Price") != std::string_view::npos ||
                         element.name.ends_with("Quantity") || element.name.ends_with("CurrRate"));
    if (may_be && text.find_first_not_of("+-.0123456789") == std::string_view::npos && !Amount::Read(text))
      invoice.Report(Rule::AmountRange, Severity::Note, element, std::string(text));
  }
}

}  // namespace

void CheckBusinessRules(const Invoice& invoice) {
  CheckOriginal(invoice);
  CheckUntaxedLines(invoice);
  CheckSubTypeOrigin(invoice);
  CheckUuids(invoice);
  CheckPreviews(invoice);
  CheckSigns(invoice);
  CheckRange(invoice);
}

}  // namespace ravo::isdoc::detail
