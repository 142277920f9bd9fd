#pragma once

#include <cerrno>

namespace ravo::platform::posix {

/// Repeats a system call until no signal interrupts it; -1 if it fails.
template <class Call>
auto Uninterrupted(Call call) {
  for (;;) {
    const auto result = call();
    // Untested: a signal would have to arrive during the call.
    if (result != -1 || errno != EINTR) return result;
  }
}

}  // namespace ravo::platform::posix
