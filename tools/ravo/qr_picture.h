#pragma once

#include "qr_modules.h"

#include <string>

/// Drawings of a QR code with its quiet zone.
namespace tool {

/// Returns the code in half blocks, for a terminal with light letters on a dark ground; `coloured` sets these
/// colours by codes, so that it can be read on any ground.
[[nodiscard]] std::string QrBlocks(const QrModules& modules, bool coloured);

/// Returns an SVG document whose unit is the module, with a line for each row.
[[nodiscard]] std::string QrSvg(const QrModules& modules);

/// Returns a PNG picture of two colours with `scale` pixels a module. Precondition: `HasCompression()`.
[[nodiscard]] std::string QrPng(const QrModules& modules, int scale);

}  // namespace tool
