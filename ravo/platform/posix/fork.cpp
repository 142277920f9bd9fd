#include <ravo/platform/library_entry.h>

#include <pthread.h>

namespace ravo::platform {

// Where memory is short nothing is registered.
void CallAroundFork(void (*before)() noexcept, void (*after)() noexcept) noexcept {
  static_cast<void>(pthread_atfork(before, after, after));
}

}  // namespace ravo::platform
