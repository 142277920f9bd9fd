#pragma once

#include <ravo/isdoc/document.h>
#include <ravo/isdoc/finding.h>

namespace ravo::isdoc {

/// Appends each place where the document differs from the standard's schema, in the order of the document.
///
/// Nothing is appended if and only if the document is valid by the schema.
void CheckStructure(const Document& document, Findings& findings);

}  // namespace ravo::isdoc
