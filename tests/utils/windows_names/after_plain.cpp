#undef UNICODE
#undef _UNICODE
#include <windows.h>

#include <ravo/DIUtils.h>
#include <ravo/platform/machine.h>

namespace names_after_plain {
#include "calls.inc"
}
