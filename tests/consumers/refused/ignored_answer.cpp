// An answer that is the whole point of a call is not thrown away.
#include <ravo/RavoInterfaceCommon.h>

bool Known() {
#ifdef REFUSED
  ravo::RavoInterfaceCommon::GetTableDescription(71710);
  return true;
#else
  return !ravo::RavoInterfaceCommon::GetTableDescription(71710).empty();
#endif
}
