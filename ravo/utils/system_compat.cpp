#include <ravo/frame/units.h>
#include <ravo/platform/system.h>
#include <ravo/utils/system_compat.h>

namespace ravo::utils {
namespace {

SystemRecord record;

}  // namespace

const SystemRecord& RecordedSystem() noexcept { return record; }

}  // namespace ravo::utils

namespace ravo::frame {

void StartDISystemCompat() noexcept {
  const platform::SystemNumbers version = platform::System().VersionNumbers();
  utils::record = {static_cast<std::uint32_t>(version.family), version.major, version.minor};
}

}  // namespace ravo::frame
