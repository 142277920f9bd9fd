#include <ravo/RavoManager_TLB.h>

// Compiled separately for each list.
#ifdef TEST_LIST_fitting
#define OPERATIONS(OPERATION) \
  OPERATION(First, ()) OPERATION(Second, (int value)) OPERATION(Third, (int* answer))
#endif
#ifdef TEST_LIST_short
#define OPERATIONS(OPERATION) OPERATION(First, ()) OPERATION(Second, (int value))
#endif
#ifdef TEST_LIST_long
#define OPERATIONS(OPERATION) \
  OPERATION(First, ()) OPERATION(Second, ()) OPERATION(Third, ()) OPERATION(Fourth, ())
#endif

RAVO_OPERATIONS(HostBusinessZP, ravo::RavoManager_TLB::IRavoBusinessZP, OPERATIONS);
