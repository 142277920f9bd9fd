#pragma once

#include <ravo/document/text.h>

#include <span>
#include <string>
#include <string_view>

namespace tool {

/// Returns the lines that edits change, before and after, as a unified diff without context. Empty if nothing
/// changes.
[[nodiscard]] std::string EditsDiff(const std::string& name, std::string_view utf8,
                                    std::span<const ravo::document::DocumentEdit> edits);

}  // namespace tool
