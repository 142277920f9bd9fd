#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>
#include <ravo/platform/windows_pattern.h>
#include <ravo/runtime/checked.h>

#include <array>

#include <windows.h>

namespace ravo::platform {
namespace {

// Fits every fact asked for here: the longest, patterns and names, have at most 80 units.
std::u16string Fact(LCTYPE type) {
  std::array<wchar_t, 128> buffer;
  const int units = GetLocaleInfoW(LOCALE_USER_DEFAULT, type, buffer.data(), static_cast<int>(buffer.size()));
  return FromWide(UpToZero(std::wstring_view(buffer.data(), static_cast<std::size_t>(units))));
}

// The system's first name becomes our number `first`.
template <std::size_t count>
void ReadNames(std::array<std::u16string, count>& names, LCTYPE type, std::size_t first) {
  for (std::size_t i = 0; i < count; ++i) names[(first + i) % count] = Fact(type + static_cast<LCTYPE>(i));
}

void ReadDayAndMonthNames(FormatSettings& settings) {
  constexpr std::size_t monday = 1;
  ReadNames(settings.short_day_names, LOCALE_SABBREVDAYNAME1, monday);
  ReadNames(settings.long_day_names, LOCALE_SDAYNAME1, monday);
  ReadNames(settings.short_month_names, LOCALE_SABBREVMONTHNAME1, 0);
  ReadNames(settings.long_month_names, LOCALE_SMONTHNAME1, 0);
}

}  // namespace

FormatSettings Win32Locale::Settings() const {
  FormatSettings settings;
  const std::u16string decimal = Fact(LOCALE_SDECIMAL);
  if (!decimal.empty()) settings.decimal_separator = decimal.front();
  settings.thousands_separator = Fact(LOCALE_STHOUSAND);
  settings.short_date = FromWindowsPattern(Fact(LOCALE_SSHORTDATE));
  settings.long_time = FromWindowsPattern(Fact(LOCALE_STIMEFORMAT));
  settings.am_text = Fact(LOCALE_S1159);
  settings.pm_text = Fact(LOCALE_S2359);
  ReadDayAndMonthNames(settings);
  return settings;
}

bool Win32Locale::SameText(std::u16string_view left, std::u16string_view right) const {
  const auto wide = [](std::u16string_view text) { return reinterpret_cast<const wchar_t*>(text.data()); };
  return CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, wide(left), CheckedCast<int>(left.size()),
                        wide(right), CheckedCast<int>(right.size())) == CSTR_EQUAL;
}

}  // namespace ravo::platform
