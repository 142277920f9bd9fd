// Texts as numbers: parsing returns no value at worst, and every value survives a round trip through text.
#include <ravo/runtime/float_text.h>
#include <ravo/runtime/number_parse.h>
#include <ravo/runtime/text.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckInteger(std::u16string_view text) {
  const auto value = ravo::TryParseInteger(text);
  if (!value) return;
  Require(ravo::TryParseInteger(ravo::ToText(std::int64_t{*value})) == value);
  Require(ravo::TryParseInteger(u"$" + ravo::ToHex(static_cast<std::uint32_t>(*value), 1)) == value);
}

// 21 significant digits distinguish every extended float from its neighbours.
std::u16string TextWith21Digits(ravo::Extended value) {
  const ravo::DecimalNumber number = ravo::RoundedToDigits(ravo::ToDecimal(value), 21);
  std::u16string text = number.negative ? u"-0." : u"0.";
  return text + ravo::FromUtf8(number.digits) + u"E" + ravo::ToText(std::int64_t{number.point});
}

void CheckFloat(std::u16string_view text) {
  const auto value = ravo::TryParseFloat(text, u'.');
  if (!value) return;
  const auto again = ravo::TryParseFloat(TextWith21Digits(*value), u'.');
  // Only the largest values round to past the format.
  Require(again ? *again == *value : std::fabs(*value) > ravo::Extended{1e300});
  const std::u16string general = ravo::GeneralText(*value, u'.');
  const auto read = ravo::TryParseFloat(general, u'.');
  if (read) Require(ravo::GeneralText(*read, u'.') == general);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::u16string text = ravo::FromUtf8({reinterpret_cast<const char*>(data), size});
  CheckInteger(text);
  CheckFloat(text);
  return 0;
}
