#define UNICODE
#define _UNICODE
#include <ravo/DIUtils.h>
#include <ravo/platform/machine.h>

#include <windows.h>

namespace names_before_unicode {
#include "calls.inc"
}
