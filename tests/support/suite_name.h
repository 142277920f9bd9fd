#pragma once

#include <algorithm>
#include <filesystem>
#include <string>

namespace ravo::test {

/// Returns a path as the suite writes names: "\" between folders.
[[nodiscard]] inline std::u16string SuiteName(const std::filesystem::path& path) {
  std::u16string name = path.u16string();
  std::ranges::replace(name, u'/', u'\\');
  return name;
}

}  // namespace ravo::test
