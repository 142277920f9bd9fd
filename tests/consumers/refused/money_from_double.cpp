// Money is never made of a floating-point number by accident.
#include <ravo/RavoInterfaceCommon.h>

ravo::Currency Price() {
#ifdef REFUSED
  return 12.5;
#else
  return ravo::Currency::FromUnits(12);
#endif
}
