#pragma once

#include <ravo/isdoc/document.h>
#include <ravo/isdoc/finding.h>

namespace ravo::isdoc {

/// Appends what the document says that no schema can refuse: business rules, identifiers, dates, sums.
///
/// Works on any document: what is missing or not understood is left to `CheckStructure`.
void CheckContent(const Document& document, Findings& findings);

}  // namespace ravo::isdoc
