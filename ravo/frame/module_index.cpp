#include <ravo/frame/module_index.h>

namespace ravo::frame {
namespace {

template <typename Predicate>
ModuleEntry* FirstEntry(ModuleEntry* entry, Predicate is_it) {
  while (entry && !is_it(*entry)) entry = entry->next;
  return entry;
}

}  // namespace

ModuleEntry* ModuleIndex::Find(const void* instance) const noexcept {
  return FirstEntry(head_.load(std::memory_order_acquire),
                    [=](const ModuleEntry& entry) { return entry.instance == instance; });
}

ModuleEntry* ModuleIndex::Holding(const RavoModule& record) const noexcept {
  return FirstEntry(head_.load(std::memory_order_acquire), [&](const ModuleEntry& entry) {
    return entry.record.load(std::memory_order_relaxed) == &record;
  });
}

ModuleEntry& ModuleIndex::Make(void* instance) {
  if (ModuleEntry* const known = Find(instance)) return *known;
  ModuleEntry* const entry = used_ < room_.size() ? &room_[used_++] : new ModuleEntry;
  entry->instance = instance;
  entry->next = head_.load(std::memory_order_relaxed);
  head_.store(entry, std::memory_order_release);
  return *entry;
}

}  // namespace ravo::frame
