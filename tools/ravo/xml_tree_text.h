#pragma once

#include "xml_file.h"

#include <string>

namespace tool {

/// Returns `utf8` with a blank for each line break and control character.
[[nodiscard]] std::string OnOneLine(std::string utf8);

/// Returns the tree below an item: a line for each element, with its attributes and text, indented by its
/// depth.
[[nodiscard]] std::string XmlTreeText(const ravo::ECXMLParser::TXMLItem& root, const XmlWords& words,
                                      bool colours);

}  // namespace tool
