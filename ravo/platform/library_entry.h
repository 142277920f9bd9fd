#pragma once

#include <ravo/platform/resources.h>

/// The entry points of the shared library.
namespace ravo::platform {

void LibraryAttached(ModuleHandle library) noexcept;
void LibraryDetached() noexcept;

/// Runs `before` before each fork, and `after` in parent and child after it, for as long as this code is
/// mapped. Does nothing on systems without fork.
void CallAroundFork(void (*before)() noexcept, void (*after)() noexcept) noexcept;

/// Returns the module that this code was linked into: the shared library, or the program of a static build.
[[nodiscard]] ModuleHandle ThisModule() noexcept;

}  // namespace ravo::platform
