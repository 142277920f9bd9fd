#pragma once

#include <ravo/runtime/checked.h>

#include <cstddef>
#include <cstdint>

namespace ravo::utils {

/// The bytes of a text of so many UTF-16 units, which are counted in 31 bits: `RangeError` for 2^31 units and
/// more, `OverflowError` from 2^30 on.
[[nodiscard]] inline std::size_t ByteCountOfUnits(std::size_t units) {
  return static_cast<std::size_t>(CheckedMultiply<std::int32_t>(CheckedCast<std::int32_t>(units), 2));
}

}  // namespace ravo::utils
