#include <ravo/runtime/error.h>
#include <ravo/xml/item_pool.h>
#include <ravo/xml/item_store.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace ravo::xml {

void FreeItem::operator()(ItemStore* item) const noexcept { ItemObjects::Free(*item); }

ItemStore::ItemStore(ItemStore& owner, ItemPool& pool) noexcept
    : owner_(&owner), document_(owner.document_), extras_(&pool.CommonExtras()), in_pool_(true) {}

ItemStore::~ItemStore() {
  if (owner_ != nullptr) owner_->Remove(*this);
  FreeChildren();
  ClearContent();
  DropExtras();
  if (!in_pool_) LeavePool();
}

std::int32_t ItemStore::IndexOf(const ItemStore* child) const noexcept {
  const auto all = children_.All();
  const auto found = std::ranges::find(all, child);
  return found != all.end() ? static_cast<std::int32_t>(found - all.begin()) : -1;
}

ItemStore& ItemStore::NewChild() {
  UnlistedItem child = ItemObjects::New(*this, Pool());
  children_.Append(child.get());
  if (in_pool_) MarkExternal();
  return *child.release();
}

void ItemStore::AppendAll(std::span<ItemStore* const> children, ItemPool& pool) {
  if (children.empty()) return;
  // The list lives as long as this item: in memory of its own pool.
  children_.AppendAll(children, Pool().Memory());
  if (&Pool() != &pool || (in_pool_ && children_.OwnsMemory())) MarkExternal();
}

void ItemStore::Delete(std::uint32_t index) {
  ItemStore* const child = children_.At(index);
  children_.Remove(index);
  if (child->listed_twice_ && IndexOf(child) >= 0) return;
  child->owner_ = nullptr;
  ItemObjects::Free(*child);
}

void ItemStore::Remove(const ItemStore& child) noexcept {
  for (std::uint32_t i = children_.Count(); i-- > 0;) {
    if (children_.At(i) != &child) continue;
    children_.Remove(i);
    if (!child.listed_twice_) return;
  }
}

// Kept: an item given its own parent again is listed twice; it is freed once. Test:
// SetParent.OfTheSameParentListsTheItemTwice
void ItemStore::SetOwner(ItemStore* owner) {
  for (const ItemStore* above = owner; above != nullptr; above = above->owner_) {
    if (above == this) throw Error(u"An item cannot stand below itself");
    if (children_.IsEmpty()) break;
  }
  if (owner != nullptr) {
    // Makes the pool if the owner has none yet: bulk free of the owner must be disabled before it has one.
    ItemPool& pool = owner->Pool();
    owner->children_.Append(this);
    pool.MarkExternal();
  }
  // No step from here on can fail.
  MarkExternal();
  if (owner_ != nullptr && owner_ != owner) owner_->Remove(*this);
  listed_twice_ = owner_ == owner && owner != nullptr;
  owner_ = owner;
}

void ItemStore::Clear() noexcept {
  FreeChildren();
  ClearContent();
  if (Data() == nullptr) DropExtras();
  if (!in_pool_) LeavePool();
}

// In pre-order with a stack of its own: depth costs no stack of the thread.
void ItemStore::SetDocument(ECXMLParser::TECXMLParser* document) {
  struct Level {
    ItemStore* item;
    std::uint32_t next;
  };
  document_ = document;
  std::vector<Level> levels = {{this, 0}};
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.next == level.item->children_.Count()) {
      levels.pop_back();
      continue;
    }
    ItemStore* const child = level.item->children_.At(level.next++);
    child->document_ = document;
    if (!child->children_.IsEmpty()) levels.push_back({child, 0});
  }
}

void ItemStore::MakePool() { SetPool(new ItemPool); }

void ItemStore::SetPool(ItemPool* pool) noexcept {
  if (HasOwnExtras()) {
    extras_->pool = pool;
    extras_->page = pool != nullptr ? &pool->Page() : nullptr;
  } else {
    extras_ = pool != nullptr ? &pool->CommonExtras() : nullptr;
  }
}

void ItemStore::LeavePool() noexcept {
  ItemPool* const pool = PoolOrNull();
  if (pool == nullptr) return;
  SetPool(nullptr);
  pool->Release();
}

void ItemStore::UsePool(ItemPool& pool) noexcept {
  if (in_pool_ || !children_.IsEmpty()) return;
  LeavePool();
  pool.AddUser();
  SetPool(&pool);
}

void ItemStore::MarkExternal() noexcept {
  if (ItemPool* const pool = PoolOrNull()) pool->MarkExternal();
}

void ItemStore::FreeChildren() noexcept {
  ItemPool* const pool = PoolOrNull();
  if (!in_pool_ && pool != nullptr && pool->AllowsBulkFree()) {
    pool->FreeAllItems();
  } else {
    FreeChildrenOneByOne();
  }
  children_.Free();
}

// Frees in post-order along the owners: depth costs no stack.
void ItemStore::FreeChildrenOneByOne() noexcept {
  ItemStore* at = this;
  while (at != this || !at->children_.IsEmpty()) {
    // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): the way up ends at this item
    if (!at->children_.IsEmpty()) {
      ItemStore* const child = at->children_.TakeLast();
      if (child->listed_twice_ && at->IndexOf(child) >= 0) continue;
      child->owner_ = at;
      at = child;
      continue;
    }
    ItemStore* const owner = std::exchange(at->owner_, nullptr);
    ItemObjects::Free(*at);
    at = owner;
  }
}

ItemExtras& ItemStore::MakeExtras() {
  if (HasOwnExtras()) return *extras_;
  ItemPool& pool = Pool();
  extras_ = new ItemExtras;
  SetPool(&pool);
  if (in_pool_) MarkExternal();
  return *extras_;
}

void ItemStore::DropExtras() noexcept {
  if (!HasOwnExtras()) return;
  const std::unique_ptr<ItemExtras> dropped(extras_);
  extras_ = nullptr;
  SetPool(dropped->pool);
}

void* ItemStore::Data() const noexcept { return extras_ != nullptr ? extras_->data : nullptr; }

void ItemStore::SetData(void* data) { MakeExtras().data = data; }

}  // namespace ravo::xml
