#undef UNICODE
#undef _UNICODE
// Includes the library after the system's header, which is what this tests.
// clang-format off
#include <windows.h>
#include <ravo/DIUtils.h>
// clang-format on

namespace names_after_plain {
#include "calls.inc"
}
