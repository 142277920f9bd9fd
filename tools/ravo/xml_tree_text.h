#pragma once

#include "document_reading.h"

#include <string>

namespace tool {

/// Returns the line of an element: its name, attributes and text, indented by its depth.
[[nodiscard]] std::string XmlElementLine(const ReadElement& element, bool colours);

}  // namespace tool
