#include "foreign_text.h"

#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

namespace tool {

std::string ForeignText(std::string_view bytes) {
  std::string utf8 = ravo::ToUtf8(ravo::FromUtf8(bytes));
  if (utf8 == bytes) return utf8;
  return ravo::ToUtf8(ravo::FromCodePage(bytes));
}

}  // namespace tool
