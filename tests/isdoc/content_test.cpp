#include "samples.h"
#include <ravo/isdoc/content.h>
#include <ravo/isdoc/tax_ways.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

/// Each rule of the content finds what it is for, in a sample with which there is no fault otherwise.
namespace ravo::isdoc::content_test {
namespace {

using Changes = std::vector<std::pair<std::string_view, std::string_view>>;

struct Row {
  Rule rule;
  Severity severity;
  std::string_view sample;
  Changes changes;            // first occurrences
  std::string_view expected;  // of the finding; "*" if it does not matter
};

constexpr auto kError = Severity::Error;
constexpr auto kNote = Severity::Note;

const Row kRows[] = {
    {Rule::OriginalMissing,
     kError,
     "domestic.isdoc",
     {{"<DocumentType>1", "<DocumentType>3"}},
     "OriginalDocumentReference"},
    {Rule::ForeignAmountMissing,
     kError,
     "foreign-currency.isdoc",
     {{"<PayableAmountCurr>265.72</PayableAmountCurr>", ""}},
     "PayableAmountCurr"},
    {Rule::ForeignAmountUnexpected,
     kError,
     "domestic.isdoc",
     {{"<PayableAmount>", "<PayableAmountCurr>1</PayableAmountCurr><PayableAmount>"}},
     ""},
    {Rule::LocalRate, kError, "domestic.isdoc", {{"<CurrRate>1<", "<CurrRate>25.1<"}}, "1"},
    {Rule::LocalRate, kError, "domestic.isdoc", {{"<RefCurrRate>1<", "<RefCurrRate>100<"}}, "1"},
    {Rule::SameCurrency, kError, "foreign-currency.isdoc", {{"EUR", "CZK"}}, ""},
    {Rule::TaxedLine,
     kError,
     "not-a-payer.isdoc",
     {{"<VATCalculationMethod>0</VATCalculationMethod>\n        <VATApplicable>false",
       "<VATCalculationMethod>0</VATCalculationMethod>\n        <VATApplicable>true"}},
     "false"},
    {Rule::BatchUnit,
     kError,
     "references.isdoc",
     {{"<Quantity unitCode=\"ks\">20", "<Quantity unitCode=\"kg\">20"}},
     "ks"},
    {Rule::BatchSum,
     kError,
     "references.isdoc",
     {{"<Quantity unitCode=\"ks\">20", "<Quantity unitCode=\"ks\">19"}},
     "29.00"},
    {Rule::SecondaryItem,
     kError,
     "domestic.isdoc",
     {{"<Description>Rohlík tukový</Description>",
       "<SecondarySellersItemIdentification><ID>2</ID></SecondarySellersItemIdentification>"}},
     "SellersItemIdentification"},
    {Rule::TertiaryItem,
     kError,
     "references.isdoc",
     {{"<StoreBatches>",
       "<TertiarySellersItemIdentification><ID>2</ID></TertiarySellersItemIdentification><StoreBatches>"}},
     "SecondarySellersItemIdentification"},
    {Rule::SubTypeOrigin,
     kError,
     "domestic.isdoc",
     {{"<ID>20260101",
       "<SubDocumentType>1</SubDocumentType><SubDocumentTypeOrigin>ABC</SubDocumentTypeOrigin><ID>20260101"}},
     "CBA"},
    {Rule::UuidEmpty,
     kError,
     "domestic.isdoc",
     {{"B3F26974-85BD-526B-B745-9EEDB75B74AA", "00000000-0000-0000-0000-000000000000"}},
     ""},
    {Rule::PreviewTwice,
     kError,
     "references.isdoc",
     {{"<SupplementsList>", "<SupplementsList><Supplement preview=\"true\"/>"}},
     "false"},
    {Rule::CreditNegative,
     kError,
     "credit-note.isdoc",
     {{"    <TaxInclusiveAmount>217.56", "    <TaxInclusiveAmount>-217.56"},
      {"<TaxExclusiveAmount>179.80</TaxExclusiveAmount>\n    <TaxInclusiveAmount>",
       "<TaxExclusiveAmount>179.80</TaxExclusiveAmount>\n    <TaxInclusiveAmount>-"}},
     "217.56"},
    {Rule::DepositNegative, kError, "taxed-deposits.isdoc", {{"<DepositAmount>", "<DepositAmount>-"}}, "*"},
    {Rule::SupplierTaxNumber, kNote, "domestic.isdoc", {{"<TaxScheme>VAT", "<TaxScheme>TIN"}}, "CompanyID"},
    {Rule::ReverseTaxNumber,
     kError,
     "references.isdoc",
     {{"<AccountingCustomerParty>", "<AccountingCustomerParty><Party/>"}},
     "CompanyID"},
    {Rule::SupplierCountry,
     kNote,
     "domestic.isdoc",
     {{"<IdentificationCode>CZ", "<IdentificationCode>SK"}},
     "CZ"},

    {Rule::IcoWrong, kError, "domestic.isdoc", {{"<ID>09900101", "<ID>09900102"}}, ""},
    {Rule::DicWrong, kError, "domestic.isdoc", {{"CZ09900101", "CZ0990010"}}, ""},
    {Rule::DicWrong, kError, "domestic.isdoc", {{"CZ09900101", "09900101"}}, ""},
    {Rule::VatNumberWrong,
     kError,
     "domestic.isdoc",
     {{"<IdentificationCode>CZ", "<IdentificationCode>DE"}, {"CZ09900101", "DE12345678"}},
     ""},
    {Rule::IbanWrong, kError, "domestic.isdoc", {{"CZ57", "CZ58"}}, ""},
    {Rule::BicWrong, kError, "domestic.isdoc", {{"GIBACZPX", "GIBACZP"}}, ""},
    {Rule::AccountWrong, kError, "domestic.isdoc", {{"<ID>19-1234500002", "<ID>19-1234500003"}}, ""},
    {Rule::AccountWrong,
     kError,
     "domestic.isdoc",
     {{"<ID>20260101", "<ClientBankAccount>19-1234500003/0800</ClientBankAccount><ID>20260101"}},
     ""},
    {Rule::VariableSymbolWrong,
     kError,
     "domestic.isdoc",
     {{"<VariableSymbol>20260101", "<VariableSymbol>FV-20260101"}},
     ""},
    {Rule::VariableSymbolWrong,
     kError,
     "taxed-deposits.isdoc",
     {{"<VariableSymbol>20260015", "<VariableSymbol>2026O015"}},
     ""},
    {Rule::ConstantSymbolWrong,
     kError,
     "domestic.isdoc",
     {{"<ConstantSymbol>0308", "<ConstantSymbol>O308"}},
     ""},
    {Rule::SpecificSymbolWrong,
     kError,
     "references.isdoc",
     {{"<SpecificSymbol>17", "<SpecificSymbol>17a"}},
     ""},
    {Rule::PostCodeWrong, kError, "domestic.isdoc", {{"<PostalZone>190 00", "<PostalZone>1900"}}, ""},
    {Rule::EanWrong, kError, "domestic.isdoc", {{"8590000000015", "8590000000016"}}, ""},
    {Rule::AccountIban, kError, "domestic.isdoc", {{"<ID>19-1234500002", "<ID>1234500002"}}, "*"},
    {Rule::BankUnknown, kNote, "domestic.isdoc", {{"<BankCode>0800", "<BankCode>0801"}}, ""},
    {Rule::BicOfBank, kNote, "domestic.isdoc", {{"GIBACZPX", "KOMBCZPP"}}, "GIBACZPX"},
    {Rule::DicOfIco, kNote, "domestic.isdoc", {{"CZ09900101", "CZ09900209"}}, "CZ09900101"},
    {Rule::CountryCode,
     kError,
     "domestic.isdoc",
     {{"<IdentificationCode>CZ", "<IdentificationCode>cz"}},
     "ISO 3166-1"},
    {Rule::Spelling, kNote, "domestic.isdoc", {{"<ID>09900101", "<ID>099 00 101"}}, "09900101"},
    {Rule::IcoMissing, kNote, "domestic.isdoc", {{"<ID>09900101", "<ID>"}}, ""},

    {Rule::DueBeforeIssue,
     kNote,
     "domestic.isdoc",
     {{"<PaymentDueDate>2026-11-16", "<PaymentDueDate>2026-11-01"}},
     "2026-11-02"},
    {Rule::TaxPointMissing,
     kNote,
     "domestic.isdoc",
     {{"<TaxPointDate>2026-11-02</TaxPointDate>", ""}},
     "TaxPointDate"},
    {Rule::TaxPointUnexpected,
     kNote,
     "not-a-payer.isdoc",
     {{"<VATApplicable>", "<TaxPointDate>2026-11-02</TaxPointDate><VATApplicable>"}},
     ""},
    {Rule::IssuedLate,
     kNote,
     "domestic.isdoc",
     {{"<TaxPointDate>2026-11-02", "<TaxPointDate>2026-10-17"}},
     "2026-11-02"},
    {Rule::TaxPointLater,
     kNote,
     "domestic.isdoc",
     {{"<TaxPointDate>2026-11-02", "<TaxPointDate>2026-11-03"}},
     "2026-11-02"},
    {Rule::OriginalLater,
     kError,
     "credit-note.isdoc",
     {{"<IssueDate>2026-11-02", "<IssueDate>2026-11-11"}},
     "2026-11-10"},
    {Rule::ReferenceLater,
     kNote,
     "credit-note.isdoc",
     {{"<OriginalDocumentReferences>",
       "<OrderReferences><OrderReference "
       "id=\"a\"><SalesOrderID/><IssueDate>2026-11-11</IssueDate></OrderReference>"
       "</OrderReferences><OriginalDocumentReferences>"}},
     "2026-11-10"},

    {Rule::LineTotal, kError, "domestic.isdoc", {{"Inclusive>1087.79", "Inclusive>1087.80"}}, "1087.79"},
    {Rule::LineTotal,
     kError,
     "foreign-currency.isdoc",
     {{"InclusiveCurr>121.00", "InclusiveCurr>121.01"}},
     "121.00"},
    {Rule::LineTax,
     kError,
     "domestic.isdoc",
     {{"<LineExtensionTaxAmount>188.79", "<LineExtensionTaxAmount>188.80"}},
     "188.79"},
    {Rule::LineTax,
     kNote,
     "domestic.isdoc",
     {{"<LineExtensionTaxAmount>188.79", "<LineExtensionTaxAmount>188.792"}},
     "188.79"},
    {Rule::LinePrice, kError, "domestic.isdoc", {{"<UnitPrice>89.90", "<UnitPrice>89.80"}}, "898.00"},
    {Rule::LinePrice,
     kNote,
     "domestic.isdoc",
     {{"unitCode=\"ks\">10<", "unitCode=\"ks\">10.0004<"}},
     "899.04"},
    {Rule::LinePriceTaxed, kError, "domestic.isdoc", {{"Inclusive>108.779", "Inclusive>107.779"}}, "1077.79"},
    {Rule::UnitPriceTax, kError, "domestic.isdoc", {{"Inclusive>108.779", "Inclusive>108.789"}}, "108.779"},
    {Rule::DiscountTax,
     kError,
     "domestic.isdoc",
     {{"<LineExtensionAmountTaxInclusive>1087.79</LineExtensionAmountTaxInclusive>",
       "<LineExtensionAmountBeforeDiscount>1000</LineExtensionAmountBeforeDiscount>"
       "<LineExtensionAmountTaxInclusive>1087.79</LineExtensionAmountTaxInclusive>"
       "<LineExtensionAmountTaxInclusiveBeforeDiscount>1200</"
       "LineExtensionAmountTaxInclusiveBeforeDiscount>"}},
     "1210.00"},
    {Rule::AmountRange,
     kNote,
     "domestic.isdoc",
     {{"<UnitPrice>89.90", "<UnitPrice>1000000000000000000.5"}},
     ""},
    {Rule::RateUnlawful, kError, "domestic.isdoc", {{"<Percent>12", "<Percent>15"}}, "0, 21, 12"},
    {Rule::RateUnlawful, kError, "domestic.isdoc", {{"<Percent>12", "<Percent>12.5"}}, "*"},
    {Rule::RateMissing, kError, "domestic.isdoc", {{"<Percent>12", "<Percent>15"}}, "21, 12"},
    {Rule::SumOfLines,
     kError,
     "domestic.isdoc",
     {{"<TaxableAmount>1859.00", "<TaxableAmount>1858.00"}},
     "1859.00"},
    {Rule::SumOfTotals,
     kError,
     "domestic.isdoc",
     {{"<TaxInclusiveAmount>2249.39", "<TaxInclusiveAmount>2249.00"}},
     "2249.39"},
    {Rule::TaxOfRate, kError, "domestic.isdoc", {{"<TaxAmount>390.39", "<TaxAmount>390.00"}}, "390.39"},
    {Rule::TaxOfRate, kNote, "domestic.isdoc", {{"<TaxAmount>390.39", "<TaxAmount>390.40"}}, "390.39"},
    {Rule::TaxFromBase,
     kNote,
     "domestic.isdoc",
     {{"<LineExtensionTaxAmount>188.79", "<LineExtensionTaxAmount>188.80"}},
     "390.40"},
    {Rule::TaxOfLines,
     kNote,
     "domestic.isdoc",
     {{"<LineExtensionTaxAmount>188.79", "<LineExtensionTaxAmount>188.80"},
      {"<TaxAmount>390.39", "<TaxAmount>390.40"}},
     "390.39"},
    {Rule::TaxNotZero, kError, "not-a-payer.isdoc", {{"<TaxAmount>0.00", "<TaxAmount>1.00"}}, "0.00"},
    {Rule::TaxNotZero,
     kError,
     "references.isdoc",
     {{"<TaxableAmount>210.00</TaxableAmount>\n      <TaxAmount>0.00",
       "<TaxableAmount>210.00</TaxableAmount>\n      <TaxAmount>44.10"}},
     "0.00"},
    {Rule::ReverseFlag,
     kError,
     "references.isdoc",
     {{"<LocalReverseChargeFlag>true", "<LocalReverseChargeFlag>false"}},
     "true"},
    {Rule::RateTotal, kError, "domestic.isdoc", {{"<TaxAmount>46.08", "<TaxAmount>46.09"}}, "430.09"},
    {Rule::RateDifference,
     kError,
     "domestic.isdoc",
     {{"<DifferenceTaxAmount>46.08", "<DifferenceTaxAmount>46.09"}},
     "46.08"},
    {Rule::TaxTotal, kError, "domestic.isdoc", {{"<TaxAmount>436.47", "<TaxAmount>436.48"}}, "436.47"},
    {Rule::SumOfRates,
     kError,
     "domestic.isdoc",
     {{"<TaxExclusiveAmount>2243.00", "<TaxExclusiveAmount>2243.01"}},
     "2243.00"},
    {Rule::TotalDifference,
     kError,
     "domestic.isdoc",
     {{"<DifferenceTaxExclusiveAmount>2243.00", "<DifferenceTaxExclusiveAmount>2242.00"}},
     "2243.00"},
    {Rule::Payable,
     kError,
     "domestic.isdoc",
     {{"<PayableAmount>2679.00", "<PayableAmount>2679.47"}},
     "2679.00"},
    {Rule::Rounding,
     kNote,
     "domestic.isdoc",
     {{"<PayableRoundingAmount>-0.47", "<PayableRoundingAmount>-0.37"},
      {"<PayableAmount>2679.00", "<PayableAmount>2679.10"}},
     "-0.47"},
    {Rule::UntaxedDeposits,
     kError,
     "taxed-deposits.isdoc",
     {{"<PaidDepositsAmount>5000.00", "<PaidDepositsAmount>4000.00"}},
     "5000.00"},
    {Rule::UntaxedDeposits,
     kNote,
     "domestic.isdoc",
     {{"<PaidDepositsAmount>0.00", "<PaidDepositsAmount>100.00"}},
     "0.00"},
    {Rule::VatNumberWrong, kError, "domestic.isdoc", {{"CZ09900101", "SK12345"}}, ""},
    {Rule::TaxedDeposits,
     kError,
     "taxed-deposits.isdoc",
     {{"<TaxableDepositAmount>20000.00", "<TaxableDepositAmount>10000.00"},
      {"<TaxInclusiveDepositAmount>24200.00", "<TaxInclusiveDepositAmount>12100.00"}},
     "10000.00"},
    {Rule::DepositTax,
     kError,
     "taxed-deposits.isdoc",
     {{"<TaxInclusiveDepositAmount>24200.00", "<TaxInclusiveDepositAmount>24300.00"}},
     "24200.00"},
    {Rule::PaymentSum, kError, "domestic.isdoc", {{"<PaidAmount>2679.00", "<PaidAmount>2679.47"}}, "2679.00"},
    {Rule::PaymentSum,
     kNote,
     "domestic.isdoc",
     {{"partialPayment=\"false\"", "partialPayment=\"true\""},
      {"<PaidAmount>2679.00", "<PaidAmount>1000.00"}},
     "2679.00"},
    {Rule::Conversion, kError, "foreign-currency.isdoc", {{"<CurrRate>24.330", "<CurrRate>25.330"}}, "*"},
};

// A row of another rate, of the same amounts.
std::string WithRateTwice(std::string text) {
  const std::size_t start = text.find("<TaxSubTotal>");
  const std::size_t end = text.find("</TaxSubTotal>") + 14;
  return text.insert(end, text.substr(start, end - start));
}

std::string Changed(std::string text, const Changes& changes) {
  for (const auto& [from, to] : changes) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos) text.replace(at, from.size(), to);
  }
  return text;
}

