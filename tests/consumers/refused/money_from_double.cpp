// A floating-point number does not convert to money implicitly.
#include <ravo/RavoInterfaceCommon.h>

ravo::Currency Price() {
#ifdef REFUSED
  return 12.5;
#else
  return ravo::Currency::FromUnits(12);
#endif
}
