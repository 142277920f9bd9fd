#ifdef _WIN32

#include <ravo/platform/locale.h>
#include <ravo/platform/windows_pattern.h>
#include <ravo/runtime/date_text.h>

#include <gtest/gtest.h>
#include <windows.h>

namespace ravo::platform {
namespace {

constexpr SYSTEMTIME kTimes[] = {
    {1899, 12, 0, 30, 0, 0, 0, 0},
    {2005, 2, 0, 3, 16, 5, 6, 789},
    {2024, 11, 0, 30, 12, 59, 0, 0},
};

DateTime ValueOf(const SYSTEMTIME& time) {
  return EncodeDateTime(
      {{time.wYear, time.wMonth, time.wDay}, {time.wHour, time.wMinute, time.wSecond, time.wMilliseconds}});
}

std::u16string OurText(const std::wstring& pattern, const SYSTEMTIME& time) {
  const std::u16string windows(pattern.begin(), pattern.end());
  return FormatDateTime(FromWindowsPattern(windows), ValueOf(time), Locale().Settings());
}

// The system's own text for a pattern; null means the user's pattern.
template <typename Call>
std::u16string TheirText(Call call, const SYSTEMTIME& time, const wchar_t* pattern) {
  wchar_t text[256] = L"";
  EXPECT_GT(call(LOCALE_USER_DEFAULT, 0, &time, pattern, text, 256), 0);
  const std::wstring_view view(text);
  return {view.begin(), view.end()};
}

TEST(Win32Pattern, DatesReadAsTheSystemWritesThem) {
  // Without full month names: the system declines them after a day.
  for (const wchar_t* pattern :
       {L"d. M. yyyy", L"dd.MM.yyyy", L"dddd d.M.yy", L"ddd dd", L"d 'den' M 'm\u011Bs\u00EDc'",
        L"d 'o''clock' M", L"yyyy\"M", L"MMMM yyyy"}) {
    for (const SYSTEMTIME& time : kTimes) {
      EXPECT_EQ(OurText(pattern, time), TheirText(GetDateFormatW, time, pattern));
    }
  }
}

TEST(Win32Pattern, TimesReadAsTheSystemWritesThem) {
  for (const wchar_t* pattern : {L"H:mm:ss", L"HH.m.s", L"h:mm:ss tt", L"tt hh:mm", L"H 'hod.' mm 'min.'"}) {
    for (const SYSTEMTIME& time : kTimes) {
      EXPECT_EQ(OurText(pattern, time), TheirText(GetTimeFormatW, time, pattern));
    }
  }
}

TEST(Win32Pattern, TheLocaleReadsAsTheSystemWritesIt) {
  const FormatSettings settings = Locale().Settings();
  for (const SYSTEMTIME& time : kTimes) {
    EXPECT_EQ(FormatDateTime(settings.short_date, ValueOf(time), settings),
              TheirText(GetDateFormatW, time, nullptr));
    EXPECT_EQ(FormatDateTime(settings.long_time, ValueOf(time), settings),
              TheirText(GetTimeFormatW, time, nullptr));
  }
}

}  // namespace
}  // namespace ravo::platform

#endif
