#pragma once

#include <ravo/czech/day.h>
#include <ravo/isdoc/amount.h>
#include <ravo/isdoc/blanks.h>
#include <ravo/isdoc/document.h>
#include <ravo/isdoc/finding.h>

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

/// What the checks of the content share: the fields of an invoice by their names, as the standard has them.
namespace ravo::isdoc::detail {

/// The name of an amount in the currency of the books, and in that of a document in a foreign currency.
struct MoneyName {
  std::string_view local;
  std::string_view foreign;
  [[nodiscard]] constexpr std::string_view In(bool is_foreign) const noexcept {
    return is_foreign ? foreign : local;
  }
};

/// The amounts that a document in a foreign currency has in both currencies.
inline constexpr MoneyName kLineBase{"LineExtensionAmount", "LineExtensionAmountCurr"};
inline constexpr MoneyName kLineTotal{"LineExtensionAmountTaxInclusive",
                                      "LineExtensionAmountTaxInclusiveCurr"};
inline constexpr MoneyName kDeposit{"DepositAmount", "DepositAmountCurr"};
inline constexpr MoneyName kDepositBase{"TaxableDepositAmount", "TaxableDepositAmountCurr"};
inline constexpr MoneyName kDepositTotal{"TaxInclusiveDepositAmount", "TaxInclusiveDepositAmountCurr"};
inline constexpr MoneyName kTax{"TaxAmount", "TaxAmountCurr"};
inline constexpr MoneyName kBase{"TaxableAmount", "TaxableAmountCurr"};
inline constexpr MoneyName kTotal{"TaxInclusiveAmount", "TaxInclusiveAmountCurr"};
inline constexpr MoneyName kClaimedBase{"AlreadyClaimedTaxableAmount", "AlreadyClaimedTaxableAmountCurr"};
inline constexpr MoneyName kClaimedTax{"AlreadyClaimedTaxAmount", "AlreadyClaimedTaxAmountCurr"};
inline constexpr MoneyName kClaimedTotal{"AlreadyClaimedTaxInclusiveAmount",
                                         "AlreadyClaimedTaxInclusiveAmountCurr"};
inline constexpr MoneyName kDifferenceBase{"DifferenceTaxableAmount", "DifferenceTaxableAmountCurr"};
inline constexpr MoneyName kDifferenceTax{"DifferenceTaxAmount", "DifferenceTaxAmountCurr"};
inline constexpr MoneyName kDifferenceTotal{"DifferenceTaxInclusiveAmount",
                                            "DifferenceTaxInclusiveAmountCurr"};
inline constexpr MoneyName kSumBase{"TaxExclusiveAmount", "TaxExclusiveAmountCurr"};
inline constexpr MoneyName kSumClaimedBase{"AlreadyClaimedTaxExclusiveAmount",
                                           "AlreadyClaimedTaxExclusiveAmountCurr"};
inline constexpr MoneyName kSumDifferenceBase{"DifferenceTaxExclusiveAmount",
                                              "DifferenceTaxExclusiveAmountCurr"};
inline constexpr MoneyName kRounding{"PayableRoundingAmount", "PayableRoundingAmountCurr"};
inline constexpr MoneyName kPaidDeposits{"PaidDepositsAmount", "PaidDepositsAmountCurr"};
inline constexpr MoneyName kPayable{"PayableAmount", "PayableAmountCurr"};

inline constexpr MoneyName kMoneyNames[] = {
    kLineBase,      kLineTotal,       kDeposit,     kDepositBase,    kDepositTotal,      kTax,
    kBase,          kTotal,           kClaimedBase, kClaimedTax,     kClaimedTotal,      kDifferenceBase,
    kDifferenceTax, kDifferenceTotal, kSumBase,     kSumClaimedBase, kSumDifferenceBase, kRounding,
    kPaidDeposits,  kPayable,
};

/// A line of the invoice.
struct Line {
  const Element* element = nullptr;
  Amount percent;           ///< as it is written
  bool from_total = false;  ///< the tax comes from the total
  bool reverse = false;     ///< the customer owes the tax
  bool is_taxed = true;     ///< subject to VAT
  bool has_row = false;     ///< its rate is in the recapitulation
};

/// A row of the recapitulation.
struct Subtotal {
  const Element* element = nullptr;
  Amount percent;
  bool reverse = false;
  bool is_taxed = true;
  std::vector<const Line*> lines;  ///< the lines of this rate
};

/// An invoice as its checks see it. What the document lacks is empty, null or nothing.
class Invoice {
 public:
  /// `document` and `findings` must outlive the invoice.
  Invoice(const Document& document, Findings& findings);
  Invoice(const Invoice&) = delete;
  Invoice& operator=(const Invoice&) = delete;

