#pragma once

#include <cerrno>

namespace ravo::platform::posix {

/// Runs a system call again for as long as a signal cuts it short; -1 is its failure.
template <class Call>
auto Uninterrupted(Call call) {
  for (;;) {
    const auto result = call();
    // Untested: a signal would have to arrive during the call.
    if (result != -1 || errno != EINTR) return result;
  }
}

}  // namespace ravo::platform::posix
