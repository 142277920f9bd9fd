#include <ravo/common/float_separator.h>
#include <ravo/platform/locale.h>
#include <ravo/runtime/float_text.h>
#include <ravo/runtime/number_parse.h>
#include <ravo/runtime/text.h>

namespace ravo::RavoInterfaceCommon {
namespace {

std::u16string WithSeparator(std::u16string_view text, char16_t from, char16_t to) {
  return ReplaceFirst(text, {&from, 1}, {&to, 1});
}

}  // namespace

std::u16string FloatToStr_(Extended value, char16_t separator) {
  const char16_t locale = platform::Locale().Settings().decimal_separator;
  return WithSeparator(GeneralText(value, locale), locale, separator);
}

Extended StrToFloat_(std::u16string_view text, char16_t separator) {
  const char16_t locale = platform::Locale().Settings().decimal_separator;
  return ParseFloat(WithSeparator(text, separator, locale), locale);
}

}  // namespace ravo::RavoInterfaceCommon
