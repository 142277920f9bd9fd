#pragma once

/// General utilities: strings and buffers, calendar, checksums, hashes, random numbers, files
/// and folders, the environment.
#include <ravo/runtime/language.h>

#include <ravo/utils/ansi_upper.h>
#include <ravo/utils/calendar.h>
#include <ravo/utils/checksums.h>
#include <ravo/utils/environment.h>
#include <ravo/utils/file_names.h>
#include <ravo/utils/files.h>
#include <ravo/utils/folders.h>
#include <ravo/utils/hash_stream.h>
#include <ravo/utils/hashes.h>
#include <ravo/utils/integers.h>
#include <ravo/utils/random.h>
#include <ravo/utils/strings/assemble.h>
#include <ravo/utils/strings/char_search.h>
#include <ravo/utils/strings/char_tests.h>
#include <ravo/utils/strings/compare.h>
#include <ravo/utils/strings/letter_case.h>
#include <ravo/utils/strings/narrow.h>
#include <ravo/utils/strings/natural_order.h>
#include <ravo/utils/strings/numbers.h>
#include <ravo/utils/strings/replace.h>
#include <ravo/utils/strings/search.h>
#include <ravo/utils/strings/trim.h>
#include <ravo/utils/strings/url.h>
#include <ravo/utils/strings/utf8.h>
#include <ravo/utils/strings/wildcards.h>
#include <ravo/utils/strings/words.h>
#include <ravo/utils/whole_files.h>
#include <ravo/utils/wide_str_buf.h>
