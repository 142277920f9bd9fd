#include <ravo/platform/library_entry.h>

#include <pthread.h>

namespace ravo::platform {

// Registers nothing if memory is short.
void CallAroundFork(void (*before)() noexcept, void (*after)() noexcept) noexcept {
  static_cast<void>(pthread_atfork(before, after, after));
}

}  // namespace ravo::platform
