// [include]
#include <ravo/ECXMLParser.h>
#include <ravo/RavoInterface.h>

#include <iostream>

using namespace ravo;
using namespace ravo::ECXMLParser;
// [/include]

int main() {
  // [write]
  TECXMLParser document;
  document.SetEncoding(u"windows-1250");
  TXMLItem* const order = document.Root();
  order->SetName(u"objednavka");
  order->Params().SetValue(u"cislo", u"OB0012");
  TXMLItem* const item = order->New();
  item->SetName(u"zbozi");
  item->SetText(u"Šrouby & matky");

  MemoryStream file;
  document.SaveToStream(file, false);
  std::cout << file.Size() << " bytes\n" << ToUtf8(document.Root()->AsString());
  // [/write]
  // [read]
  file.SetPosition(0);
  TECXMLParser read;
  read.LoadFromStream(file);
  const TXMLItem& root = *read.Root();
  std::cout << ToUtf8(root.Name()) << " " << ToUtf8(root.Params().Value(u"cislo")) << "\n";
  for (std::int32_t i = 0; i < root.SubItemCount(); ++i) {
    std::cout << ToUtf8(root.SubItems(i)->Name()) << ": " << ToUtf8(root.SubItems(i)->Text()) << "\n";
  }
  // [/read]
  // [utf8]
  const std::string utf8 = "<objednavka><zbozi>Žárovky</zbozi></objednavka>";
  read.Root()->SetAsString(FromUtf8(utf8));
  std::cout << ToUtf8(read.Root()->SubItems(0)->Text()) << "\n";
  // [/utf8]
  // [broken]
  try {
    read.Root()->SetAsString(u"<objednavka><zbozi");
  } catch (const Error& error) {
    std::cout << error.what() << "\n";
  }
  // [/broken]
}
