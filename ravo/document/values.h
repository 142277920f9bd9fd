#pragma once

#include <ravo/document/scanner.h>

#include <string>

namespace ravo::document {

/// Returns a text as a parser gives it: references decoded, line ends normalised. References to entities that
/// may contain markup, or are declared elsewhere, stay as they are.
[[nodiscard]] std::string DecodedText(const ScannedDocument& document, Span span);

/// Returns an attribute value as a parser gives it: like `DecodedText`, with a blank for each line end and
/// tab.
[[nodiscard]] std::string DecodedValue(const ScannedDocument& document, Span span);

/// Appends what a text or CDATA part says; nothing for any other part.
void AppendText(const ScannedDocument& document, const DocumentPart& part, std::string& to);

/// Returns the text directly inside an element, without that of the elements in it.
[[nodiscard]] std::string OwnText(const ScannedDocument& document, std::size_t element);

}  // namespace ravo::document
