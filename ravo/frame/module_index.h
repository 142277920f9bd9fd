#pragma once

#include <ravo/package.h>

#include <array>
#include <atomic>
#include <cstddef>

/// Which listed record an instance has, for readers that take no lock and never wait: no other thread can
/// hold them up, not even one that a fork left behind or that the end of the process stopped.
namespace ravo::frame {

/// An instance that was listed at some time. Entries stay, only their records come and go: a reader can walk
/// on from any entry while a record leaves.
struct ModuleEntry {
  void* instance = nullptr;
  /// Null where the instance is not listed now.
  std::atomic<RavoModule*> record{nullptr};
  ModuleEntry* next = nullptr;
};

/// One writer at a time; readers at any time.
class ModuleIndex {
 public:
  constexpr ModuleIndex() = default;

  /// The entry of an instance, or null. For readers.
  [[nodiscard]] ModuleEntry* Find(const void* instance) const noexcept;

  /// The entry of an instance, made where there is none yet. The first `kRoom` need no memory; a later one
  /// throws `std::bad_alloc` where there is none, and is never freed: a reader may be on it until the process
  /// is gone.
  ModuleEntry& Make(void* instance);

  /// The entry that has this record, or null.
  [[nodiscard]] ModuleEntry* Holding(const RavoModule& record) const noexcept;

 private:
  // More than the suite has modules.
  static constexpr std::size_t kRoom = 128;

  std::array<ModuleEntry, kRoom> room_{};
  std::size_t used_ = 0;
  std::atomic<ModuleEntry*> head_{nullptr};
};

}  // namespace ravo::frame