  [[nodiscard]] const isdoc::Document& Source() const noexcept { return document_; }
  [[nodiscard]] const Element& Root() const noexcept { return document_.Root(); }
  [[nodiscard]] bool IsForeign() const noexcept { return is_foreign_; }
  [[nodiscard]] bool IsTaxed() const noexcept { return is_taxed_; }
  /// Whether it corrects another document: types 2, 3 and 6.
  [[nodiscard]] bool IsCorrective() const noexcept { return type_ == "2" || type_ == "3" || type_ == "6"; }
  [[nodiscard]] std::string_view Type() const noexcept { return type_; }
  [[nodiscard]] std::optional<czech::Day> IssueDay() const noexcept { return Day(Root(), "IssueDate"); }
  /// The day of the tax point, or else the day of issue.
  [[nodiscard]] std::optional<czech::Day> TaxDay() const noexcept;
  [[nodiscard]] const std::vector<Line>& Lines() const noexcept { return lines_; }
  [[nodiscard]] const std::vector<Subtotal>& Subtotals() const noexcept { return subtotals_; }
  [[nodiscard]] const Element* Totals() const noexcept { return totals_; }

  /// The child of that name, the text of it without white space at its ends, the number or the day in it.
  [[nodiscard]] const Element* Child(const Element& element, std::string_view name) const noexcept {
    return document_.Child(element, name);
  }
  [[nodiscard]] std::string_view Text(const Element& element, std::string_view name) const noexcept;
  [[nodiscard]] std::optional<Amount> Number(const Element& element, std::string_view name) const noexcept;
  [[nodiscard]] std::optional<czech::Day> Day(const Element& element, std::string_view name) const noexcept;
  [[nodiscard]] std::string_view AttributeOf(const Element& element, std::string_view name) const noexcept;

  void Report(Rule rule, Severity severity, const Element& element, std::string found,
              std::string expected = {}) const;
  /// Reports a refusal by the rules of the country, which has a reason of its own.
  void Refuse(Rule rule, const Element& element, std::string_view found, czech::Code reason) const;

  /// Reports the amount `name` of `element` if it is not `expected`: as a note if the difference is at most
  /// half a haléř for each of `count` roundings. Does nothing if there is no such amount.
  void Expect(Rule rule, const Element& element, std::string_view name, const Amount& expected,
              std::size_t count = 1) const;

 private:
  void ReadLines();
  void ReadSubtotals();
  void LimitSubtotals(const Element& tax);
  [[nodiscard]] Subtotal* SubtotalOf(const Line& line) noexcept;

  const isdoc::Document& document_;
  Findings& findings_;
  std::string_view type_;
  bool is_foreign_ = false;
  bool is_taxed_ = true;
  const Element* totals_ = nullptr;
  std::vector<Line> lines_;
  std::vector<Subtotal> subtotals_;
};

/// Returns half a haléř for each of `count` roundings.
[[nodiscard]] Amount Tolerance(std::size_t count) noexcept;

/// A note if the difference is at most `tolerance`, more is an error.
[[nodiscard]] Severity GravityOf(const Amount& difference, const Amount& tolerance) noexcept;

/// The checks, one subject each.
void CheckBusinessRules(const Invoice& invoice);
void CheckCurrencies(const Invoice& invoice);
void CheckItems(const Invoice& invoice);
void CheckParties(const Invoice& invoice);
void CheckPayment(const Invoice& invoice);
void CheckDates(const Invoice& invoice);
void CheckLines(const Invoice& invoice);
void CheckRates(const Invoice& invoice);
void CheckRecapitulation(const Invoice& invoice);
void CheckDeposits(const Invoice& invoice);
void CheckTotals(const Invoice& invoice);

}  // namespace ravo::isdoc::detail
