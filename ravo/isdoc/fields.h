#pragma once

#include <ravo/isdoc/document.h>

#include <initializer_list>
#include <string_view>

/// What people and their programs read of an invoice, from the places where the standard has it.
///
/// Texts are views of the document, without white space at their ends; what the document lacks is empty.
namespace ravo::isdoc {

/// Returns the element at a path of names below `element`; null without one, and if `element` is null.
[[nodiscard]] const Element* ElementAt(const Document& document, const Element* element,
                                       std::initializer_list<std::string_view> path) noexcept;

/// Returns the text at a path below `element`, which may be null.
[[nodiscard]] std::string_view TextAt(const Document& document, const Element* element,
                                      std::initializer_list<std::string_view> path) noexcept;

/// What is said once.
struct HeadFields {
  std::string_view number;  ///< of the document
  std::string_view type;    ///< "1" for an invoice, to "7"
  std::string_view uuid;
  std::string_view issued;
  std::string_view tax_point;
  std::string_view currency;          ///< of the books
  std::string_view foreign_currency;  ///< of the document, if it is another
  std::string_view note;
};

/// One side of the business.
struct PartyFields {
  std::string_view ico;
  std::string_view dic;  ///< the number for VAT, or else the first one
  std::string_view name;
  std::string_view street;
  std::string_view building;
  std::string_view post_code;
  std::string_view city;
  std::string_view country;  ///< code
};

/// A line.
struct LineFields {
  std::string_view number;
  std::string_view text;
  std::string_view quantity;
  std::string_view unit;  ///< as it is written, blanks kept
  std::string_view unit_price;
  std::string_view rate;
  bool reverse_charge = false;
  std::string_view base;
  std::string_view tax;
  std::string_view total;
};

/// Amounts without the tax, of the tax, and of both.
struct AmountFields {
  std::string_view base;
  std::string_view tax;
  std::string_view total;
};

/// A row of the recapitulation.
struct RateFields {
  std::string_view rate;
  bool reverse_charge = false;
  AmountFields all;
  AmountFields claimed;     ///< by taxed deposits
  AmountFields difference;  ///< less the taxed deposits
};

/// The sums of the document.
struct TotalFields {
  AmountFields all;
  AmountFields claimed;     ///< without a tax
  AmountFields difference;  ///< without a tax
  std::string_view rounding;
  std::string_view paid_deposits;
  std::string_view payable;
};

/// One of the payments.
struct PaymentFields {
  std::string_view amount;
  std::string_view means;  ///< code, such as "42"
  std::string_view due;
  std::string_view account;
  std::string_view bank;
  std::string_view iban;
  std::string_view bic;
  std::string_view vs;
  std::string_view ks;
  std::string_view ss;
};

[[nodiscard]] HeadFields HeadOf(const Document& document) noexcept;
/// Of `role`: "AccountingSupplierParty", "AccountingCustomerParty".
[[nodiscard]] PartyFields PartyOf(const Document& document, std::string_view role) noexcept;
[[nodiscard]] TotalFields TotalsOf(const Document& document) noexcept;

/// Of an InvoiceLine, a TaxSubTotal, a Payment.
[[nodiscard]] LineFields LineOf(const Document& document, const Element& line) noexcept;
[[nodiscard]] RateFields RateOf(const Document& document, const Element& subtotal) noexcept;
[[nodiscard]] PaymentFields PaymentOf(const Document& document, const Element& payment) noexcept;

/// Where the rows of an invoice are.
struct RowPlace {
  std::string_view all;
  std::string_view row;
};
inline constexpr RowPlace kLinePlace{"InvoiceLines", "InvoiceLine"};
inline constexpr RowPlace kRatePlace{"TaxTotal", "TaxSubTotal"};
inline constexpr RowPlace kPaymentPlace{"PaymentMeans", "Payment"};

/// Calls `use(row)` for each row of an invoice.
template <class Use>
void ForEachRow(const Document& document, const RowPlace& place, Use use) {
  const Element* const all = document.Child(document.Root(), place.all);
  if (all != nullptr) ForEachChild(document, *all, place.row, use);
}

}  // namespace ravo::isdoc
