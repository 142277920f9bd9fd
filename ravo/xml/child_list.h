#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace ravo::ECXMLParser {
class TXMLItem;
}

namespace ravo::xml {

class ItemArena;

/// The children of an item in one pointer: null while there are none.
class ChildList {
 public:
  using Item = ECXMLParser::TXMLItem;

  ChildList() = default;
  ChildList(const ChildList&) = delete;
  ChildList& operator=(const ChildList&) = delete;
  ~ChildList() { Free(); }

  [[nodiscard]] std::uint32_t Count() const noexcept { return slots_ != nullptr ? slots_->count : 0; }
  [[nodiscard]] Item* At(std::uint32_t index) const noexcept { return slots_->First()[index]; }
  [[nodiscard]] std::span<Item* const> All() const noexcept {
    return slots_ != nullptr ? std::span<Item* const>(slots_->First(), slots_->count)
                             : std::span<Item* const>();
  }

  void Append(Item* child);
  /// All of them, one at least, at once: in a room of just that size where there was none.
  void AppendAll(std::span<Item* const> children, ItemArena& arena);
  /// Costs no more than the way to the nearer end.
  void Remove(std::uint32_t index) noexcept;
  Item* TakeLast() noexcept { return slots_->First()[--slots_->count]; }
  void Move(std::uint32_t from, std::uint32_t to) noexcept;
  void Free() noexcept;
  /// Whether the list holds memory of its own, outside every arena.
  [[nodiscard]] bool OwnsMemory() const noexcept { return slots_ != nullptr && slots_->owned != 0; }

 private:
  struct Slots {
    std::uint32_t count;
    std::uint32_t room;
    std::uint32_t head;
    std::uint32_t owned;
    [[nodiscard]] Item** First() noexcept { return reinterpret_cast<Item**>(this + 1) + head; }
  };

  static void Init(Slots* slots, std::uint32_t room, bool owned) noexcept;
  void Grow(std::size_t least);

  Slots* slots_ = nullptr;
};

}  // namespace ravo::xml
