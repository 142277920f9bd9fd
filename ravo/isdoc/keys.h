#pragma once

#include <ravo/isdoc/document.h>
#include <ravo/isdoc/finding.h>
#include <ravo/isdoc/schema.h>

namespace ravo::isdoc::schema {

/// Appends the keys that occur twice within the element `scope`, and with `references` those that refer to no
/// key.
void CheckKeys(const Document& document, const Element& scope, const Root& root, bool references,
               Findings& findings);

}  // namespace ravo::isdoc::schema
