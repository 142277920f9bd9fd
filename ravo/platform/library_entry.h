#pragma once

#include <ravo/platform/resources.h>

/// What the operating system's entry points call when it maps and unmaps the shared library. The room that
/// keeps the module record defines both.
namespace ravo::platform {

void LibraryAttached(ModuleHandle library) noexcept;
void LibraryDetached() noexcept;

/// Has `before` run in the process that forks before each fork, and `after` in parent and child after it, for
/// as long as this code is mapped. Nothing on systems without fork.
void CallAroundFork(void (*before)() noexcept, void (*after)() noexcept) noexcept;

/// The module that this code was linked into: the shared library, or the program of a static build.
[[nodiscard]] ModuleHandle ThisModule() noexcept;

}  // namespace ravo::platform
