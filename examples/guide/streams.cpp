// [include]
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <iostream>

using namespace ravo;
using namespace ravo::RavoInterfaceCommon;
// [/include]

int main() {
  // [records]
  MemoryStream stream;
  StringToStream(&stream, "Novak");
  StringToStream(&stream, "Praha");
  std::cout << stream.Size() << " bytes\n";

  stream.SetPosition(0);
  const std::string name = StringFromStream(&stream);
  const std::string town = StringFromStream(&stream);
  std::cout << name << ", " << town << "\n";
  // [/records]
  // [missing]
  stream.SetPosition(1'000);
  try {
    static_cast<void>(StringFromStream(&stream));
  } catch (const StreamError& error) {
    std::cout << error.what() << "\n";
  }
  // [/missing]
}
