#include "samples.h"
#include <ravo/isdoc/check.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::isdoc::check_test {
namespace {

struct Row {
  Rule rule;
  Severity severity;
  std::uint32_t line;
  std::uint32_t column;
  std::string_view element;
  std::string_view found;
  std::string_view expected;
};

void ExpectFindings(const Findings& findings, const std::vector<Row>& rows) {
  ASSERT_EQ(findings.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Finding& finding = findings[i];
    const Row& row = rows[i];
    EXPECT_EQ(RuleText(finding.rule), RuleText(row.rule)) << i;
    EXPECT_EQ(finding.severity, row.severity) << i;
    EXPECT_EQ(finding.place, (Place{row.line, row.column})) << i;
    EXPECT_EQ(finding.element, row.element) << i;
    EXPECT_EQ(finding.found, row.found) << i;
    EXPECT_EQ(finding.expected, row.expected) << i;
  }
}

// The mistakes of the file, computed by hand: 384.00 at 12 % are 46.08, and the check digits of the IBAN are
// 98 - 08000000001234500002123500 mod 97.
TEST(Check, FindsTheMistakesOfTheSample) {
  const std::string text = test::Sample("mistakes.isdoc");
  const Document document = test::Parsed(text);
  const Findings findings = Check(document);
  ExpectFindings(
      findings,
      {{Rule::IcoWrong, Severity::Error, 50, 9, "ID", "09900290", ""},
       {Rule::LineTotal, Severity::Error, 99, 7, "LineExtensionAmountTaxInclusive", "430.08", "430.80"},
       {Rule::LineTax, Severity::Error, 100, 7, "LineExtensionTaxAmount", "46.80", "46.08"},
       {Rule::TaxFromBase, Severity::Error, 149, 7, "TaxAmount", "46.08", "46.80"},
       {Rule::Payable, Severity::Error, 174, 5, "PayableAmount", "2679.00", "2679.94"},
       {Rule::DueBeforeIssue, Severity::Note, 181, 9, "PaymentDueDate", "2026-10-16", "2026-11-02"},
       {Rule::AccountIban, Severity::Error, 185, 9, "IBAN", "CZ5708000000191234500002",
        "CZ7108000000001234500002"}});
  EXPECT_EQ(findings.at(0).reason, czech::Code::IcoChecksum);
  EXPECT_EQ(findings.at(1).reason, czech::Code::Correct);
}

// Structure and content are told together, by their place.
TEST(Check, TellsStructureAndContentInTheOrderOfTheDocument) {
  std::string text = test::Sample("mistakes.isdoc");
  const auto change = [&](std::string_view from, std::string_view to) {
    text.replace(text.find(from), from.size(), to);
  };
  change("<VATApplicable>true", "<VATApplicable>ano");
  change("<BankCode>0800</BankCode>", "<BankCode>0800</BankCode><Unknown/>");
  const Findings findings = Check(test::Parsed(text));
  const auto line = [&](Rule rule) {
    const auto found = std::ranges::find(findings, rule, &Finding::rule);
    return found == findings.end() ? 0 : found->place.line;
  };
  EXPECT_EQ(line(Rule::BooleanForm), 9U);
  EXPECT_EQ(line(Rule::IcoWrong), 50U);
  EXPECT_EQ(line(Rule::ElementUnexpected), 183U);
  EXPECT_EQ(line(Rule::AccountIban), 185U);
  EXPECT_TRUE(std::ranges::is_sorted(findings, {}, [](const Finding& finding) {
    return std::pair(finding.place.line, finding.place.column);
  }));
}

TEST(Check, FindsNoErrorInSoundSamples) {
  for (const std::string& name : test::SoundSamples()) {
    const std::string text = test::Sample(name);
    const Document document = test::Parsed(text);
    for (const Finding& finding : Check(document)) EXPECT_NE(finding.severity, Severity::Error) << name;
  }
}

TEST(Check, OfAnotherDocumentSaysThatItIsNone) {
  const Findings findings = Check(test::Parsed("<html/>"));
  ASSERT_FALSE(findings.empty());
  EXPECT_EQ(findings.front().rule, Rule::RootUnknown);
}

}  // namespace
}  // namespace ravo::isdoc::check_test
