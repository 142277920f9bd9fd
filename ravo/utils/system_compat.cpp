#include <ravo/frame/units.h>
#include <ravo/platform/machine.h>
#include <ravo/utils/system_compat.h>

#include <utility>

namespace ravo::DISystemCompat {
namespace {

SystemRecord record;

// A system library that the module loaded itself. Nothing in this library loads one.
platform::ModuleHandle system_library = nullptr;

}  // namespace

const SystemRecord& RecordedSystem() noexcept { return record; }

}  // namespace ravo::DISystemCompat

namespace ravo::frame {

void StartDISystemCompat() noexcept {
  const platform::SystemNumbers version = platform::CurrentMachine().VersionNumbers();
  DISystemCompat::record = {static_cast<std::uint32_t>(version.family), version.major, version.minor};
}

void StopDISystemCompat() noexcept {
  const platform::ModuleHandle library = std::exchange(DISystemCompat::system_library, nullptr);
  // Untested: nothing in this library loads such a module.
  if (library) platform::CurrentMachine().UnloadResources(library);
}

}  // namespace ravo::frame
