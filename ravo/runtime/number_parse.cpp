#include <ravo/runtime/decimal_parse.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/integer_parse.h>
#include <ravo/runtime/nearest_float.h>
#include <ravo/runtime/number_parse.h>

#include <string>

namespace ravo {

std::optional<std::int32_t> TryParseInteger(std::u16string_view text) noexcept {
  const ParsedInteger<std::int32_t> parsed = ReadInteger<std::int32_t>(text);
  return parsed.error == 0 ? std::optional(parsed.value) : std::nullopt;
}

std::int32_t ParseInteger(std::u16string_view text) {
  if (const auto value = TryParseInteger(text)) return *value;
  throw ConvertError(u"'" + std::u16string(text) + u"' is not a valid integer value");
}

std::optional<Extended> TryParseFloat(std::u16string_view text, char16_t decimal_separator) {
  const std::optional<DecimalNumber> number = TryParseDecimal(text, decimal_separator);
  return number ? NearestFloat<Extended>(*number) : std::nullopt;
}

Extended ParseFloat(std::u16string_view text, char16_t decimal_separator) {
  if (const auto value = TryParseFloat(text, decimal_separator)) return *value;
  throw ConvertError(u"'" + std::u16string(text) + u"' is not a valid floating point value");
}

}  // namespace ravo
