#include "document_file.h"
#include "isdoc_run.h"
#include "isdoc_work.h"
#include "json_text.h"
#include "printable.h"
#include "text.h"
#include "user_language.h"
#include "xml_tree_text.h"
#include "xml_work.h"
#include <ravo/isdoc/check.h>

#include <string>
#include <string_view>

namespace tool {
namespace {

namespace isdoc = ravo::isdoc;
namespace czech = ravo::czech;

std::string_view SeverityCode(isdoc::Severity severity) {
  return severity == isdoc::Severity::Note ? "note" : "error";
}

std::string SeverityText(isdoc::Severity severity) {
  return severity == isdoc::Severity::Note ? Text("note") : Text("error");
}

// What the document has at the place and what belongs there.
std::string Difference(const isdoc::Finding& finding) {
  std::string element(finding.element);
  const std::string found = OnOneLine(finding.found);
  const std::string expected = OnOneLine(finding.expected);
  if (!found.empty() && !expected.empty())
    return Text("{0} is {1}, expected {2}", {element, found, expected});
  if (!found.empty()) return Text("{0} is {1}", {element, found});
  if (!expected.empty()) return Text("{0}, expected {1}", {element, expected});
  return element;
}

// The country's rules begin their sentences with the verdict, which the rule has said.
std::string Why(czech::Code reason) {
  if (reason == czech::Code::Correct) return {};
  const std::string_view sentence = czech::Sentence(reason, UserLanguage());
  const std::size_t colon = sentence.find(": ");
  return ": " + std::string(colon == std::string_view::npos ? sentence : sentence.substr(colon + 2));
}

std::string InvoiceFindingText(const std::string& name, const isdoc::Finding& finding) {
  return ShownName(name) + ":" + std::to_string(finding.place.line) + ":" +
         std::to_string(finding.place.column) + ": " + SeverityText(finding.severity) + ": " +
         std::string(isdoc::RuleText(finding.rule)) + ": " +
         std::string(isdoc::Sentence(finding.rule, UserLanguage())) + Why(finding.reason) + " (" +
         Difference(finding) + ")\n";
}

Json OrNull(const std::string& text) { return text.empty() ? Json(nullptr) : Json(text); }

std::string FindingJson(const std::string& name, const isdoc::Finding& finding) {
  const bool has_reason = finding.reason != czech::Code::Correct;
  return JsonLine({{"file", name},
                   {"line", finding.place.line},
                   {"column", finding.place.column},
                   {"severity", SeverityCode(finding.severity)},
                   {"code", isdoc::RuleText(finding.rule)},
                   {"element", finding.element},
                   {"found", OrNull(finding.found)},
                   {"expected", OrNull(finding.expected)},
                   {"reason", has_reason ? Json(czech::CodeText(finding.reason)) : Json(nullptr)},
                   {"message", isdoc::Sentence(finding.rule, UserLanguage())}});
}

InvoiceResult CheckInvoice(const IsdocOptions& options, const std::string& name,
                           const isdoc::Document& invoice) {
  InvoiceResult result;
  for (const isdoc::Finding& finding : isdoc::Check(invoice)) {
    ++(finding.severity == isdoc::Severity::Note ? result.notes : result.errors);
    result.out += options.json ? FindingJson(name, finding) : InvoiceFindingText(name, finding);
  }
  return result;
}

std::string SummaryText(const InvoiceCounts& counts) {
  std::string text = TextOf(static_cast<std::int64_t>(counts.read), "one invoice", "{0} invoices") + ", " +
                     Text("with errors: {0}, with notes alone: {1}",
                          {std::to_string(counts.with_errors), std::to_string(counts.with_notes)});
  if (counts.skipped > 0) text += ", " + Text("other files: {0}", {std::to_string(counts.skipped)});
  return text + "\n";
}

}  // namespace

void CheckInvoices(const IsdocOptions& options, Outcome& outcome) {
  const InvoiceCounts counts =
      RunOverInvoices(options.files, outcome, [&](const std::string& name, const isdoc::Document& invoice) {
        return CheckInvoice(options, name, invoice);
      });
  if (!options.json) AddOutput(outcome, SummaryText(counts));
  if (counts.with_errors > 0 || (options.strict && counts.with_notes > 0))
    outcome.answer = std::max(outcome.answer, Answer::No);
}

}  // namespace tool
