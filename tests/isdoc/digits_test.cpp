#include "samples.h"
#include "support/effort.h"
#include "support/tried.h"
#include <ravo/isdoc/amount.h>
#include <ravo/isdoc/content.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

/// Every digit of every identifier and every amount, changed once, is reported.
namespace ravo::isdoc::digits_test {
namespace {

// Texts with digits that no other text of the document confirms.
struct Unconfirmed {
  std::string_view path;  // its end
  std::string_view reason;
};

constexpr Unconfirmed kUnconfirmed[] = {
    {"Invoice/DocumentType", "another type is another document"},
    {"Invoice/ID", "the document's own number has no check digit"},
    {"UUID", "any is as good as another"},
    {"IssueDate", "another day may be right"},
    {"TaxPointDate", "another day may be right"},
    {"PaymentDueDate", "another day may be right"},
    {"LastValidDate", "another day may be right"},
    {"ExpirationDate", "another day may be right"},
    {"VariableSymbol", "symbols have no check digit"},
    {"ConstantSymbol", "symbols have no check digit"},
    {"SpecificSymbol", "symbols have no check digit"},
    {"BuildingNumber", "an address has no check digit"},
    {"TargetConsolidator", "codes of consolidators are not all codes of banks"},
    {"ElectronicPossibilityAgreementReference", "free text"},
    {"AnonymousCustomerParty/ID", "no check digit"},
    {"PostalZone", "an address has no check digit"},
    {"Telephone", "a telephone number has no check digit"},
    {"Preformatted", "free text"},
    {"RegisterFileRef", "free text"},
    {"RegisterDate", "another day may be right"},
    {"Note", "free text"},
    {"VATNote", "free text"},
    {"Name", "free text"},
    {"Description", "free text"},
    {"CurrRate", "a digit of little weight is within the rounding of the amounts"},
    {"LocalReverseChargeCode", "another code may be right"},
    {"LocalReverseChargeQuantity", "its unit may differ from that of the line"},
    {"PaymentMeansCode", "another way to pay may be right"},
    {"VATCalculationMethod", "another way to compute may give the same"},
    {"Reference/ID", "numbers of other documents have no check digit"},
    {"SalesOrderID", "numbers of other documents have no check digit"},
    {"ExternalOrderID", "numbers of other documents have no check digit"},
    {"DocumentID", "numbers of other documents have no check digit"},
    {"ExternalOrderIssueDate", "another day may be right"},
    {"Deposit/ID", "numbers of other documents have no check digit"},
    {"InvoiceLine/ID", "numbers of lines have no check digit"},
    {"LineID", "numbers of lines have no check digit"},
    {"ParagraphID", "free text"},
    {"SellersItemIdentification/ID", "goods have numbers without check digit"},
    {"BuyersItemIdentification/ID", "goods have numbers without check digit"},
    {"ISDS_ID", "no check digit"},
    {"FileReference", "no check digit"},
    {"ReferenceNumber", "no check digit"},
    {"EgovClassifier", "no check digit"},
    {"DigestValue", "the supplement is not there"},
    {"Filename", "free text"},
    {"IssuingSystem", "free text"},
    {"UserID", "no check digit"},
    {"Extensions/Project/Number", "content of other programs"},
};

std::string PathTo(const Document& document, const Element& element) {
  const Element* const parent = document.Parent(element);
  return (parent == nullptr ? "" : PathTo(document, *parent) + "/") + std::string(element.name);
}

bool IsUnconfirmed(std::string_view path) {
  return std::ranges::any_of(kUnconfirmed, [&](const Unconfirmed& row) { return path.ends_with(row.path); });
}

bool IsAmount(std::string_view path) {
  const std::string_view name = path.substr(path.rfind('/') + 1);
  return name.find("Amount") != std::string_view::npos || name.starts_with("UnitPrice");
}

Findings FindingsOf(const std::string& text) {
  Findings findings;
  CheckContent(test::Parsed(text), findings);
  return findings;
}

// A unit price leaves a line to its own rounding, and a tax in two currencies each to its own.
bool MayBeNote(std::string_view path, const Amount& before, const Amount& after) {
  const bool is_price =
      path.find("/UnitPrice") != std::string_view::npos || path.ends_with("InvoicedQuantity");
  return is_price || (after - before).Absolute() <= Amount(5, 3);
}

// The place of a text in the document; its element tells equal texts apart.
struct Piece {
  std::string path;
  std::size_t at = 0;
  std::string text;
};

std::vector<Piece> PiecesOf(const std::string& text) {
  const Document document = test::Parsed(text);
  std::vector<std::size_t> lines{0};
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', end + 1))
    lines.push_back(end + 1);
  std::vector<Piece> pieces;
  for (const Element& element : document.Elements()) {
    if (element.first_child != kNone) continue;
    const std::size_t at = text.find('>', lines[element.place.line - 1] + element.place.column - 1) + 1;
    pieces.push_back({PathTo(document, element), at, std::string(element.text)});
    EXPECT_TRUE(element.text.empty() || text.substr(at).starts_with(element.text)) << pieces.back().path;
  }
  return pieces;
}

// What a change of one digit must give.
void ExpectReported(const Piece& piece, const std::string& text, std::size_t at, char digit) {
  std::string changed = text;
  changed[at] = digit;
  const Findings findings = FindingsOf(changed);
  const std::string value = changed.substr(piece.at, piece.text.size());
  ASSERT_FALSE(findings.empty()) << piece.path << ": " << piece.text << " became " << value;
  if (!IsAmount(piece.path)) return;
  const auto before = Amount::Read(piece.text);
  const auto after = Amount::Read(value);
  ASSERT_TRUE(before && after);
  const bool has_error = std::ranges::count(findings, Severity::Error, &Finding::severity) > 0;
  EXPECT_TRUE(has_error || MayBeNote(piece.path, *before, *after))
      << piece.path << ": " << piece.text << " became " << value;
}

std::size_t ChangeDigits(const std::string& text) {
  std::size_t tried = 0;
  for (const Piece& piece : PiecesOf(text)) {
    if (IsUnconfirmed(piece.path)) continue;
    for (std::size_t i = 0; i < piece.text.size(); ++i) {
      const char digit = piece.text[i];
      if (digit < '0' || digit > '9') continue;
      for (unsigned other = 0; other < 10; other += ravo::test::StepUnderSanitizers(4)) {
        if (other == static_cast<unsigned>(digit - '0')) continue;
        ExpectReported(piece, text, piece.at + i, static_cast<char>('0' + other));
        ++tried;
      }
    }
  }
  return tried;
}

TEST(Content, FindsNoFaultWithTheSamples) {
  for (const std::string& name : test::SoundSamples()) {
    for (const Finding& finding : FindingsOf(test::Sample(name)))
      ADD_FAILURE() << name << ":" << finding.place.line << ": " << RuleText(finding.rule) << ": "
                    << finding.found << ", expected " << finding.expected;
  }
}

TEST(Content, ReportsEveryChangedDigit) {
  std::size_t tried = 0;
  for (const std::string& name : test::SoundSamples()) {
    SCOPED_TRACE(name);
    tried += ChangeDigits(test::Sample(name));
  }
  EXPECT_GT(tried, static_cast<unsigned>(ravo::test::Rounds(15'000)));
  ravo::test::Tried("invoice_digits", static_cast<std::int64_t>(tried));
}

}  // namespace
}  // namespace ravo::isdoc::digits_test
