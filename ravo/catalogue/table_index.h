#pragma once

#include <ravo/runtime/export.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ravo {

enum class TableModule : std::uint8_t;

/// The index over the rows of the table catalogue, built by the compiler: one multiplication and one shift
/// lead from an identifier to the only slot where it can stand. Look-ups are inline, for a call costs more
/// than they do; the layout is therefore part of the library's binary interface, while the multiplier and the
/// texts are not.
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
  const char16_t* pool = nullptr;
  std::uint32_t multiplier = 0;
};

extern RAVO_API const Index kIndex;

/// Where an identifier has its slot.
[[nodiscard]] constexpr std::size_t Place(std::int32_t id, std::uint32_t multiplier) noexcept {
  return (static_cast<std::uint32_t>(id) * multiplier) >> (32 - kSlotBits);
}

[[nodiscard]] inline const Slot& SlotOf(std::int32_t id) noexcept {
  return kIndex.slots[Place(id, kIndex.multiplier)];
}

/// The description in `slot`, or nothing where that is not a hit. The two differ in the length alone, by a
/// product: a choice would become a jump, which mixed hits and misses mispredict every other time.
[[nodiscard]] inline std::u16string_view TextOf(const Slot& slot, bool hit) noexcept {
  return {kIndex.pool + slot.text_at, slot.text_length * std::size_t{hit}};
}

}  // namespace table_index
}  // namespace ravo
