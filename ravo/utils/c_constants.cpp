#include <ravo/utils/c_constants.h>

#define RAVO_STRINGS "ravo/utils/messages.inc"
#include <ravo/frame/c_strings.inc>
