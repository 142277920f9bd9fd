// Text is UTF-16; bytes in some code page are no text until somebody says in which.
#include <ravo/RavoInterface.h>

std::u16string Heading() {
#ifdef REFUSED
  return ravo::PlainCaption("Deník");
#else
  return ravo::PlainCaption(ravo::FromUtf8("Deník"));
#endif
}
