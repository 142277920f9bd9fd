#pragma once

#include <ravo/frame/modules.h>

#include <cstdint>

/// Starting and stopping single modules.
namespace ravo::frame {

/// Returns the number of starts without a stop, as a negative number; 0 while the module is stopped.
[[nodiscard]] std::int32_t ModuleCounter(Module module) noexcept;

// The work of those modules that have some. Their rooms define these functions, because the frame includes
// no higher room. A start needs no memory and cannot fail.
void StartDISystemCompat() noexcept;
void StopDIUtils() noexcept;

}  // namespace ravo::frame
