#undef UNICODE
#undef _UNICODE
// Behind the system's header, which is the point.
// clang-format off
#include <windows.h>
#include <ravo/DIUtils.h>
// clang-format on

namespace names_after_plain {
#include "calls.inc"
}
