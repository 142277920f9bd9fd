#include <ravo/runtime/checked.h>
#include <ravo/xml/arena.h>
#include <ravo/xml/child_list.h>

#include <algorithm>
#include <new>

namespace ravo::xml {

void ChildList::Init(Slots* slots, std::uint32_t capacity, bool owned) noexcept {
  *slots = {0, capacity, 0, owned ? 1U : 0U};
}

void ChildList::Free() noexcept {
  if (OwnsMemory()) ::operator delete(slots_);
  slots_ = nullptr;
}

// From the first child on: removed ones at the front leave a gap before it.
std::size_t ChildList::Capacity() const noexcept {
  return slots_ != nullptr ? slots_->capacity - slots_->head : 0;
}

void ChildList::Grow(std::size_t least) {
  const std::size_t capacity = std::max<std::size_t>({least, std::size_t{Count()} * 2, 4});
  auto* grown = static_cast<Slots*>(::operator new(Slots::BytesFor(capacity)));
  Init(grown, CheckedCast<std::uint32_t>(capacity), true);
  std::ranges::copy(All(), grown->First());
  grown->count = Count();
  Free();
  slots_ = grown;
}

void ChildList::Append(ItemStore* child) {
  // Untested: needs 2,147,483,647 children.
  if (Count() >= INT32_MAX) throw RangeError(u"Too many items");
  if (Count() == Capacity()) Grow(std::size_t{Count()} + 1);
  slots_->First()[slots_->count++] = child;
}

void ChildList::AppendAll(std::span<ItemStore* const> children, Arena& arena) {
  if (slots_ == nullptr) {
    const auto count = CheckedCast<std::uint32_t>(children.size());
    slots_ = static_cast<Slots*>(arena.Allocate(Slots::BytesFor(children.size())));
    Init(slots_, count, false);
  } else if (Capacity() - Count() < children.size()) {
    Grow(Count() + children.size());
  }
  std::ranges::copy(children, slots_->First() + slots_->count);
  slots_->count += static_cast<std::uint32_t>(children.size());
}

void ChildList::Remove(std::uint32_t index) noexcept {
  ItemStore** const first = slots_->First();
  if (index < slots_->count / 2) {
    std::move_backward(first, first + index, first + index + 1);
    ++slots_->head;
  } else {
    std::move(first + index + 1, first + slots_->count, first + index);
  }
  --slots_->count;
}

void ChildList::Move(std::uint32_t from, std::uint32_t to) noexcept {
  ItemStore** const first = slots_->First();
  ItemStore* const moved = first[from];
  if (from < to) {
    std::move(first + from + 1, first + to + 1, first + from);
  } else {
    std::move_backward(first + to, first + from, first + from + 1);
  }
  first[to] = moved;
}

}  // namespace ravo::xml
