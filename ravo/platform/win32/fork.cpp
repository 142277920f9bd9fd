#include <ravo/platform/library_entry.h>

namespace ravo::platform {

void CallAroundFork(void (*)() noexcept, void (*)() noexcept) noexcept {}

}  // namespace ravo::platform
