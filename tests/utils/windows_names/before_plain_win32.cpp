#undef UNICODE
#undef _UNICODE
#include <ravo/DIUtils.h>

#include <windows.h>

namespace names_before_plain {
#include "calls.inc"
}
