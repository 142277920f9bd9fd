// [include]
#include <ravo/RavoFileCommon.h>
#include <ravo/RavoInterface.h>

#include <iostream>

using namespace ravo;
using namespace ravo::RavoFileCommon;
// [/include]

int main() {
  // [fields]
  MemoryStream fields;
  FillPDFField(fields, u"jmeno", u"Novák", false);
  FillPDFField(fields, u"podpis", Date2PDF(EncodeDate(2026, 11, 21), false, false), false);
  FillPDFFieldAsInteger(fields, u"radne", 1);
  std::cout << fields.Size() << " bytes of fields\n";
  // [/fields]
  // [values]
  std::cout << ToUtf8(Date2PDF(EncodeDate(2024, 3, 5), false, true)) << " "
            << ToUtf8(Date2XML(EncodeDate(2024, 3, 5))) << "\n";
  // [/values]
}