Findings FindingsIn(const std::string& text) {
  Findings findings;
  CheckContent(test::Parsed(text), findings);
  return findings;
}

std::string ListOf(const Findings& findings) {
  std::string list;
  for (const Finding& finding : findings)
    list += std::string(RuleText(finding.rule)) + (finding.severity == kNote ? " note" : " error") +
            " in line " + std::to_string(finding.place.line) + ": " + finding.found + " (" +
            finding.expected + ")\n";
  return list;
}

bool Fits(const Finding& finding, const Row& row) {
  return finding.rule == row.rule && finding.severity == row.severity &&
         (row.expected == "*" || finding.expected == row.expected);
}

TEST(ContentRules, FindWhatTheyAreFor) {
  for (const Row& row : kRows) {
    const Findings findings = FindingsIn(Changed(test::Sample(row.sample), row.changes));
    const auto found =
        std::ranges::find_if(findings, [&](const Finding& finding) { return Fits(finding, row); });
    ASSERT_NE(found, findings.end()) << RuleText(row.rule) << "\n" << ListOf(findings);
    EXPECT_GT(found->place.line, 0U);
    EXPECT_FALSE(found->element.empty());
  }
}

TEST(ContentRules, CompareARateThatIsThereTwiceWithNothing) {
  const Findings findings = FindingsIn(WithRateTwice(test::Sample("domestic.isdoc")));
  EXPECT_EQ(std::ranges::count(findings, Rule::RateTwice, &Finding::rule), 2);
  EXPECT_EQ(std::ranges::count(findings, Rule::SumOfLines, &Finding::rule), 0);
}

