#pragma once

#include <ravo/isdoc/document.h>
#include <ravo/isdoc/finding.h>

namespace ravo::isdoc {

/// Returns what is wrong with structure and content, in the order of the document.
///
/// May throw `std::bad_alloc`.
[[nodiscard]] Findings Check(const Document& document);

}  // namespace ravo::isdoc
