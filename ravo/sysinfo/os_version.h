#pragma once

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

}  // namespace ravo::RavoInterfaceInfo
