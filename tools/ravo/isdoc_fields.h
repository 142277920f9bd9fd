#pragma once

#include <ravo/isdoc/document.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace tool {

/// Returns the element at a path of names below `element`; null if there is none.
[[nodiscard]] const ravo::isdoc::Element* ElementAt(const ravo::isdoc::Document& invoice,
                                                    const ravo::isdoc::Element* element,
                                                    std::initializer_list<std::string_view> path);

/// Returns the text at a path, without white space at its ends; empty if there is none. `element` may be
/// null.
[[nodiscard]] std::string TextAt(const ravo::isdoc::Document& invoice, const ravo::isdoc::Element* element,
                                 std::initializer_list<std::string_view> path);

/// Returns the value of an attribute; empty if there is none. `element` may be null.
[[nodiscard]] std::string AttributeAt(const ravo::isdoc::Document& invoice,
                                      const ravo::isdoc::Element* element, std::string_view name);

/// Returns the tax number of VAT of a party, or else its first one.
[[nodiscard]] std::string TaxNumberOf(const ravo::isdoc::Document& invoice,
                                      const ravo::isdoc::Element* party);

}  // namespace tool
