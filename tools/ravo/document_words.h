#pragma once

#include <ravo/document/text.h>

#include <string>

namespace tool {

/// Returns what is wrong with a document, a path or a value, in the user's language, with the command or
/// option that helps.
[[nodiscard]] std::string WordsOf(const ravo::document::Fault& fault);

/// Returns the same with the place before it, such as "3:14: 'a' is not closed".
[[nodiscard]] std::string WordsOf(const ravo::document::PlacedError& error);

}  // namespace tool
