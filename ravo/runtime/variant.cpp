#include <ravo/runtime/date_text.h>
#include <ravo/runtime/decimal.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/float_text.h>
#include <ravo/runtime/text.h>
#include <ravo/runtime/variant.h>

namespace ravo {
namespace {

struct TextOf {
  const FormatSettings& settings;

  std::u16string operator()(EmptyValue) const { return {}; }
  std::u16string operator()(NullValue) const { return {}; }
  std::u16string operator()(std::int32_t value) const { return ToText(std::int64_t{value}); }
  std::u16string operator()(std::int64_t value) const { return ToText(value); }
  std::u16string operator()(double value) const { return GeneralText(value, settings.decimal_separator); }
  std::u16string operator()(Currency value) const {
    return ExactText(ToDecimal(value.raw, Currency::kPlaces), settings.decimal_separator);
  }
  std::u16string operator()(DateValue date) const { return DateTimeText(date.value, settings); }
  std::u16string operator()(const std::u16string& text) const { return text; }
  std::u16string operator()(bool value) const { return value ? u"True" : u"False"; }
  std::u16string operator()(const ByteArray&) const { throw VariantError(u"Bytes have no text"); }
};

}  // namespace

std::u16string VariantToText(const Variant& value, const FormatSettings& settings) {
  return std::visit(TextOf{settings}, value.Get());
}

}  // namespace ravo
