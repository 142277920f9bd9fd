// What is private to a room is not installed.
#ifdef REFUSED
#include <ravo/runtime/decimal.h>
#else
#include <ravo/runtime/currency.h>
#endif
