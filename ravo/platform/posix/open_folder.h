#pragma once

#include <memory>

#include <dirent.h>

namespace ravo::platform::posix {

struct CloseFolder {
  void operator()(DIR* folder) const noexcept { closedir(folder); }
};

/// An open folder; null if it cannot be opened.
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

}  // namespace ravo::platform::posix
