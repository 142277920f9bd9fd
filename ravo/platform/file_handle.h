#pragma once

#include <cstdint>

namespace ravo {

/// An open file of the operating system: a handle on Windows, a file descriptor elsewhere.
using FileHandle = std::intptr_t;

/// The value that means "no open file".
inline constexpr FileHandle kNoFile = -1;

}  // namespace ravo
