// [include]
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

#include <iostream>

using namespace ravo;
using namespace ravo::DIUnicode;
// [/include]

int main() {
  // [read]
  // In a program: reader.SetSourceFile(u"ledger.csv");
  const std::string bytes = "P\xF8\xEDjemce;\xC8\xE1stka\r\nNov\xE1k;1250\r\n";
  TDIUnicodeReader reader;
  reader.SetReadMethods(Read_Windows_1250);
  reader.SetSourceBufferAsStrA(bytes);
  reader.ReadChar();
  while (reader.CharOK()) {
    std::cout << "line " << reader.CharLine();
    reader.ClearData();
    reader.ReadCharsTill(u';');
    std::cout << ": " << ToUtf8(reader.Data()) << "\n";
    reader.SkipTillEndOfLine();
  }
  // [/read]
  // [write]
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(Write_Windows_1250);
  writer.SetReplacementChar(u'?');
  writer.WriteStrLineBreakW(u"Žižka ∞");
  std::cout << writer.DataSize() << " bytes\n";
  // [/write]
  // [names]
  if (const EncodingRow* encoding = FindEncoding("latin2")) std::cout << encoding->label << "\n";
  // [/names]
}