TEST(ContentRules, DoNotCompareRowsWithoutEnd) {
  std::string text = "<Invoice><TaxTotal>";
  for (int i = 0; i < 101; ++i) text += "<TaxSubTotal><TaxCategory/></TaxSubTotal>";
  const Findings findings = FindingsIn(text + "</TaxTotal></Invoice>");
  EXPECT_EQ(std::ranges::count(findings, Rule::RateTwice, &Finding::rule), 1) << ListOf(findings);
}

// Two ways are hard to tell apart in a sample: lines of a shop at the prices of its shelves.
constexpr std::string_view kShop =
    "<Invoice><DocumentType>1</DocumentType><IssueDate>{day}</IssueDate><TaxPointDate>{day}</"
    "TaxPointDate><InvoiceLines>"
    "<InvoiceLine><LineExtensionAmount>8.26</LineExtensionAmount><LineExtensionAmountTaxInclusive>9.99"
    "</LineExtensionAmountTaxInclusive><LineExtensionTaxAmount>1.73</"
    "LineExtensionTaxAmount><ClassifiedTaxCategory>"
    "<Percent>21</Percent><VATCalculationMethod>1</VATCalculationMethod></ClassifiedTaxCategory></"
    "InvoiceLine>"
    "<InvoiceLine><LineExtensionAmount>8.26</LineExtensionAmount><LineExtensionAmountTaxInclusive>9.99"
    "</LineExtensionAmountTaxInclusive><LineExtensionTaxAmount>1.73</"
    "LineExtensionTaxAmount><ClassifiedTaxCategory>"
    "<Percent>21</Percent><VATCalculationMethod>1</VATCalculationMethod></ClassifiedTaxCategory></"
    "InvoiceLine>"
    "</InvoiceLines><TaxTotal><TaxSubTotal><TaxableAmount>{base}</TaxableAmount><TaxAmount>{tax}</TaxAmount>"
    "<TaxInclusiveAmount>19.98</TaxInclusiveAmount><TaxCategory><Percent>21</Percent></TaxCategory></"
    "TaxSubTotal>"
    "<TaxAmount>{tax}</TaxAmount></TaxTotal></Invoice>";

