// Money does not convert to a floating-point number implicitly.
#include <ravo/RavoInterfaceCommon.h>

double Price(ravo::Currency price) {
#ifdef REFUSED
  return price;
#else
  return static_cast<double>(price.raw) / ravo::Currency::kScale;
#endif
}
