#include <ravo/frame/module_index.h>
#include <ravo/frame/module_record.h>
#include <ravo/platform/library_entry.h>

#include <atomic>
#include <mutex>
#include <thread>
#include <utility>

namespace ravo {

constinit RavoModule frame::library_module{};

namespace {

using frame::library_module;

// Held by writers of the list alone and briefly. It is constant-initialised, never destroyed and needs no
// memory: the entry point takes it first and last.
class ListLock {
 public:
  void lock() noexcept {
    while (flag_.test_and_set(std::memory_order_acquire)) std::this_thread::yield();
  }
  void unlock() noexcept { flag_.clear(std::memory_order_release); }

 private:
  std::atomic_flag flag_;
};

constinit ListLock list_lock;
constinit RavoModule* first_module = nullptr;
constinit frame::ModuleIndex index;
// Null until the library has a record.
constinit std::atomic<const frame::ModuleEntry*> library_entry{nullptr};
constinit bool inside_library = false;

using Guard = std::scoped_lock<ListLock>;

// A child process must not inherit the lock from a thread that it does not have.
[[maybe_unused]] const bool held_by_who_forks =
    (platform::CallAroundFork([]() noexcept { list_lock.lock(); }, []() noexcept { list_lock.unlock(); }),
     true);

// The host may write the field too.
std::atomic_ref<void*> ResourcesOf(RavoModule& module) { return std::atomic_ref<void*>(module.ResInstance); }

// The functions from here to the public ones expect the lock to be held.

// Returns the link to the first record that fulfils `is_it`, or the last link.
template <typename Predicate>
RavoModule** LinkTo(Predicate is_it) {
  RavoModule** link = &first_module;
  while (*link && !is_it(**link)) link = &(*link)->Next;
  return link;
}

RavoModule** LinkTo(const RavoModule& module) {
  return LinkTo([&](const RavoModule& listed) { return &listed == &module; });
}

// Publishes the record that was listed last of those with the entry's instance.
void Publish(frame::ModuleEntry& entry) {
  RavoModule* const record =
      *LinkTo([&](const RavoModule& listed) { return listed.Instance == entry.instance; });
  entry.record.store(record, std::memory_order_release);
}

void Link(RavoModule& module) {
  if (*LinkTo(module)) return;
  frame::ModuleEntry& entry = index.Make(module.Instance);
  module.Next = std::exchange(first_module, &module);
  Publish(entry);
}

void Unlink(RavoModule& module) {
  RavoModule** const link = LinkTo(module);
  if (!*link) return;
  *link = std::exchange(module.Next, nullptr);
  if (frame::ModuleEntry* const entry = index.Holding(module)) Publish(*entry);
}

void Attach(platform::ModuleHandle library) {
  Unlink(library_module);
  library_module = {nullptr, library, nullptr, nullptr, library};
  Link(library_module);
  library_entry.store(index.Find(library), std::memory_order_release);
}

// The library's record is registered before any other, so that the first entry of the index is its own.
RavoModule& Registered() {
  if (!library_entry.load(std::memory_order_relaxed)) Attach(platform::ThisModule());
  return library_module;
}

// Makes `resources` (null for the library itself) current; returns the separate module that was current, or
// null.
platform::ModuleHandle ExchangeResources(platform::ModuleHandle resources) {
  const Guard guard(list_lock);
  RavoModule& module = Registered();
  const platform::ModuleHandle former =
      ResourcesOf(module).exchange(resources ? resources : module.Instance, std::memory_order_acq_rel);
  return former == module.Instance ? nullptr : former;
}

void Unload(platform::ModuleHandle resources) noexcept {
  if (resources) platform::Resources().UnloadResources(resources);
}

}  // namespace

void RegisterModule(RavoModule& module) {
  const Guard guard(list_lock);
  Registered();
  Link(module);
}

void UnregisterModule(RavoModule& module) noexcept {
  const Guard guard(list_lock);
  Unlink(module);
}

RavoModule* FindModule(const void* instance) noexcept {
  const frame::ModuleEntry* const entry = index.Find(instance);
  return entry ? entry->record.load(std::memory_order_acquire) : nullptr;
}

bool AttachResourceModule(std::u16string_view file) {
  const platform::ModuleHandle resources = platform::Resources().LoadResources(file);
  if (!resources) return false;
  Unload(ExchangeResources(resources));
  return true;
}

void DetachResourceModule() noexcept { Unload(ExchangeResources(nullptr)); }

}  // namespace ravo

namespace ravo::frame {

RavoModule& LibraryModule() noexcept {
  const Guard guard(list_lock);
  return Registered();
}

ResourcePlaces CurrentResourcePlaces() noexcept {
  if (!library_entry.load(std::memory_order_relaxed)) static_cast<void>(LibraryModule());
  const ModuleEntry& own = *library_entry.load(std::memory_order_acquire);
  RavoModule* const listed = own.record.load(std::memory_order_acquire);
  return {own.instance, listed ? ResourcesOf(*listed).load(std::memory_order_acquire) : nullptr};
}

bool InsideLibrary() noexcept { return inside_library; }

}  // namespace ravo::frame

namespace ravo::platform {

void LibraryAttached(ModuleHandle library) noexcept {
  const Guard guard(list_lock);
  inside_library = true;
  Attach(library);
}

void LibraryDetached() noexcept {
  UnregisterModule(frame::library_module);
  Unload(ExchangeResources(nullptr));
}

}  // namespace ravo::platform
