#include <ravo/platform/library_entry.h>

#include <windows.h>

namespace ravo::platform {

ModuleHandle ThisModule() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&ThisModule), &module);
  return module;
}

// Windows has no fork.
void CallAroundFork(void (*)() noexcept, void (*)() noexcept) noexcept {}

}  // namespace ravo::platform
