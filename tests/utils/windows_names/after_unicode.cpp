#define UNICODE
#define _UNICODE
#include <windows.h>

#include <ravo/DIUtils.h>
#include <ravo/platform/machine.h>

namespace names_after_unicode {
#include "calls.inc"
}
