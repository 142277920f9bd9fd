#include <ravo/sysinfo/c_constants.h>

#define RAVO_STRINGS "ravo/sysinfo/captions.inc"
#include <ravo/frame/c_strings.inc>
