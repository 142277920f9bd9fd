#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>
#include <ravo/RavoInterfaceInfo.h>
#include <ravo/RavoInterfaceResources.h>

#include <iostream>

int main() {
  using namespace ravo;
  // The description of a table, by its identifier.
  std::cout << ToUtf8(RavoInterfaceCommon::GetTableDescription(71710)) << "\n";  // Účetní deník

  // A caption of a choice control, and its plain text.
  const std::u16string caption = RavoInterfaceResources::rPropertyDokladPZPohledavka.Text();
  std::cout << ToUtf8(caption) << ", " << ToUtf8(PlainCaption(caption)) << "\n";  // &Pohledávka, Pohledávka

  // A size in the format of the locale, here the Czech one, and the whole support report of this machine.
  std::cout << ToUtf8(RavoInterfaceCommon::BytesToStr(1536, true)) << "\n";  // 1,5 kB (1536 B)
  RavoInterfaceInfo::TRavoSystemInfo info;
  std::cout << ToUtf8(info.AsText(RavoInterfaceInfo::siVisual));
}
