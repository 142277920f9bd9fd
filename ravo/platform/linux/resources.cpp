#include <ravo/platform/library_entry.h>
#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/posix/paths.h>
#include <ravo/runtime/c_resource_text.h>

#include <atomic>

#include <dlfcn.h>
#include <link.h>

namespace ravo::platform {
namespace gnu_linux {
namespace {

// Returns the module's own texts, or null: a look-up by handle also finds those of modules that it links to.
const RavoResourceText* TextsOf(ModuleHandle module) {
  void* table = dlsym(module, "RavoResourceTexts");
  link_map* owner = nullptr;
  link_map* asked = nullptr;
  Dl_info facts{};
  // Untested: the call fails only if the system is broken.
  const bool is_known = table && dlinfo(module, RTLD_DI_LINKMAP, &asked) == 0 &&
                        dladdr1(table, &facts, reinterpret_cast<void**>(&owner), RTLD_DL_LINKMAP) != 0;
  // Untested: the call fails only if the system is broken.
  return is_known && owner == asked ? static_cast<const RavoResourceText*>(table) : nullptr;
}

}  // namespace

std::optional<std::u16string_view> LinuxResources::ResourceText(ModuleHandle module, std::uint16_t id) const {
  // Our own module has no such table, and its address is no handle of the loader.
  if (!module || module == ThisModule()) return std::nullopt;
  for (const RavoResourceText* row = TextsOf(module); row && row->Text; ++row) {
    if (row->Id == id) return reinterpret_cast<const char16_t*>(row->Text);
  }
  return std::nullopt;
}

ModuleHandle LinuxResources::LoadResources(std::u16string_view file) const {
  const auto path = posix::HostPath(file);
  return path && !path->empty() ? dlopen(path->c_str(), RTLD_NOW | RTLD_LOCAL) : nullptr;
}

void LinuxResources::UnloadResources(ModuleHandle module) const {
  if (module && module != ThisModule()) dlclose(module);
}

}  // namespace gnu_linux

namespace {

ModuleHandle AskedForThisModule() noexcept {
  Dl_info facts{};
  // Untested: the call fails only if the system is broken.
  return dladdr(reinterpret_cast<void*>(&ThisModule), &facts) != 0 ? facts.dli_fbase : nullptr;
}

}  // namespace

// Each look-up of a text calls this. The loader takes a lock, so its answer is cached.
ModuleHandle ThisModule() noexcept {
  constinit static std::atomic<ModuleHandle> known{nullptr};
  ModuleHandle module = known.load(std::memory_order_relaxed);
  if (!module) {
    module = AskedForThisModule();
    known.store(module, std::memory_order_relaxed);
  }
  return module;
}

}  // namespace ravo::platform
