#pragma once

#include <cstddef>

namespace ravo::bench {

/// Starts counting the memory that the program allocates with the global `operator new`.
void StartCountingMemory() noexcept;
/// Stops counting and returns the peak in bytes.
[[nodiscard]] std::size_t StopCountingMemory() noexcept;

}  // namespace ravo::bench
