#pragma once

#include <ravo/runtime/checked.h>

#include <cstddef>
#include <cstdint>

namespace ravo::utils {

/// Returns the size in bytes of a text of `units` UTF-16 units, counted in 31 bits. Throws `RangeError` for
/// 2^31 units and more, else `OverflowError` from 2^30 units on.
[[nodiscard]] inline std::size_t ByteCountOfUnits(std::size_t units) {
  return static_cast<std::size_t>(CheckedMultiply<std::int32_t>(CheckedCast<std::int32_t>(units), 2));
}

}  // namespace ravo::utils
