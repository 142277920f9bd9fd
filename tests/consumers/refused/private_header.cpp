// Private headers of a room are not installed.
#ifdef REFUSED
#include <ravo/runtime/decimal.h>
#else
#include <ravo/runtime/currency.h>
#endif
