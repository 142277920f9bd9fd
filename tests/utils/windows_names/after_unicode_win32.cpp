#define UNICODE
#define _UNICODE
#include <ravo/DIUtils.h>
#include <ravo/platform/machine.h>

#include <windows.h>

namespace names_after_unicode {
#include "calls.inc"
}
