#include "fields.h"

#include "blanks.h"

namespace ravo::isdoc {
namespace {

// The texts below one element, which may be null.
class Below {
 public:
  Below(const Document& document, const Element* element) noexcept : document_(document), element_(element) {}

  std::string_view operator()(std::string_view name) const noexcept {
    return TextAt(document_, element_, {name});
  }
  std::string_view operator()(std::string_view first, std::string_view second) const noexcept {
    return TextAt(document_, element_, {first, second});
  }

 private:
  const Document& document_;
  const Element* element_;
};

std::string_view UnitOf(const Document& document, const Element& line) noexcept {
  const Element* const quantity = document.Child(line, "InvoicedQuantity");
  if (quantity == nullptr) return {};
  for (const Attribute& attribute : document.Attributes(*quantity)) {
    if (attribute.name == "unitCode") return attribute.value;
  }
  return {};
}

std::string_view TaxNumberOf(const Document& document, const Element* party) noexcept {
  std::string_view number;
  if (party == nullptr) return number;
  ForEachChild(document, *party, "PartyTaxScheme", [&](const Element& scheme) {
    const Below text(document, &scheme);
    if (number.empty() || text("TaxScheme") == "VAT") number = text("CompanyID");
  });
  return number;
}

}  // namespace

const Element* ElementAt(const Document& document, const Element* element,
                         std::initializer_list<std::string_view> path) noexcept {
  for (const std::string_view name : path) {
    if (element == nullptr) return nullptr;
    element = document.Child(*element, name);
  }
  return element;
}

std::string_view TextAt(const Document& document, const Element* element,
                        std::initializer_list<std::string_view> path) noexcept {
  const Element* const found = ElementAt(document, element, path);
  return found == nullptr ? std::string_view() : Trimmed(found->text);
}

HeadFields HeadOf(const Document& document) noexcept {
  const Below text(document, &document.Root());
  return {text("ID"),
          text("DocumentType"),
          text("UUID"),
          text("IssueDate"),
          text("TaxPointDate"),
          text("LocalCurrencyCode"),
          text("ForeignCurrencyCode"),
          text("Note")};
}

PartyFields PartyOf(const Document& document, std::string_view role) noexcept {
  const Element* const party = ElementAt(document, &document.Root(), {role, "Party"});
  const Below text(document, party);
  const Below address(document, ElementAt(document, party, {"PostalAddress"}));
  return {text("PartyIdentification", "ID"),
          TaxNumberOf(document, party),
          text("PartyName", "Name"),
          address("StreetName"),
          address("BuildingNumber"),
          address("PostalZone"),
          address("CityName"),
          address("Country", "IdentificationCode")};
}

TotalFields TotalsOf(const Document& document) noexcept {
  const Below text(document, document.Child(document.Root(), "LegalMonetaryTotal"));
  const std::string_view tax = TextAt(document, &document.Root(), {"TaxTotal", "TaxAmount"});
  return {{text("TaxExclusiveAmount"), tax, text("TaxInclusiveAmount")},
          {text("AlreadyClaimedTaxExclusiveAmount"), {}, text("AlreadyClaimedTaxInclusiveAmount")},
          {text("DifferenceTaxExclusiveAmount"), {}, text("DifferenceTaxInclusiveAmount")},
          text("PayableRoundingAmount"),
          text("PaidDepositsAmount"),
          text("PayableAmount")};
}

LineFields LineOf(const Document& document, const Element& line) noexcept {
  const Below text(document, &line);
  return {text("ID"),
          text("Item", "Description"),
          text("InvoicedQuantity"),
          UnitOf(document, line),
          text("UnitPrice"),
          text("ClassifiedTaxCategory", "Percent"),
          ElementAt(document, &line, {"ClassifiedTaxCategory", "LocalReverseCharge"}) != nullptr,
          text("LineExtensionAmount"),
          text("LineExtensionTaxAmount"),
          text("LineExtensionAmountTaxInclusive")};
}

RateFields RateOf(const Document& document, const Element& subtotal) noexcept {
  const Below text(document, &subtotal);
  return {
      text("TaxCategory", "Percent"),
      text("TaxCategory", "LocalReverseChargeFlag") == "true",
      {text("TaxableAmount"), text("TaxAmount"), text("TaxInclusiveAmount")},
      {text("AlreadyClaimedTaxableAmount"), text("AlreadyClaimedTaxAmount"),
       text("AlreadyClaimedTaxInclusiveAmount")},
      {text("DifferenceTaxableAmount"), text("DifferenceTaxAmount"), text("DifferenceTaxInclusiveAmount")}};
}

PaymentFields PaymentOf(const Document& document, const Element& payment) noexcept {
  const Below text(document, &payment);
  const Below detail(document, document.Child(payment, "Details"));
  return {text("PaidAmount"),
          text("PaymentMeansCode"),
          detail("PaymentDueDate"),
          detail("ID"),
          detail("BankCode"),
          detail("IBAN"),
          detail("BIC"),
          detail("VariableSymbol"),
          detail("ConstantSymbol"),
          detail("SpecificSymbol")};
}

}  // namespace ravo::isdoc
