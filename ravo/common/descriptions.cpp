#include <ravo/common/descriptions.h>
#include <ravo/runtime/number_parse.h>
#include <ravo/runtime/text.h>

#include <algorithm>

namespace ravo::RavoInterfaceCommon {
namespace {

constexpr bool CountsAsZero(char16_t unit) {
  return std::u16string_view(u"/-\\xvi").find(AsciiLower(unit)) != std::u16string_view::npos;
}

bool IsHouseNumber(std::u16string_view word) {
  std::u16string digits(word);
  std::ranges::replace_if(digits, CountsAsZero, u'0');
  return TryParseInteger(digits).has_value();
}

}  // namespace

void AdresaExpand(std::u16string_view Adresa, std::u16string& Ulice, std::u16string& Cislo) {
  const std::u16string address(Trimmed(Adresa));
  const std::size_t blank = address.rfind(u' ');
  const bool numbered =
      blank != std::u16string::npos && IsHouseNumber(std::u16string_view(address).substr(blank));
  Ulice = numbered ? address.substr(0, blank) : address;
  Cislo = numbered ? address.substr(blank + 1) : std::u16string();
}

std::u16string DokladDescription(std::u16string_view Prefix, std::u16string_view Number,
                                 std::u16string_view Suffix) {
  std::u16string text(Trimmed(Prefix));
  text += Trimmed(Number);
  const std::u16string_view suffix = Trimmed(Suffix);
  if (!suffix.empty()) (text += u'/') += suffix;
  return text;
}

}  // namespace ravo::RavoInterfaceCommon