std::string Shop(std::string_view day, std::string_view base, std::string_view tax) {
  return Changed(std::string(kShop),
                 {{"{day}", day}, {"{day}", day}, {"{base}", base}, {"{tax}", tax}, {"{tax}", tax}});
}

// 19.98 x 21 / 121 is 3.4676: 3.47, and 1.73 of each line makes 3.46; 16.51 x 21 % is 3.47, 16.52 is 3.47
// too.
TEST(ContentRules, NameTheWayThatFitsWhereAnotherDoesNot) {
  const auto ways = [](const std::string& text) { return TaxWays(test::Parsed(text)).at(0).way; };
  EXPECT_EQ(ways(Shop("2026-11-02", "16.51", "3.47")), TaxWay::FromTotal);
  EXPECT_EQ(ways(test::Sample("domestic.isdoc")), TaxWay::FromBase);
  EXPECT_EQ(ways(test::Sample("receipt.isdoc")), TaxWay::FromTotal);
  EXPECT_EQ(ways(Shop("2026-11-02", "16.52", "3.46")), TaxWay::SumOfLines);
  EXPECT_EQ(ways(Shop("2026-11-02", "16.00", "3.47")), TaxWay::FromTotal);
  EXPECT_EQ(ways(Shop("2026-11-02", "16.00", "3.40")), TaxWay::None);
  EXPECT_EQ(ways(Shop("2018-11-02", "16.00", "3.47")), TaxWay::ByCoefficient);
  EXPECT_EQ(ways(test::Sample("not-a-payer.isdoc")), TaxWay::Untaxed);
}

