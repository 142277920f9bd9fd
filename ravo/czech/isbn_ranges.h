#pragma once

#include <cstddef>
#include <string_view>

namespace ravo::czech::detail {

/// How many digits group and publisher have; zeros if the list has none for them.
struct IsbnParts {
  std::size_t group = 0;
  std::size_t publisher = 0;
};

/// The parts of an ISBN of thirteen digits, by the list of the International ISBN Agency.
[[nodiscard]] IsbnParts IsbnPartsOf(std::string_view isbn) noexcept;

}  // namespace ravo::czech::detail
