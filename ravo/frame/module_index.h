#pragma once

#include <ravo/package.h>

#include <atomic>

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

  /// The entry of an instance, made where there is none yet. The first one needs no memory; a later one
  /// throws `std::bad_alloc` where there is none.
  ModuleEntry& Make(void* instance);

  /// The entry that has this record, or null.
  [[nodiscard]] ModuleEntry* Holding(const RavoModule& record) const noexcept;

  /// Frees the entries without a record. Only while nobody reads.
  void Prune() noexcept;

 private:
  ModuleEntry first_;
  std::atomic<ModuleEntry*> head_{nullptr};
};

}  // namespace ravo::frame
