#include "support/memory_limit.h"

#if !defined(_WIN32) && !defined(RAVO_SANITIZED)
#include <sys/resource.h>

namespace ravo::test {

bool LimitMemory(std::size_t bytes) noexcept {
  const rlimit limit = {bytes, bytes};
  return setrlimit(RLIMIT_AS, &limit) == 0;
}

}  // namespace ravo::test

#else

namespace ravo::test {

bool LimitMemory(std::size_t) noexcept { return false; }

}  // namespace ravo::test

#endif
