#include <ravo/platform/library_entry.h>
#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/posix/paths.h>

#include <atomic>

#include <dlfcn.h>
#include <link.h>

namespace ravo::platform {
namespace gnu_linux {
namespace {

// The rows behind the exported C symbol "RavoResourceTexts" of a module of resources, up to one without text.
struct ResourceRow {
  std::uint16_t id;
  const char16_t* text;
};

// The module's own table: a look-up by handle also answers for what the module links to.
const ResourceRow* TableOf(ModuleHandle module) {
  void* table = dlsym(module, "RavoResourceTexts");
  link_map* owner = nullptr;
  link_map* asked = nullptr;
  Dl_info facts{};
  // Untested: the call fails only if the system is broken.
  const bool is_known = table && dlinfo(module, RTLD_DI_LINKMAP, &asked) == 0 &&
                        dladdr1(table, &facts, reinterpret_cast<void**>(&owner), RTLD_DL_LINKMAP) != 0;
  // Untested: the call fails only if the system is broken.
  return is_known && owner == asked ? static_cast<const ResourceRow*>(table) : nullptr;
}

}  // namespace

std::optional<std::u16string_view> LinuxResources::ResourceText(ModuleHandle module, std::uint16_t id) const {
  // Our own module carries no table, and its address is no handle that the loader could be asked about.
  if (!module || module == ThisModule()) return std::nullopt;
  for (const ResourceRow* row = TableOf(module); row && row->text; ++row) {
    if (row->id == id) return row->text;
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

// Each look-up of a text asks this; the loader, which locks, is asked until it has answered.
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
