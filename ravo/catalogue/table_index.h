#pragma once

#include <ravo/runtime/export.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ravo {

enum class TableModule : std::uint8_t;

/// The hash index over the rows of the table catalogue, computed by the compiler: one multiplication and one
/// shift give the only slot where an identifier can be. Look-ups are inline, because a call costs more than
/// they do. The layout is therefore part of the ABI; the multiplier and the texts are not.
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
  const char16_t* pool = nullptr;
  std::uint32_t multiplier = 0;
};

extern RAVO_API const Index kIndex;

/// Returns the index of the slot of an identifier.
[[nodiscard]] constexpr std::size_t Place(std::int32_t id, std::uint32_t multiplier) noexcept {
  return (static_cast<std::uint32_t>(id) * multiplier) >> (32 - kSlotBits);
}

[[nodiscard]] inline const Slot& SlotOf(std::int32_t id) noexcept {
  return kIndex.slots[Place(id, kIndex.multiplier)];
}

/// Returns the description in `slot`, or an empty text if `hit` is false. The two differ only in the length,
/// by a product: a conditional would become a branch, which mixed hits and misses mispredict half of the
/// time.
[[nodiscard]] inline std::u16string_view TextOf(const Slot& slot, bool hit) noexcept {
  return {kIndex.pool + slot.text_at, slot.text_length * std::size_t{hit}};
}

}  // namespace table_index
}  // namespace ravo
