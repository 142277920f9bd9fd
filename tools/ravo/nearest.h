#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// Returns the candidate that differs from a mistyped word by the fewest letters added, dropped, changed or
/// swapped; empty if none is near enough to be meant.
[[nodiscard]] std::string Nearest(std::string_view word, const std::vector<std::string>& candidates);

/// Returns the question "Did you mean CANDIDATE?", or an empty text if there is no such candidate.
[[nodiscard]] std::string DidYouMean(std::string_view word, const std::vector<std::string>& candidates);

}  // namespace tool
