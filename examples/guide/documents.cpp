// [include]
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <iostream>

using namespace ravo;
using namespace ravo::RavoInterfaceCommon;
// [/include]

int main() {
  // [address]
  std::u16string street;
  std::u16string number;
  AdresaExpand(u"Nádražní 1234/5", street, number);
  std::cout << ToUtf8(street) << " | " << ToUtf8(number) << "\n";
  std::cout << ToUtf8(DokladDescription(u"FV", u"0012", u"2026")) << "\n";
  // [/address]
}
