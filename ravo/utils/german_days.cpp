#include <ravo/frame/units.h>
#include <ravo/utils/german_days.h>

namespace ravo::DIUtils {
namespace {

struct DayNames {
  std::array<std::string, 7> narrow;
  std::array<std::u16string, 7> wide;
};

// No name is long enough to need memory of its own, so that a start cannot fail.
DayNames Filled() {
  return {{"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"}, {u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"}};
}

DayNames names = Filled();

}  // namespace

const std::array<std::string, 7>& ShortGermanDaysA() noexcept { return names.narrow; }
const std::array<std::u16string, 7>& ShortGermanDaysW() noexcept { return names.wide; }

}  // namespace ravo::DIUtils

namespace ravo::frame {

// A start after a stop in the same mapping of the library finds the tables as the first one did.
void StartDIUtils() noexcept { DIUtils::names = DIUtils::Filled(); }

void StopDIUtils() noexcept { DIUtils::names = {}; }

}  // namespace ravo::frame
