#pragma once

#include <ravo/document/scanner.h>

namespace ravo::document {

/// Returns the end of the document type declaration that starts at `begin`, and adds its entities to
/// `document`. Throws `DocumentError` if it is malformed.
[[nodiscard]] std::size_t ReadDoctype(ScannedDocument& document, std::size_t begin);

}  // namespace ravo::document
