#pragma once

#include <ravo/catalogue/table_catalogue.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace ravo {

/// The hash index over the rows of the table catalogue, computed by the compiler: one multiplication and one
/// shift give the only slot where an identifier can be.
namespace table_index {

/// One slot. The description is a part of the pool, the concatenation of all descriptions. An empty slot has
/// identifier 0 and an empty description.
struct alignas(8) Slot {
  std::int32_t id = 0;
  std::uint16_t text_at = 0;
  std::uint8_t text_length = 0;
  TableModule module{};
};

inline constexpr int kSlotBits = 11;

struct alignas(64) Index {
  std::array<Slot, std::size_t{1} << kSlotBits> slots{};
};

/// Returns the index of the slot of an identifier.
[[nodiscard]] constexpr std::size_t Place(std::int32_t id, std::uint32_t multiplier) noexcept {
  return (static_cast<std::uint32_t>(id) * multiplier) >> (32 - kSlotBits);
}

}  // namespace table_index
}  // namespace ravo
