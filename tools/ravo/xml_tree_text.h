#pragma once

#include "xml_file.h"

#include <string>

namespace tool {

/// A text of a document in UTF-8, with a blank for each line break and control character.
[[nodiscard]] std::string OnOneLine(std::string utf8);

/// The tree below an item: a line for each element, with its attributes and its text, indented by its depth.
[[nodiscard]] std::string XmlTreeText(const ravo::ECXMLParser::TXMLItem& root, const XmlWords& words,
                                      bool colours);

}  // namespace tool
