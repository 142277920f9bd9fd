#include <ravo/frame/units.h>
#include <ravo/platform/resources.h>
#include <ravo/platform/system.h>
#include <ravo/utils/system_compat.h>

#include <utility>

namespace ravo::DISystemCompat {
namespace {

SystemRecord record;

// A system library that this module loaded by itself. Nothing does so in this library.
platform::ModuleHandle system_library = nullptr;

}  // namespace

const SystemRecord& RecordedSystem() noexcept { return record; }

}  // namespace ravo::DISystemCompat

namespace ravo::frame {

void StartDISystemCompat() noexcept {
  const platform::SystemNumbers version = platform::System().VersionNumbers();
  DISystemCompat::record = {static_cast<std::uint32_t>(version.family), version.major, version.minor};
}

void StopDISystemCompat() noexcept {
  const platform::ModuleHandle library = std::exchange(DISystemCompat::system_library, nullptr);
  // Untested: nothing in this library loads such a module.
  if (library) platform::Resources().UnloadResources(library);
}

}  // namespace ravo::frame
