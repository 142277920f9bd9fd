#pragma once

#include <array>
#include <string>

namespace ravo {

/// What the user's locale says about the text of numbers and dates. Patterns are written as `FormatDateTime`
/// understands them. The defaults are those of no particular country.
struct FormatSettings {
  /// Between units and decimals.
  char16_t decimal_separator = u'.';
  /// May be empty; Czech has a no-break space.
  std::u16string thousands_separator = u",";
  /// The date as people write it.
  std::u16string short_date = u"yyyy-mm-dd";
  /// The time with its seconds.
  std::u16string long_time = u"hh:nn:ss";
  /// What stands for the hours before noon.
  std::u16string am_text = u"AM";
  /// What stands for the hours after noon.
  std::u16string pm_text = u"PM";
  /// Sunday first.
  std::array<std::u16string, 7> short_day_names{u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
  /// Sunday first.
  std::array<std::u16string, 7> long_day_names{u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                               u"Thursday", u"Friday", u"Saturday"};
  /// January first.
  std::array<std::u16string, 12> short_month_names{u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                                   u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
  /// January first.
  std::array<std::u16string, 12> long_month_names{u"January",   u"February", u"March",    u"April",
                                                  u"May",       u"June",     u"July",     u"August",
                                                  u"September", u"October",  u"November", u"December"};
};

}  // namespace ravo
