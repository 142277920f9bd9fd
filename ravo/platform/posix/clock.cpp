#include <ravo/platform/posix/clock.h>
#include <ravo/platform/posix/posix_machine.h>

#include <algorithm>

namespace ravo::platform::posix {
namespace {

constexpr int kNanosecondsPerMillisecond = 1'000'000;
// Clocks that count leap seconds say 60.
constexpr int kLastSecond = 59;

}  // namespace

DateTime LocalDateTime(const std::timespec& moment) {
  std::tm local{};
  if (!localtime_r(&moment.tv_sec, &local)) return 0;
  const int year = local.tm_year > 9999 ? local.tm_year : local.tm_year + 1900;
  if (year < 1 || year > 9999) return 0;
  return EncodeDateTime({{year, local.tm_mon + 1, local.tm_mday},
                         {local.tm_hour, local.tm_min, std::min(local.tm_sec, kLastSecond),
                          static_cast<int>(moment.tv_nsec / kNanosecondsPerMillisecond)}});
}

DateTime PosixLocale::Now() const {
  std::timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return LocalDateTime(now);
}

}  // namespace ravo::platform::posix
