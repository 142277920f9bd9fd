// [include]
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceInfo.h>

#include <iostream>

using namespace ravo;
// [/include]

int main() {
  // [report]
  RavoInterfaceInfo::TRavoSystemInfo info;
  const std::u16string report = info.AsText(RavoInterfaceInfo::siVisual);
  std::cout << ToUtf8(report.substr(0, report.find(u"\r\n"))) << "\n";
  // [/report]
}
