#pragma once

#include <ravo/package.h>

#include <span>

/// Walks over the units of a module table, whose procedures may be null.
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
