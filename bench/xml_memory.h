#pragma once

#include <cstddef>

namespace ravo::bench {

/// Counts what the program takes from the global `operator new` from now on.
void StartCountingMemory() noexcept;
/// Ends the counting and answers the most bytes that were held at once.
[[nodiscard]] std::size_t StopCountingMemory() noexcept;

}  // namespace ravo::bench
