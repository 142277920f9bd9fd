#include <ravo/platform/win32/clock.h>
#include <ravo/platform/win32/win32_machine.h>

namespace ravo::platform {

DateTime DateTimeOf(const SYSTEMTIME& time) {
  if (time.wYear > 9999) return 0;
  return EncodeDateTime(
      {{time.wYear, time.wMonth, time.wDay}, {time.wHour, time.wMinute, time.wSecond, time.wMilliseconds}});
}

DateTime Win32Locale::Now() const {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return DateTimeOf(time);
}

}  // namespace ravo::platform
