// [include]
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>
#include <ravo/RavoInterfaceResources.h>

#include <iostream>

using namespace ravo;
// [/include]

int main() {
  // [table]
  std::cout << ToUtf8(RavoInterfaceCommon::GetTableDescription(71710)) << "\n";
  for (const TableRow& row : TableRows()) {
    if (row.module == TableModule::DCF && row.first <= 100121 && 100121 <= row.last) {
      std::cout << TableModuleName(row.module) << ": " << ToUtf8(row.description) << "\n";
    }
  }
  if (RavoInterfaceCommon::TableDescription(12345).empty()) std::cout << "there is no table 12345\n";
  // [/table]
  // [caption]
  using namespace RavoInterfaceResources;
  std::cout << ToUtf8(rPropertyDokladPZPohledavka.Text()) << "\n";
  std::cout << ToUtf8(PlainCaption(rPropertyDokladPZPohledavka.View())) << "\n";
  // [/caption]
}
