#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tool {

/// The modules of a QR code, without its quiet zone.
struct QrModules {
  int size = 0;            ///< modules of a side
  std::vector<bool> dark;  ///< row by row

  /// Whether a module is dark; those around the code are not.
  [[nodiscard]] bool IsDark(int row, int column) const {
    const bool inside = row >= 0 && column >= 0 && row < size && column < size;
    return inside && dark[static_cast<std::size_t>(row) * static_cast<std::size_t>(size) +
                          static_cast<std::size_t>(column)];
  }
};

/// The width of the light border that a QR code needs, in modules.
inline constexpr int kQuietZone = 4;

/// Returns whether this build can draw QR codes.
[[nodiscard]] bool DrawsQrCodes();

/// Returns the QR code of a text, with error correction M; nothing if the text is too long for one.
[[nodiscard]] std::optional<QrModules> QrModulesOf(std::string_view text);

}  // namespace tool
