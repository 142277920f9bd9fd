#include "invoice.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>

namespace ravo::isdoc::detail {
namespace {

bool IsTrue(std::string_view text) { return text == "true"; }

// A number of exactly that many digits.
std::optional<int> DigitsIn(std::string_view text) {
  int value = 0;
  const char* const end = text.data() + text.size();
  const bool is_number = text.find_first_not_of("0123456789") == std::string_view::npos;
  if (!is_number || std::from_chars(text.data(), end, value).ptr != end) return std::nullopt;
  return value;
}

// A date as XML has it; the time zone that may follow does not matter.
std::optional<czech::Day> DayIn(std::string_view text) {
  if (text.size() < 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = DigitsIn(text.substr(0, 4));
  const auto month = DigitsIn(text.substr(5, 2));
  const auto day = DigitsIn(text.substr(8, 2));
  if (!year || !month || !day || !czech::Exists({*year, *month, *day})) return std::nullopt;
  return czech::DayOf({*year, *month, *day});
}

}  // namespace

Amount Tolerance(std::size_t count) noexcept {
  return Amount(5, 3) * Amount(static_cast<std::int64_t>(std::max<std::size_t>(count, 1)));
}

Severity GravityOf(const Amount& difference, const Amount& tolerance) noexcept {
  return difference.Absolute() <= tolerance ? Severity::Note : Severity::Error;
}

Invoice::Invoice(const isdoc::Document& document, Findings& findings)
    : document_(document),
      findings_(findings),
      type_(Text(document.Root(), "DocumentType")),
      is_foreign_(document.Child(document.Root(), "ForeignCurrencyCode") != nullptr),
      is_taxed_(Text(document.Root(), "VATApplicable") != "false"),
      totals_(document.Child(document.Root(), "LegalMonetaryTotal")) {
  ReadSubtotals();
  ReadLines();
}

std::optional<czech::Day> Invoice::TaxDay() const noexcept {
  const auto day = Day(Root(), "TaxPointDate");
  return day ? day : IssueDay();
}

std::string_view Invoice::Text(const Element& element, std::string_view name) const noexcept {
  const Element* const child = Child(element, name);
  return child == nullptr ? std::string_view() : Trimmed(child->text);
}

std::optional<Amount> Invoice::Number(const Element& element, std::string_view name) const noexcept {
  const Element* const child = Child(element, name);
  return child == nullptr ? std::nullopt : Amount::Read(child->text);
}

std::optional<czech::Day> Invoice::Day(const Element& element, std::string_view name) const noexcept {
  return DayIn(Text(element, name));
}

std::string_view Invoice::AttributeOf(const Element& element, std::string_view name) const noexcept {
  for (const Attribute& attribute : document_.Attributes(element)) {
    if (attribute.name == name) return Trimmed(attribute.value);
  }
  return {};
}

void Invoice::Report(Rule rule, Severity severity, const Element& element, std::string found,
                     std::string expected) const {
  findings_.push_back(
      {rule, severity, element.place, element.name, std::move(found), std::move(expected), {}});
}

void Invoice::Refuse(Rule rule, const Element& element, std::string_view found, czech::Code reason) const {
  findings_.push_back({rule, Severity::Error, element.place, element.name, std::string(found), {}, reason});
}

void Invoice::Expect(Rule rule, const Element& element, std::string_view name, const Amount& expected,
                     std::size_t count) const {
  const Element* const child = Child(element, name);
  const auto found = child == nullptr ? std::nullopt : Amount::Read(child->text);
  if (!found || *found == expected) return;
  const Severity severity = GravityOf(*found - expected, Tolerance(count));
  Report(rule, severity, *child, std::string(Trimmed(child->text)), expected.Text());
}

void Invoice::ReadSubtotals() {
  const Element* const tax = Child(Root(), "TaxTotal");
  if (tax == nullptr) return;
  ForEachChild(document_, *tax, "TaxSubTotal", [&](const Element& element) {
    const Element* const category = Child(element, "TaxCategory");
    if (category == nullptr) return;
    Subtotal subtotal;
    subtotal.element = &element;
    subtotal.percent = Number(*category, "Percent").value_or(Amount());
    subtotal.reverse = IsTrue(Text(*category, "LocalReverseChargeFlag"));
    subtotal.is_taxed = is_taxed_ && Text(*category, "VATApplicable") != "false";
    subtotals_.push_back(std::move(subtotal));
  });
  LimitSubtotals(*tax);
}

// There are a few rates; rows without end would be compared with each other without end.
void Invoice::LimitSubtotals(const Element& tax) {
  constexpr std::size_t kMost = 100;
  if (subtotals_.size() <= kMost) return;
  Report(Rule::RateTwice, Severity::Note, tax, std::to_string(subtotals_.size()));
  subtotals_.clear();
}

void Invoice::ReadLines() {
  const Element* const all = Child(Root(), "InvoiceLines");
  if (all == nullptr) return;
  ForEachChild(document_, *all, "InvoiceLine", [&](const Element& element) {
    const Element* const category = Child(element, "ClassifiedTaxCategory");
    Line line;
    line.element = &element;
    line.is_taxed = is_taxed_;
    if (category != nullptr) {
      line.percent = Number(*category, "Percent").value_or(Amount());
      line.from_total = Text(*category, "VATCalculationMethod") == "1";
      line.reverse = Child(*category, "LocalReverseCharge") != nullptr;
      line.is_taxed = is_taxed_ && Text(*category, "VATApplicable") != "false";
    }
    lines_.push_back(line);
  });
  for (Line& line : lines_) {
    Subtotal* const subtotal = SubtotalOf(line);
    line.has_row = subtotal != nullptr;
    if (subtotal != nullptr) subtotal->lines.push_back(&line);
  }
}

// The row of the rate of a line; of several the one that agrees in the rest.
Subtotal* Invoice::SubtotalOf(const Line& line) noexcept {
  Subtotal* best = nullptr;
  int most = -1;
  for (Subtotal& subtotal : subtotals_) {
    const int agreed =
        (subtotal.reverse == line.reverse ? 2 : 0) + (subtotal.is_taxed == line.is_taxed ? 1 : 0);
    if (subtotal.percent != line.percent || agreed <= most) continue;
    best = &subtotal;
    most = agreed;
  }
  return best;
}

}  // namespace ravo::isdoc::detail
