#include <ravo/frame/module_record.h>
#include <ravo/platform/library_entry.h>

#include <cstddef>
#include <mutex>
#include <new>
#include <utility>

namespace ravo {
namespace {

// Initialised as constants, and the lock at its first use: the entry point runs before or after other
// initialisers as it pleases. The lock is never destroyed, since the entry point may come last too.
constinit RavoModule* first_module = nullptr;
constinit RavoModule library_module{};
constinit bool inside_library = false;

std::mutex& ListLock() noexcept {
  alignas(std::mutex) static std::byte place[sizeof(std::mutex)];
  static std::mutex& lock = *new (place) std::mutex;
  return lock;
}

using Guard = std::scoped_lock<std::mutex>;

// The link that leads to the first record for which `is_it` holds, or the last link. The caller holds the
// lock.
template <typename Predicate>
RavoModule** LinkTo(Predicate is_it) {
  RavoModule** link = &first_module;
  while (*link && !is_it(**link)) link = &(*link)->Next;
  return link;
}

RavoModule** LinkTo(const RavoModule& module) {
  return LinkTo([&](const RavoModule& listed) { return &listed == &module; });
}

RavoModule** LinkToInstance(const void* instance) {
  return LinkTo([=](const RavoModule& listed) { return listed.Instance == instance; });
}

void Link(RavoModule& module) {
  if (RavoModule** link = LinkTo(module); !*link) {
    module.Next = std::exchange(first_module, &module);
  }
}

void Unlink(RavoModule& module) {
  if (RavoModule** link = LinkTo(module); *link) *link = std::exchange(module.Next, nullptr);
}

void Attach(platform::ModuleHandle library) {
  library_module = {library_module.Next, library, nullptr, nullptr, library};
  Link(library_module);
}

// The library's record, registered. The caller holds the lock.
RavoModule& Registered() {
  if (!library_module.Instance) Attach(platform::ThisModule());
  return library_module;
}

// Puts `resources` (null for the library itself) in force; gives the separate module that was, or null.
platform::ModuleHandle ExchangeResources(platform::ModuleHandle resources) {
  const Guard guard(ListLock());
  RavoModule& module = Registered();
  const platform::ModuleHandle former =
      std::exchange(module.ResInstance, resources ? resources : module.Instance);
  return former == module.Instance ? nullptr : former;
}

void Unload(platform::ModuleHandle resources) noexcept {
  if (resources) platform::CurrentMachine().UnloadResources(resources);
}

}  // namespace

void RegisterModule(RavoModule& module) noexcept {
  const Guard guard(ListLock());
  Link(module);
}

void UnregisterModule(RavoModule& module) noexcept {
  const Guard guard(ListLock());
  Unlink(module);
}

RavoModule* FindModule(const void* instance) noexcept {
  const Guard guard(ListLock());
  return *LinkToInstance(instance);
}

bool AttachResourceModule(std::u16string_view file) {
  const platform::ModuleHandle resources = platform::CurrentMachine().LoadResources(file);
  if (!resources) return false;
  Unload(ExchangeResources(resources));
  return true;
}

void DetachResourceModule() noexcept { Unload(ExchangeResources(nullptr)); }

}  // namespace ravo

namespace ravo::frame {

RavoModule& LibraryModule() noexcept {
  const Guard guard(ListLock());
  return Registered();
}

ResourcePlaces CurrentResourcePlaces() noexcept {
  const Guard guard(ListLock());
  const platform::ModuleHandle own = Registered().Instance;
  const RavoModule* listed = *LinkToInstance(own);
  return {own, listed ? listed->ResInstance : nullptr};
}

bool InsideLibrary() noexcept { return inside_library; }

}  // namespace ravo::frame

namespace ravo::platform {

void LibraryAttached(ModuleHandle library) noexcept {
  const Guard guard(ListLock());
  inside_library = true;
  Attach(library);
}

void LibraryDetached() noexcept {
  UnregisterModule(library_module);
  Unload(ExchangeResources(nullptr));
}

}  // namespace ravo::platform
