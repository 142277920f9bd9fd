#pragma once

#include <ravo/platform/machine.h>
#include <ravo/runtime/export.h>

#include <cstdint>

namespace ravo::RavoInterfaceInfo {

/// The kinds of operating system that the suite distinguishes, numbered from 0.
enum TOSVersion : std::uint8_t {
  osUnknown,
  os95,
  os95OSR2,
  os98,
  os98SE,
  osNT3,
  osNT4,
  os2K,
  osME,
  osXP,
  osXP64,
  osS2003,
  osHS,
  osS2003R2,
  osVista,
  osS2008,
  osS2008R2,
  osW7
};

/// Returns the kind of a version record; `osUnknown` for systems newer than the last kind, older than the
/// first, or other than Windows.
[[nodiscard]] TOSVersion OSVersionOf(const platform::SystemVersion& version, bool is_server_r2,
                                     std::uint16_t architecture);

/// Returns whether a kind belongs to the NT line.
[[nodiscard]] bool IsNt(TOSVersion kind) noexcept;

}  // namespace ravo::RavoInterfaceInfo
