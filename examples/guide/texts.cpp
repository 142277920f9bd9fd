// [include]
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <iostream>

using namespace ravo;
using namespace ravo::DIUtils;
// [/include]

int main() {
  // [search]
  std::cout << std::boolalpha;
  const std::u16string text = u"Faktura č. 12 za ŽLUŤOUČKÉHO koně, faktura č. 9";
  std::cout << StrPos(u"faktura", text) << " " << StrPosI(u"faktura", text) << "\n";
  std::cout << StrPosI(u"žluťoučkého", text) << " " << StrPos(u"nic", text) << "\n";
  std::cout << ToUtf8(StrReplaceIW(text, u"faktura", u"dobropis")) << "\n";
  // [/search]
  // [compare]
  std::cout << StrSameI(u"PŘÍKAZ", u"příkaz") << "\n";
  std::cout << (StrCompNumI(u"faktura 9", u"Faktura 12") < 0) << "\n";
  std::cout << StrMatchWild(u"FV2026-0012", u"FV*-001?") << "\n";
  // [/compare]
  // [numbers]
  std::int32_t value = 0;
  if (!TryStrToIntW(u"12 kusů", value)) std::cout << "no number\n";
  std::cout << StrToIntDefW(u"12", -1) << " " << ToUtf8(PadLeftW(IntToStrW(std::int32_t{12}), 6, u'0'))
            << "\n";
  // [/numbers]
}
