// The compiler rejects a malformed identifier.
#include <ravo/RavoInterface.h>

#ifdef REFUSED
constexpr ravo::Guid kIdentifier("{00000000-0000-0000-0000-00000000000G}");
#else
constexpr ravo::Guid kIdentifier("{00000000-0000-0000-0000-00000000000F}");
#endif
static_assert(kIdentifier != ravo::Guid{});
