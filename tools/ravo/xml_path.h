#pragma once

#include "xml_file.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tool {

/// The item at a path, and the name of the attribute if the path ends with one.
struct XmlPlace {
  ravo::ECXMLParser::TXMLItem* item = nullptr;
  std::u16string attribute;
};

/// Returns the place at a path such as `Invoice/Line[2]/Item/@ID`; without an item if the path leads nowhere.
///
/// Numbers are 1-based, names are found in either case. If `grow` is set, a missing element is added, unless
/// one of its name with a smaller number is missing too. Throws `std::runtime_error` for a malformed path.
[[nodiscard]] XmlPlace FindXmlPlace(ravo::ECXMLParser::TXMLItem& root, const XmlWords& words,
                                    const std::string& path, bool grow);

/// Returns the index of the first attribute of that name, in either case.
[[nodiscard]] std::optional<std::size_t> XmlAttribute(const ravo::StringList& params, const XmlWords& words,
                                                      std::u16string_view name);

}  // namespace tool
