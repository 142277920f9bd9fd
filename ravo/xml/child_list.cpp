#include <ravo/runtime/checked.h>
#include <ravo/xml/child_list.h>
#include <ravo/xml/item_arena.h>

#include <algorithm>
#include <new>

namespace ravo::xml {

void ChildList::Init(Slots* slots, std::uint32_t room, bool owned) noexcept {
  *slots = {0, room, 0, owned ? 1U : 0U};
}

void ChildList::Free() noexcept {
  if (OwnsMemory()) ::operator delete(slots_);
  slots_ = nullptr;
}

void ChildList::Grow(std::size_t least) {
  const std::size_t room = std::max<std::size_t>({least, std::size_t{Count()} * 2, 4});
  auto* grown = static_cast<Slots*>(::operator new(sizeof(Slots) + room * sizeof(Item*)));
  Init(grown, CheckedCast<std::uint32_t>(room), true);
  std::ranges::copy(All(), grown->First());
  grown->count = Count();
  Free();
  slots_ = grown;
}

void ChildList::Append(Item* child) {
  if (slots_ == nullptr || slots_->head + slots_->count == slots_->room) Grow(std::size_t{Count()} + 1);
  slots_->First()[slots_->count++] = child;
}

void ChildList::AppendAll(std::span<Item* const> children, ItemArena& arena) {
  if (slots_ == nullptr) {
    slots_ = static_cast<Slots*>(arena.Room(sizeof(Slots) + children.size() * sizeof(Item*)));
    Init(slots_, CheckedCast<std::uint32_t>(children.size()), false);
  } else if (slots_->room - slots_->head - slots_->count < children.size()) {
    Grow(slots_->count + children.size());
  }
  std::ranges::copy(children, slots_->First() + slots_->count);
  slots_->count += static_cast<std::uint32_t>(children.size());
}

void ChildList::Remove(std::uint32_t index) noexcept {
  Item** const first = slots_->First();
  if (index < slots_->count / 2) {
    std::move_backward(first, first + index, first + index + 1);
    ++slots_->head;
  } else {
    std::move(first + index + 1, first + slots_->count, first + index);
  }
  --slots_->count;
}

void ChildList::Move(std::uint32_t from, std::uint32_t to) noexcept {
  Item** const first = slots_->First();
  Item* const moved = first[from];
  if (from < to) {
    std::move(first + from + 1, first + to + 1, first + from);
  } else {
    std::move_backward(first + to, first + from, first + from + 1);
  }
  first[to] = moved;
}

}  // namespace ravo::xml
