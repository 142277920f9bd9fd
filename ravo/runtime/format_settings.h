#pragma once

#include <array>
#include <string>

namespace ravo {

/// The user's locale settings for numbers and dates. Patterns are those of `FormatDateTime`. The defaults
/// belong to no country.
struct FormatSettings {
  /// The decimal separator.
  char16_t decimal_separator = u'.';
  /// The thousands separator, which may be empty; Czech has a no-break space.
  std::u16string thousands_separator = u",";
  /// The pattern of the short date.
  std::u16string short_date = u"yyyy-mm-dd";
  /// The pattern of the long time.
  std::u16string long_time = u"hh:nn:ss";
  /// The text for the hours before noon.
  std::u16string am_text = u"AM";
  /// The text for the hours after noon.
  std::u16string pm_text = u"PM";
  /// Short names of the weekdays, Sunday first.
  std::array<std::u16string, 7> short_day_names{u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
  /// Long names of the weekdays, Sunday first.
  std::array<std::u16string, 7> long_day_names{u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                               u"Thursday", u"Friday", u"Saturday"};
  /// Short names of the months, January first.
  std::array<std::u16string, 12> short_month_names{u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                                   u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
  /// Long names of the months, January first.
  std::array<std::u16string, 12> long_month_names{u"January",   u"February", u"March",    u"April",
                                                  u"May",       u"June",     u"July",     u"August",
                                                  u"September", u"October",  u"November", u"December"};
};

}  // namespace ravo
