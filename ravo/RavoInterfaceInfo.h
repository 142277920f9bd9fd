#pragma once

/// The support report of the machine that the suite runs on.
#include <ravo/runtime/language.h>

#include <ravo/sysinfo/captions.h>
#include <ravo/sysinfo/system_info.h>
