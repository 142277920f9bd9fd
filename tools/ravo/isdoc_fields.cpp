#include "isdoc_fields.h"

#include "document_characters.h"

#include <algorithm>

namespace tool {

namespace isdoc = ravo::isdoc;

const isdoc::Element* ElementAt(const isdoc::Document& invoice, const isdoc::Element* element,
                                std::initializer_list<std::string_view> path) {
  for (const std::string_view name : path) {
    if (element == nullptr) return nullptr;
    element = invoice.Child(*element, name);
  }
  return element;
}

std::string TextAt(const isdoc::Document& invoice, const isdoc::Element* element,
                   std::initializer_list<std::string_view> path) {
  const isdoc::Element* const found = ElementAt(invoice, element, path);
  if (found == nullptr) return {};
  std::string_view text = found->text;
  text.remove_prefix(std::min(text.find_first_not_of(kXmlSpace), text.size()));
  return std::string(text.substr(0, text.find_last_not_of(kXmlSpace) + 1));
}

std::string AttributeAt(const isdoc::Document& invoice, const isdoc::Element* element,
                        std::string_view name) {
  if (element == nullptr) return {};
  for (const isdoc::Attribute& attribute : invoice.Attributes(*element)) {
    if (attribute.name == name) return std::string(attribute.value);
  }
  return {};
}

std::string TaxNumberOf(const isdoc::Document& invoice, const isdoc::Element* party) {
  std::string number;
  if (party == nullptr) return number;
  isdoc::ForEachChild(invoice, *party, "PartyTaxScheme", [&](const isdoc::Element& scheme) {
    const bool is_vat = TextAt(invoice, &scheme, {"TaxScheme"}) == "VAT";
    if (number.empty() || is_vat) number = TextAt(invoice, &scheme, {"CompanyID"});
  });
  return number;
}

}  // namespace tool
