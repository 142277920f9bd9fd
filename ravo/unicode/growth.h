#pragma once

#include <ravo/runtime/checked.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>

/// Growth of the arrays of reader and writer: by a quarter plus four, only when full.
namespace ravo::unicode {

/// Returns the next capacity of an array that is full. Throws `RangeError` if it does not fit 32 bits.
[[nodiscard]] constexpr std::uint32_t GrownCapacity(std::uint32_t full) {
  return CheckedCast<std::uint32_t>((std::uint64_t{full} + full / 4 + 4) & ~std::uint64_t{3});
}

/// Returns the capacity after storing `needed` units one by one.
[[nodiscard]] constexpr std::uint32_t CapacityFor(std::uint64_t needed, std::uint32_t capacity) {
  while (capacity < needed) capacity = GrownCapacity(capacity);
  return capacity;
}

/// Moves the first `used` units to a new array of `capacity` + `beyond` units; its other units are zero.
template <class Unit>
void Reallocate(std::unique_ptr<Unit[]>& array, std::uint32_t used, std::uint32_t capacity,
                std::size_t beyond = 0) {
  const std::size_t size = capacity + beyond;
  auto larger = std::make_unique_for_overwrite<Unit[]>(size);
  std::copy_n(array.get(), used, larger.get());
  std::fill_n(larger.get() + used, size - used, Unit{});
  array = std::move(larger);
}

}  // namespace ravo::unicode
