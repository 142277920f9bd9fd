#pragma once

#include <ravo/document/reading.h>

#include <string>

namespace tool {

/// Returns the line of an element: its name, attributes and text, indented by its depth.
[[nodiscard]] std::string XmlElementLine(const ravo::document::ReadElement& element, bool colours);

}  // namespace tool
