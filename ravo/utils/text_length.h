#pragma once

#include <ravo/runtime/error.h>

#include <cstddef>
#include <string>
#include <utility>

namespace ravo::utils {

/// Returns `length` as the length of a text. Throws `RangeError` if it is negative or exceeds the length of
/// any text, rather than the standard library's own error.
template <class Char>
[[nodiscard]] std::size_t CheckedLength(std::ptrdiff_t length) {
  if (length < 0 || std::cmp_greater(length, std::basic_string<Char>().max_size())) {
    throw RangeError(u"Length out of range");
  }
  return static_cast<std::size_t>(length);
}

}  // namespace ravo::utils
