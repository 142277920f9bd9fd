#pragma once

#include <ravo/frame/modules.h>

#include <cstdint>

/// Starting and stopping single modules.
namespace ravo::frame {

/// How often a module was started and not yet stopped, as a negative number; 0 while it is stopped.
[[nodiscard]] std::int32_t ModuleCounter(Module module) noexcept;

// The bodies of the modules that have something to do. The rooms of these modules define them: the frame lies
// below all rooms and includes none. A start needs no memory and cannot fail.
void StartDISystemCompat() noexcept;
void StopDISystemCompat() noexcept;
void StopDIUtils() noexcept;

}  // namespace ravo::frame
