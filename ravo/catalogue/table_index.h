#pragma once

#include <ravo/catalogue/table_catalogue.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace ravo {

/// The index over the rows of the table catalogue, built by the compiler: one multiplication and one shift
/// lead from an identifier to the only slot that can have it.
namespace table_index {

/// What stands at one place. The description is a piece of the pool, the concatenation of all descriptions.
/// An empty slot names table 0, whose description is empty.
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

/// Where an identifier has its slot.
[[nodiscard]] constexpr std::size_t Place(std::int32_t id, std::uint32_t multiplier) noexcept {
  return (static_cast<std::uint32_t>(id) * multiplier) >> (32 - kSlotBits);
}

}  // namespace table_index
}  // namespace ravo
