// [include]
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <iostream>

using namespace ravo;
// [/include]

int main() {
  // [bank]
  using namespace ravo::RavoInterfaceCommon;
  std::cout << std::boolalpha;
  std::cout << UcetMod11(u"19-2000145399/0800") << "\n";
  std::cout << UcetMod11(u"19-2000145398/0800") << "\n";
  try {
    static_cast<void>(UcetMod11(std::u16string(63, u'1')));
  } catch (const FloatError& error) {
    std::cout << "not an account number: " << error.what() << "\n";
  }
  // [/bank]
  // [others]
  std::cout << ValidUcet(u"311001") << " " << ValidSU(u"311") << " " << ValidAU(u"") << "\n";
  std::cout << ValidVS(u"79927398713") << "\n";

  std::u16string carried;
  std::u16string right;
  std::u16string full;
  if (CalculateEAN(u"4006381333930", carried, right, full) && carried != right) {
    std::cout << "the code ends with " << ToUtf8(carried) << " and should read " << ToUtf8(full) << "\n";
  }
  // [/others]
}
