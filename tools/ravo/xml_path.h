#pragma once

#include "xml_file.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tool {

/// Where a path leads to: an item, and the attribute that it names there, if it names one.
struct XmlPlace {
  ravo::ECXMLParser::TXMLItem* item = nullptr;
  std::u16string attribute;
};

/// Finds the place of a path such as `Invoice/Line[2]/Item/@ID`, counted from 1, names in either case. Where
/// `grow` is set, the next element of its name is added where it is missing. A place without an item where
/// nothing stands; raises `std::runtime_error` for a malformed path.
[[nodiscard]] XmlPlace FindXmlPlace(ravo::ECXMLParser::TXMLItem& root, const XmlWords& words,
                                    const std::string& path, bool grow);

/// Which attribute of an item has that name, in either case.
[[nodiscard]] std::optional<std::size_t> XmlAttribute(const ravo::StringList& params, const XmlWords& words,
                                                      std::u16string_view name);

}  // namespace tool
