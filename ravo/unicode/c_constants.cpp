#include <ravo/unicode/c_constants.h>

#define RAVO_STRINGS "ravo/unicode/messages.inc"
#include <ravo/frame/c_strings.inc>
