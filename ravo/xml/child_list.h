#pragma once

#include <ravo/runtime/error.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace ravo::xml {

class Arena;
class ItemStore;

/// The children of an item, in one pointer that is null while the item has none.
class ChildList {
 public:
  ChildList() = default;
  ChildList(const ChildList&) = delete;
  ChildList& operator=(const ChildList&) = delete;
  ~ChildList() { Free(); }

  [[nodiscard]] std::uint32_t Count() const noexcept { return slots_ != nullptr ? slots_->count : 0; }
  [[nodiscard]] bool IsEmpty() const noexcept { return Count() == 0; }
  /// The child at an index that must be in range.
  [[nodiscard]] ItemStore* At(std::uint32_t index) const noexcept { return slots_->First()[index]; }
  [[nodiscard]] std::span<ItemStore* const> All() const noexcept {
    return slots_ != nullptr ? std::span<ItemStore* const>(slots_->First(), slots_->count)
                             : std::span<ItemStore* const>();
  }

  /// Appends a child. Throws `RangeError` beyond 2,147,483,647 children.
  void Append(ItemStore* child);
  /// Appends at least one child. An empty list takes just the memory for them, from `arena`.
  void AppendAll(std::span<ItemStore* const> children, Arena& arena);
  /// Removes the child at an index that must be in range. Moves the children up to the nearer end.
  void Remove(std::uint32_t index) noexcept;
  ItemStore* TakeLast() noexcept { return slots_->First()[--slots_->count]; }
  void Move(std::uint32_t from, std::uint32_t to) noexcept;
  void Free() noexcept;
  /// Whether the list owns memory on the heap.
  [[nodiscard]] bool OwnsMemory() const noexcept { return slots_ != nullptr && slots_->owned != 0; }

 private:
  // A header; the pointers follow it.
  struct Slots {
    std::uint32_t count;
    std::uint32_t capacity;
    std::uint32_t head;
    std::uint32_t owned;
    static constexpr std::size_t BytesFor(std::size_t capacity) noexcept {
      return sizeof(Slots) + capacity * sizeof(void*);
    }
    [[nodiscard]] ItemStore** First() noexcept { return reinterpret_cast<ItemStore**>(this + 1) + head; }
  };

  static void Init(Slots* slots, std::uint32_t capacity, bool owned) noexcept;
  [[nodiscard]] std::size_t Capacity() const noexcept;
  void Grow(std::size_t least);

  Slots* slots_ = nullptr;
};

}  // namespace ravo::xml
