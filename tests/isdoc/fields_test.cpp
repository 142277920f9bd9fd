#include "samples.h"
#include <ravo/isdoc/blanks.h>
#include <ravo/isdoc/fields.h>

#include <string_view>
#include <vector>

#include <gtest/gtest.h>

/// What the samples say, read from their files by hand.
namespace ravo::isdoc::fields_test {
namespace {

using Texts = std::vector<std::string_view>;

Texts TextsOf(const HeadFields& head) {
  return {head.number,           head.type, head.uuid, head.issued, head.tax_point, head.currency,
          head.foreign_currency, head.note};
}

Texts TextsOf(const PartyFields& party) {
  return {party.ico,      party.dic,       party.name, party.street,
          party.building, party.post_code, party.city, party.country};
}

Texts TextsOf(const LineFields& line) {
  return {line.number, line.text, line.quantity, line.unit, line.unit_price,
          line.rate,   line.base, line.tax,      line.total};
}

Texts TextsOf(const AmountFields& amounts) { return {amounts.base, amounts.tax, amounts.total}; }

Texts TextsOf(const PaymentFields& payment) {
  return {payment.amount, payment.means, payment.due, payment.account, payment.bank,
          payment.iban,   payment.bic,   payment.vs,  payment.ks,      payment.ss};
}

// The rows of a document at a place, each of them as `read` reads it.
template <class Read>
auto RowsOf(const Document& document, const RowPlace& place, Read read) {
  std::vector<decltype(read(document, document.Root()))> rows;
  ForEachRow(document, place, [&](const Element& row) { rows.push_back(read(document, row)); });
  return rows;
}

struct HeadRow {
  std::string_view sample;
  Texts texts;
};

TEST(Fields, TellWhatASampleSaysOnce) {
  const HeadRow rows[] = {
      {"domestic.isdoc",
       {"20260101", "1", "B3F26974-85BD-526B-B745-9EEDB75B74AA", "2026-11-02", "2026-11-02", "CZK", "",
        "Děkujeme za objednávku."}},
      {"credit-note.isdoc",
       {"D20260003", "2", "18D90E7B-5CAB-531F-A528-D46E14625F96", "2026-11-10", "", "CZK", "",
        "Vrácené zboží k faktuře 20260101."}},
      {"foreign-currency.isdoc",
       {"20260102", "1", "64F22817-818A-5299-8293-B5149FF8E190", "2026-11-03", "2026-11-03", "CZK", "EUR",
        ""}},
      {"not-a-payer.isdoc",
       {"20260007", "1", "ED5BB82C-BB59-53DB-818B-07D15031B62C", "2026-10-30", "", "CZK", "",
        "Nejsme plátci DPH."}},
      {"references.isdoc",
       {"20260104", "1", "53A438B3-6B2B-5BA1-91D7-582E5DD0842F", "2026-11-06", "2026-11-05", "CZK", "", ""}},
  };
  for (const HeadRow& row : rows) {
    const std::string text = test::Sample(row.sample);
    EXPECT_EQ(TextsOf(HeadOf(test::Parsed(text))), row.texts) << row.sample;
  }
}

struct PartyRow {
  std::string_view sample;
  std::string_view role;
  Texts texts;
};

TEST(Fields, TellBothSides) {
  const PartyRow rows[] = {
      {"domestic.isdoc",
       "AccountingSupplierParty",
       {"09900101", "CZ09900101", "Papírna Vzorová s.r.o.", "Smyšlená", "12/3", "190 00", "Vzorov", "CZ"}},
      {"domestic.isdoc",
       "AccountingCustomerParty",
       {"09900209", "CZ09900209", "Příkladné účetnictví a.s.", "Pokusná", "45", "390 01", "Ukázkov", "CZ"}},
      {"not-a-payer.isdoc",
       "AccountingSupplierParty",
       {"09900306", "", "Karel Nevymyšlený", "Zkušební", "7", "190 00", "Vzorov", "CZ"}},
      {"receipt.isdoc", "AccountingCustomerParty", Texts(8)},
      {"domestic.isdoc", "Nobody", Texts(8)},
  };
  for (const PartyRow& row : rows) {
    const std::string text = test::Sample(row.sample);
    EXPECT_EQ(TextsOf(PartyOf(test::Parsed(text), row.role)), row.texts) << row.sample << ' ' << row.role;
  }
}

TEST(Fields, PreferTheNumberForVat) {
  const auto number = [](std::string_view schemes) {
    const std::string text = "<Invoice><AccountingSupplierParty><Party>" + std::string(schemes) +
                             "</Party></AccountingSupplierParty></Invoice>";
    return std::string(PartyOf(test::Parsed(text), "AccountingSupplierParty").dic);
  };
  const std::string first =
      "<PartyTaxScheme><CompanyID>A</CompanyID><TaxScheme>TIN</TaxScheme></PartyTaxScheme>";
  const std::string second =
      "<PartyTaxScheme><CompanyID>B</CompanyID><TaxScheme>ARN</TaxScheme></PartyTaxScheme>";
  const std::string vat =
      "<PartyTaxScheme><CompanyID>C</CompanyID><TaxScheme>VAT</TaxScheme></PartyTaxScheme>";
  EXPECT_EQ(number(""), "");
  EXPECT_EQ(number(first + second), "A");
  EXPECT_EQ(number(first + vat), "C");
  EXPECT_EQ(number(vat + first), "C");
}

TEST(Fields, TellLines) {
  const std::string text = test::Sample("domestic.isdoc");
  const Document document = test::Parsed(text);
  const auto lines = RowsOf(document, kLinePlace, LineOf);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(TextsOf(lines[0]), (Texts{"1", "Kancelářský papír A4, 500 listů", "10", "ks", "89.90", "21",
                                      "899.00", "188.79", "1087.79"}));
  EXPECT_EQ(TextsOf(lines[2]),
            (Texts{"3", "Doprava a vykládka", "1.5", "hod", "640.00", "21", "960.00", "201.60", "1161.60"}));
}

TEST(Fields, TellWhoOwesTheTax) {
  const std::string text = test::Sample("references.isdoc");
  const Document document = test::Parsed(text);
  const auto lines = RowsOf(document, kLinePlace, LineOf);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_FALSE(lines[0].reverse_charge);
  EXPECT_TRUE(lines[1].reverse_charge);
  const auto rates = RowsOf(document, kRatePlace, RateOf);
  ASSERT_EQ(rates.size(), 2U);
  EXPECT_FALSE(rates[0].reverse_charge);
  EXPECT_TRUE(rates[1].reverse_charge);
}

TEST(Fields, TellRates) {
  const std::string text = test::Sample("taxed-deposits.isdoc");
  const Document document = test::Parsed(text);
  const auto rates = RowsOf(document, kRatePlace, RateOf);
  ASSERT_EQ(rates.size(), 2U);
  EXPECT_EQ(rates[1].rate, "12");
  EXPECT_EQ(TextsOf(rates[1].all), (Texts{"7200.00", "864.00", "8064.00"}));
  EXPECT_EQ(TextsOf(rates[1].claimed), (Texts{"2000.00", "240.00", "2240.00"}));
  EXPECT_EQ(TextsOf(rates[1].difference), (Texts{"5200.00", "624.00", "5824.00"}));
}

TEST(Fields, TellTotals) {
  const std::string text = test::Sample("taxed-deposits.isdoc");
  const Document document = test::Parsed(text);
  const TotalFields totals = TotalsOf(document);
  EXPECT_EQ(TextsOf(totals.all), (Texts{"47200.00", "9264.00", "56464.00"}));
  EXPECT_EQ(TextsOf(totals.claimed), (Texts{"22000.00", "", "26440.00"}));
  EXPECT_EQ(TextsOf(totals.difference), (Texts{"25200.00", "", "30024.00"}));
  EXPECT_EQ((Texts{totals.rounding, totals.paid_deposits, totals.payable}),
            (Texts{"0.00", "5000.00", "25024.00"}));
}

TEST(Fields, TellPayments) {
  const std::string text = test::Sample("references.isdoc");
  const Document document = test::Parsed(text);
  const auto payments = RowsOf(document, kPaymentPlace, PaymentOf);
  ASSERT_EQ(payments.size(), 1U);
  EXPECT_EQ(TextsOf(payments[0]), (Texts{"772.65", "42", "2026-11-20", "19-1234500002", "0800",
                                         "CZ5708000000191234500002", "GIBACZPX", "20260104", "0308", "17"}));
}

// In cash there is a day of payment, but no account.
TEST(Fields, TellPaymentsWithoutAnAccount) {
  const std::string text = test::Sample("receipt.isdoc");
  const Document document = test::Parsed(text);
  const auto payments = RowsOf(document, kPaymentPlace, PaymentOf);
  ASSERT_EQ(payments.size(), 1U);
  EXPECT_EQ(TextsOf(payments[0]), (Texts{"217.00", "10", "", "", "", "", "", "", "", ""}));
}

TEST(Fields, AreEmptyWhereADocumentHasNothing) {
  const Document document = test::Parsed("<Invoice/>");
  EXPECT_EQ(TextsOf(HeadOf(document)), Texts(8));
  EXPECT_EQ(TextsOf(TotalsOf(document).all), Texts(3));
  EXPECT_TRUE(RowsOf(document, kLinePlace, LineOf).empty());
  const Document rows = test::Parsed(
      "<Invoice><InvoiceLines><InvoiceLine/></InvoiceLines><TaxTotal><TaxSubTotal/></TaxTotal></Invoice>");
  EXPECT_EQ(TextsOf(RowsOf(rows, kLinePlace, LineOf).at(0)), Texts(9));
  EXPECT_EQ(RowsOf(rows, kRatePlace, RateOf).at(0).rate, "");
}

TEST(Fields, LoseWhiteSpaceButUnitsKeepTheirs) {
  const Document document = test::Parsed(
      "<Invoice><ID>\n 7 8\t</ID><InvoiceLines><InvoiceLine><InvoicedQuantity unitCode=' ks '> 2 "
      "</InvoicedQuantity></InvoiceLine></InvoiceLines></Invoice>");
  EXPECT_EQ(HeadOf(document).number, "7 8");
  const LineFields line = RowsOf(document, kLinePlace, LineOf).at(0);
  EXPECT_EQ(line.quantity, "2");
  EXPECT_EQ(line.unit, " ks ");
}

TEST(ElementAt, FollowsAPath) {
  const Document document = test::Parsed("<a><b><c>1</c></b><b><c>2</c></b></a>");
  EXPECT_EQ(TextAt(document, &document.Root(), {"b", "c"}), "1");
  EXPECT_EQ(ElementAt(document, &document.Root(), {"b", "d"}), nullptr);
  EXPECT_EQ(ElementAt(document, &document.Root(), {"d", "c"}), nullptr);
  EXPECT_EQ(ElementAt(document, &document.Root(), {}), &document.Root());
  EXPECT_EQ(ElementAt(document, nullptr, {"b"}), nullptr);
  EXPECT_EQ(TextAt(document, nullptr, {"b"}), "");
}

struct TrimRow {
  std::string_view text;
  std::string_view trimmed;
};

TEST(Trimmed, LeavesOutTheWhiteSpaceOfXmlAlone) {
  constexpr TrimRow rows[] = {{"", ""},          {" \t\r\n", ""},    {"a", "a"},
                              {" a b\n", "a b"}, {"\va\f", "\va\f"}, {"\u00A0a", "\u00A0a"},
                              {"\ta", "a"},      {"a\r\n", "a"},     {std::string_view("\0 ", 2), {"\0", 1}}};
  for (const TrimRow& row : rows) EXPECT_EQ(Trimmed(row.text), row.trimmed);
}

}  // namespace
}  // namespace ravo::isdoc::fields_test
