#define UNICODE
#define _UNICODE
#include <ravo/DIUtils.h>

#include <windows.h>

namespace names_before_unicode {
#include "calls.inc"
}
