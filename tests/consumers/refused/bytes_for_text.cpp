// Text is UTF-16; bytes are not text without a code page.
#include <ravo/RavoInterface.h>

std::u16string Heading() {
#ifdef REFUSED
  return ravo::PlainCaption("Deník");
#else
  return ravo::PlainCaption(ravo::FromUtf8("Deník"));
#endif
}