TEST(ContentRules, TakeTheRoundingOfEachLineForANote) {
  const Findings findings = FindingsIn(Shop("2026-11-02", "16.51", "3.47"));
  const auto named = std::ranges::find(findings, Rule::TaxFromTotal, &Finding::rule);
  ASSERT_NE(named, findings.end()) << ListOf(findings);
  EXPECT_EQ(named->severity, kNote);
  EXPECT_EQ(named->found, "3.47");
  EXPECT_EQ(named->expected, "3.46");
  EXPECT_EQ(std::ranges::count(findings, kError, &Finding::severity), 0) << ListOf(findings);
}

TEST(ContentRules, NameTheTotalAndTheCoefficientToo) {
  const auto has = [](const Findings& findings, Rule rule) {
    return std::ranges::count(findings, rule, &Finding::rule) == 1;
  };
  EXPECT_TRUE(has(FindingsIn(Shop("2026-11-02", "16.00", "3.47")), Rule::TaxFromTotal));
  EXPECT_TRUE(has(FindingsIn(Shop("2018-11-02", "16.00", "3.47")), Rule::TaxByCoefficient));
}

// What the rows above and the tests below them cover.
TEST(ContentRules, AreAllTried) {
  std::set<Rule> tried{Rule::RateTwice, Rule::TaxFromTotal, Rule::TaxByCoefficient};
  for (const Row& row : kRows) tried.insert(row.rule);
#define RAVO_RULE(number, name, text, czech, english) \
  EXPECT_TRUE((number) < 200 || tried.contains(Rule::name)) << text;
#include <ravo/isdoc/rules.inc>
#undef RAVO_RULE
}

TEST(ContentRules, SayNothingOfWhatTheyDoNotUnderstand) {
  for (const std::string_view text :
       {"<a/>", "<Invoice/>",
        "<Invoice><InvoiceLines><InvoiceLine/></InvoiceLines><TaxTotal><TaxSubTotal/></TaxTotal>"
        "<LegalMonetaryTotal/><PaymentMeans><Payment/></PaymentMeans></Invoice>"}) {
    for (const Finding& finding : FindingsIn(std::string(text)))
      EXPECT_EQ(finding.severity, kNote) << text << ": " << RuleText(finding.rule);
  }
}

}  // namespace
}  // namespace ravo::isdoc::content_test
