#include "invoice.h"

#include <string>

// Days that do not follow each other as they should, or are missing.
namespace ravo::isdoc::detail {
namespace {

// A tax document is issued within fifteen days of the tax point (law 235/2004, section 28).
constexpr int kDaysToIssue = 15;

std::string Written(const Invoice& invoice, const Element& element, std::string_view name) {
  return std::string(invoice.Text(element, name));
}

void CheckTaxPoint(const Invoice& invoice, czech::Day issued) {
  const Element* const point = invoice.Child(invoice.Root(), "TaxPointDate");
  const bool needs = invoice.IsTaxed() && !invoice.IsCorrective() && invoice.Type() != "4";
  if (point == nullptr && needs)
    invoice.Report(Rule::TaxPointMissing, Severity::Note, invoice.Root(), {}, "TaxPointDate");
  if (point != nullptr && !invoice.IsTaxed())
    invoice.Report(Rule::TaxPointUnexpected, Severity::Note, *point, std::string(Trimmed(point->text)));
  const auto day = invoice.Day(invoice.Root(), "TaxPointDate");
  if (!day || !needs) return;
  const Rule rule = issued < *day ? Rule::TaxPointLater : Rule::IssuedLate;
  if (issued < *day || issued.number - day->number > kDaysToIssue)
    invoice.Report(rule, Severity::Note, *point, Written(invoice, invoice.Root(), "TaxPointDate"),
                   Written(invoice, invoice.Root(), "IssueDate"));
}

void CheckDue(const Invoice& invoice, czech::Day issued) {
  const Element* const means = invoice.Child(invoice.Root(), "PaymentMeans");
  if (means == nullptr) return;
  ForEachChild(invoice.Source(), *means, "Payment", [&](const Element& payment) {
    const Element* const details = invoice.Child(payment, "Details");
    const auto due = details == nullptr ? std::nullopt : invoice.Day(*details, "PaymentDueDate");
    if (due && *due < issued)
      invoice.Report(Rule::DueBeforeIssue, Severity::Note, *invoice.Child(*details, "PaymentDueDate"),
                     Written(invoice, *details, "PaymentDueDate"),
                     Written(invoice, invoice.Root(), "IssueDate"));
  });
}

// What the document refers to was there before it.
void CheckReferences(const Invoice& invoice, czech::Day issued, const char* all, const char* one, Rule rule,
                     Severity severity) {
  const Element* const references = invoice.Child(invoice.Root(), all);
  if (references == nullptr) return;
  ForEachChild(invoice.Source(), *references, one, [&](const Element& reference) {
    const auto day = invoice.Day(reference, "IssueDate");
    if (day && *day > issued)
      invoice.Report(rule, severity, *invoice.Child(reference, "IssueDate"),
                     Written(invoice, reference, "IssueDate"), Written(invoice, invoice.Root(), "IssueDate"));
  });
}

}  // namespace

void CheckDates(const Invoice& invoice) {
  const auto issued = invoice.IssueDay();
  if (!issued) return;
  CheckTaxPoint(invoice, *issued);
  CheckDue(invoice, *issued);
  CheckReferences(invoice, *issued, "OriginalDocumentReferences", "OriginalDocumentReference",
                  Rule::OriginalLater, Severity::Error);
  CheckReferences(invoice, *issued, "OrderReferences", "OrderReference", Rule::ReferenceLater,
                  Severity::Note);
  CheckReferences(invoice, *issued, "DeliveryNoteReferences", "DeliveryNoteReference", Rule::ReferenceLater,
                  Severity::Note);
  CheckReferences(invoice, *issued, "ContractReferences", "ContractReference", Rule::ReferenceLater,
                  Severity::Note);
}

}  // namespace ravo::isdoc::detail
