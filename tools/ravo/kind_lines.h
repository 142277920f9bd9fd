#pragma once

#include "text.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace tool {

/// Returns one line per kind for a help text: its `name`, and its `title`, translated, in an aligned column.
template <class Kinds>
[[nodiscard]] std::string KindLines(const Kinds& kinds) {
  std::size_t width = 0;
  for (const auto& kind : kinds) width = std::max(width, kind.name.size());
  std::string text;
  for (const auto& kind : kinds) {
    const std::string gap(width - kind.name.size() + 2, ' ');
    text.append("  ").append(kind.name).append(gap).append(Text(kind.title)).append("\n");
  }
  return text;
}

}  // namespace tool
