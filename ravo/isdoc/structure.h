#pragma once

#include <ravo/isdoc/document.h>
#include <ravo/isdoc/finding.h>

namespace ravo::isdoc {

/// Appends each place where the document differs from the standard's schema, in the order of the document.
///
/// Nothing is appended if and only if the document is valid by the schema of its root, `Invoice` or
/// `CommonDocument`. Each fault is told once; after it the check goes on where the document fits again. What
/// is missing has the place of its parent. Takes linear time, but for sorting findings and keys. May throw
/// `std::bad_alloc`. A text in extensions or a signature whose `xsi:type` is a type of XML Schema that the
/// standard does not use is not checked.
void CheckStructure(const Document& document, Findings& findings);

}  // namespace ravo::isdoc
