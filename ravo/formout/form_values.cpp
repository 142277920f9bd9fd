#include <ravo/formout/form_values.h>
#include <ravo/runtime/date_text.h>

#include <string_view>

namespace ravo::RavoFileCommon {
namespace {

// The patterns have only numbers and literal characters, so no locale is needed.
std::u16string DateText(std::u16string_view pattern, DateTime date) {
  if (date == 0) return {};
  return FormatDateTime(pattern, date, FormatSettings());
}

}  // namespace

std::u16string Date2XML(DateTime date) { return DateText(u"yyyy-mm-dd", date); }

std::u16string Date2PDF(DateTime date, bool WithoutYear, bool LeadingZeros) {
  std::u16string pattern = LeadingZeros ? u"dd.mm." : u"d.m.";
  if (!WithoutYear) pattern += u"yyyy";
  return DateText(pattern, date);
}

std::u16string Bool2XML(bool value) { return value ? u"X" : u""; }

}  // namespace ravo::RavoFileCommon
