#pragma once

/// General utilities.
#include <ravo/utils/ansi_upper.h>
#include <ravo/utils/calendar.h>
#include <ravo/utils/checksums.h>
#include <ravo/utils/hash_stream.h>
#include <ravo/utils/hashes.h>
#include <ravo/utils/integers.h>
#include <ravo/utils/random.h>
#include <ravo/utils/wide_str_buf.h>
