// [include]
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <iostream>

using namespace ravo;
using namespace ravo::DIUtils;
// [/include]

int main() {
  // [files]
  std::cout << std::boolalpha;
  const std::u16string folder = GetTempFolder() + u"ravo-guide";
  const std::u16string name = folder + u"/poznamka.txt";
  ForceDirectories(folder);
  if (!SaveStrAToFile("uz jsem zpatky", name)) std::cout << ToUtf8(LastSysErrorMessage()) << "\n";

  std::string text;
  std::cout << LoadStrAFromFile(name, text) << " " << text << " " << GetFileSize(name) << "\n";
  std::cout << DeleteDirectory(folder, true) << " " << FileExists(name) << "\n";
  // [/files]
  // [names]
  std::cout << ToUtf8(ChangeFileExt(u"zaloha.zip", u".bak")) << " " << ToUtf8(ExtractFileExt(u"zaloha.zip"))
            << "\n";
  // [/names]
}
