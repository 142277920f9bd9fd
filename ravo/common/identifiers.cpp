#include <ravo/common/identifiers.h>
#include <ravo/platform/locale.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/number_parse.h>
#include <ravo/runtime/text.h>

#include <algorithm>

namespace ravo::RavoInterfaceCommon {
namespace {

constexpr std::size_t kTimestampBytes = 8;

std::uint8_t HexPair(std::u16string_view pair) {
  if (pair.size() < 2) throw ConvertError(u"A timestamp has sixteen hexadecimal digits");
  return CheckedCast<std::uint8_t>(ParseInteger(u"$" + std::u16string(pair)));
}

}  // namespace

std::u16string UIDToString(const Variant& value, bool quoted) {
  const FormatSettings locale = platform::Locale().Settings();
  if (!quoted) return VariantToText(value, locale);
  if (value.IsEmptyOrNull()) return u"Null";
  return VariantToText(VariantSum(VariantSum(u"'", value, locale), u"'", locale), locale);
}

ByteArray TimestampToBytes(std::u16string_view text) {
  if (text.size() <= 3) return {};
  const std::u16string digits = ReplaceAll(text, u"0x", u"");
  const std::u16string_view rest = digits;
  ByteArray bytes;
  for (std::size_t i = 0; i < kTimestampBytes; ++i) {
    bytes.push_back(HexPair(rest.substr(std::min(2 * i, rest.size()), 2)));
  }
  return bytes;
}

}  // namespace ravo::RavoInterfaceCommon
