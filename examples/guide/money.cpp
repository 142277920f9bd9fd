// [include]
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <iostream>

using namespace ravo;
using namespace ravo::RavoInterfaceCommon;

std::string Text(Currency amount) { return ToUtf8(VariantToText(Variant(amount), FormatSettings())); }
// [/include]

int main() {
  // [round]
  const Currency price{12'345'678};  // 1234.5678: an amount is a count of ten-thousandths
  std::cout << Text(RoundValue(price, rtMath, 2)) << "\n";
  std::cout << Text(RoundValue(price, rtUp, 0)) << "\n";
  std::cout << Text(RoundValue(price, rtDown, -2)) << "\n";
  // [/round]
  // [vat]
  for (const char16_t rule : {u'H', u'D', u'P', u'N', u'M'}) {
    std::cout << static_cast<char>(rule) << " " << Text(RoundDPH(price, rule)) << "\n";
  }
  // [/vat]
  // [rate]
  const Currency hellers{100};
  std::cout << Text(TimesRatio(price, 21, 100, hellers)) << "\n";  // 21 % on the price
  std::cout << Text(TimesRatio(price, 21, 121, hellers)) << "\n";  // 21 % in the price
  const Currency euros = ParseCurrency(u"49,90", u',');
  std::cout << ToUtf8(CurrencyText(TimesRate(euros, Currency{253'455}, hellers), u','))
            << "\n";  // at 25.3455
  // [/rate]
}
