// The result of a pure function must not be ignored.
#include <ravo/RavoInterfaceCommon.h>

bool Known() {
#ifdef REFUSED
  ravo::RavoInterfaceCommon::GetTableDescription(71710);
  return true;
#else
  return !ravo::RavoInterfaceCommon::GetTableDescription(71710).empty();
#endif
}
