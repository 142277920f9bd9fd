#include "support/czech_settings.h"

namespace ravo::test {

FormatSettings CzechSettings() {
  FormatSettings settings;
  settings.decimal_separator = u',';
  settings.thousands_separator = u"\u00A0";
  settings.short_date = u"d.m.yyyy";
  settings.long_time = u"h:nn:ss";
  settings.am_text = u"dop.";
  settings.pm_text = u"odp.";
  settings.short_day_names = {u"ne", u"po", u"út", u"st", u"čt", u"pá", u"so"};
  settings.long_day_names = {u"neděle", u"pondělí", u"úterý", u"středa", u"čtvrtek", u"pátek", u"sobota"};
  settings.short_month_names = {u"I",   u"II",   u"III", u"IV", u"V",  u"VI",
                                u"VII", u"VIII", u"IX",  u"X",  u"XI", u"XII"};
  settings.long_month_names = {u"leden",    u"únor",  u"březen", u"duben", u"květen",   u"červen",
                               u"červenec", u"srpen", u"září",   u"říjen", u"listopad", u"prosinec"};
  return settings;
}

}  // namespace ravo::test
