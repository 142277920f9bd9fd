#include <ravo/frame/units.h>
#include <ravo/utils/german_days.h>

namespace ravo::utils {
namespace {

constinit std::array<std::string_view, 7> narrow_names{"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"};
constinit std::array<std::u16string_view, 7> wide_names{u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"};

void ReleaseNames() noexcept {
  narrow_names = {};
  wide_names = {};
}

}  // namespace

const std::array<std::string_view, 7>& ShortGermanDaysA() noexcept { return narrow_names; }
const std::array<std::u16string_view, 7>& ShortGermanDaysW() noexcept { return wide_names; }

}  // namespace ravo::utils

namespace ravo::frame {

void StopDIUtils() noexcept { utils::ReleaseNames(); }

}  // namespace ravo::frame
