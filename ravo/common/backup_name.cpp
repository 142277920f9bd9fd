#include <ravo/common/backup_name.h>
#include <ravo/common/machine_free.h>
#include <ravo/platform/locale.h>
#include <ravo/runtime/date_text.h>
#include <ravo/runtime/text.h>

namespace ravo {
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

}  // namespace

std::u16string common::BackupName(std::u16string_view pattern, std::u16string_view company, DateTime date,
                                  DateTime time) {
  std::u16string name = Filled(pattern, u"%FIRMA%", FileNamePart(company));
  name = Filled(name, u"%DATUM%", FormatDateTime(u"yymmdd", date, {}));
  return Filled(name, u"%CAS%", FormatDateTime(u"hhmmss", time, {}));
}

std::u16string RavoInterfaceCommon::ParseZalohaFile(std::u16string_view Template, std::u16string_view Firma) {
  // Kept: the clock is read twice: a name made at midnight can pair the old date with the new time. Test:
  // ParseZalohaFileTest.ReadsTheClockTwiceAcrossMidnight
  const DateTime date = platform::Locale().Now();
  return common::BackupName(Template, Firma, date, platform::Locale().Now());
}

}  // namespace ravo
