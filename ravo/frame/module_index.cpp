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
  ModuleEntry* const former = head_.load(std::memory_order_relaxed);
  ModuleEntry* const entry = former ? new ModuleEntry : &first_;
  entry->instance = instance;
  entry->next = former;
  head_.store(entry, std::memory_order_release);
  return *entry;
}

// The first entry ends the chain and belongs to the index itself.
void ModuleIndex::Prune() noexcept {
  ModuleEntry* chain = nullptr;
  ModuleEntry** end = &chain;
  for (ModuleEntry* entry = head_.load(std::memory_order_relaxed); entry;) {
    ModuleEntry* const next = entry->next;
    if (entry == &first_ || entry->record.load(std::memory_order_relaxed)) {
      *end = entry;
      end = &entry->next;
    } else {
      delete entry;
    }
    entry = next;
  }
  head_.store(chain, std::memory_order_relaxed);
}

}  // namespace ravo::frame
