#pragma once

#include <ravo/package.h>

#include <span>

/// Going through the units of a module table, either procedure of which may be missing.
namespace ravo::frame {

/// Calls every initialiser, from the first slot to the last.
inline void StartUnits(std::span<const RavoPackageUnit> units) {
  for (const RavoPackageUnit& unit : units) {
    if (unit.Initialize) unit.Initialize();
  }
}

/// Calls every finaliser, from the last slot to the first.
inline void StopUnits(std::span<const RavoPackageUnit> units) {
  for (auto unit = units.rbegin(); unit != units.rend(); ++unit) {
    if (unit->Finalize) unit->Finalize();
  }
}

}  // namespace ravo::frame
