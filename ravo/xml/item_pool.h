#pragma once

#include <ravo/xml/arena.h>
#include <ravo/xml/code_page.h>
#include <ravo/xml/item_extras.h>

#include <cstddef>
#include <memory>

namespace ravo::xml {

/// The memory that the items of one load or of one parent share, the code page of their bytes, and whether
/// they can be freed at once.
///
/// Lives until its last user releases it and its last item is gone.
class ItemPool {
 public:
  ItemPool() {
    common_.is_common = true;
    common_.pool = this;
    common_.page = &CodePage::Current();
  }
  ItemPool(const ItemPool&) = delete;
  ItemPool& operator=(const ItemPool&) = delete;
  ~ItemPool() = default;

  /// A new pool has one user, its maker.
  void AddUser() noexcept { ++users_; }
  void Release() noexcept {
    --users_;
    DeleteIfUnused();
  }

  /// Memory for one item of `size` bytes. Throws `std::bad_alloc`.
  [[nodiscard]] void* NewItem(std::size_t size) {
    void* const cell = arena_.AllocateCell(size);
    ++items_;
    return cell;
  }
  void FreeItem(void* cell) noexcept {
    arena_.FreeCell(cell);
    --items_;
    DeleteIfUnused();
  }

  /// Disables bulk free: an item of the pool owns memory outside of the arena, or is no longer below the
  /// items that it was made below.
  void MarkExternal() noexcept { external_ = true; }
  [[nodiscard]] bool AllowsBulkFree() const noexcept { return !external_; }
  /// Frees every item without running its destructor. `AllowsBulkFree` must hold.
  void FreeAllItems() noexcept { items_ = 0; }

  [[nodiscard]] Arena& Memory() noexcept { return arena_; }
  [[nodiscard]] const CodePage& Page() const noexcept { return *common_.page; }
  [[nodiscard]] ItemExtras& CommonExtras() noexcept { return common_; }

 private:
  void DeleteIfUnused() noexcept {
    if (users_ == 0 && items_ == 0) delete this;
  }

  Arena arena_;
  ItemExtras common_;
  std::size_t users_ = 1;
  std::size_t items_ = 0;
  bool external_ = false;
};

/// A use of a pool for the length of a scope.
struct ReleasePool {
  void operator()(ItemPool* pool) const noexcept { pool->Release(); }
};
using PoolUse = std::unique_ptr<ItemPool, ReleasePool>;

}  // namespace ravo::xml
