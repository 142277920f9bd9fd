#include <ravo/common/backup_name.h>
#include <ravo/platform/locale.h>
#include <ravo/runtime/date_text.h>
#include <ravo/runtime/text.h>

namespace ravo::RavoInterfaceCommon {
namespace {

std::u16string FileNamePart(std::u16string_view name) {
  std::u16string part(name);
  std::erase_if(part, [](char16_t unit) {
    return std::u16string_view(u"*\\/:?\"<>|").find(unit) != std::u16string_view::npos;
  });
  return part;
}

// Replaces every occurrence of an ASCII placeholder, in any mix of upper and lower case.
std::u16string Filled(std::u16string_view text, std::u16string_view placeholder, std::u16string_view with) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size();) {
    if (SameAsciiText(text.substr(i, placeholder.size()), placeholder)) {
      result += with;
      i += placeholder.size();
    } else {
      result += text[i++];
    }
  }
  return result;
}

std::u16string ClockText(std::u16string_view pattern) {
  return FormatDateTime(pattern, platform::Locale().Now(), {});
}

}  // namespace

std::u16string ParseZalohaFile(std::u16string_view Template, std::u16string_view Firma) {
  std::u16string name = Filled(Template, u"%FIRMA%", FileNamePart(Firma));
  name = Filled(name, u"%DATUM%", ClockText(u"yymmdd"));
  // Kept: the clock is read twice: a name made at midnight can pair the old date with the new time. Test:
  // ParseZalohaFileTest.ReadsTheClockTwiceAcrossMidnight
  return Filled(name, u"%CAS%", ClockText(u"hhmmss"));
}

}  // namespace ravo::RavoInterfaceCommon
