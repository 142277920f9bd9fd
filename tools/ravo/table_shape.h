#pragma once

#include "encoding_guess.h"

#include <cstddef>
#include <string_view>

namespace tool {

/// The delimiters that can be detected, the most likely first.
inline constexpr std::string_view kDelimiters = ";,\t|";

/// Returns the delimiter of a table that starts with `sample`.
///
/// That is the one of `kDelimiters` that splits the first row and that gives most rows as many fields as the
/// first row has; of two, the one with more fields, then the more likely one. ";" if none splits the first
/// row. `is_whole` tells that nothing follows the sample.
[[nodiscard]] char DetectDelimiter(std::string_view sample, bool is_whole);

}  // namespace tool
