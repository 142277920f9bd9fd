#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The index of the column that a person means, or why no column fits.
struct FoundColumn {
  std::optional<std::size_t> index;
  std::string why;
};

/// Finds the column `wanted` among `names`, all in UTF-8: by its name, else by its name without case, else by
/// its 1-based number. A name that several columns have finds none of them. `delimiter` is for the message.
[[nodiscard]] FoundColumn FindColumn(const std::vector<std::string>& names, std::string_view wanted,
                                     char delimiter);

/// Returns a delimiter as messages show it: "';'", "tab".
[[nodiscard]] std::string DelimiterName(char delimiter);

}  // namespace tool
