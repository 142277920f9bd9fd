#pragma once

#include "output_file.h"

#include <filesystem>
#include <string>

namespace tool {

/// Returns the system's path of a UTF-8 file name.
[[nodiscard]] std::filesystem::path PathOf(const std::string& utf8);

}  // namespace tool
