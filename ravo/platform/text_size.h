#pragma once

#include <cstdint>

namespace ravo::platform {

/// A device that text is drawn on: a device context on Windows.
using DeviceContext = void*;

/// The size of a text in logical units of a device.
struct TextSize {
  std::int32_t width = 0;   ///< from left to right
  std::int32_t height = 0;  ///< of a line
  friend bool operator==(const TextSize&, const TextSize&) = default;
};

}  // namespace ravo::platform
