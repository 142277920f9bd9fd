// The room ravo/utils: small general functions that any module of the suite may call, gathered here for
// programs.
//
// Texts are in strings/: one template per family of functions, over the kind of characters and the way to
// compare them (strings/text_kind.h), with thin exported members for the suffixes of the suite: A is 8-bit
// text, W and no suffix UTF-16, I ignores case. Dates are whole days in calendar.h; checksums.h, hashes.h and
// random.h are what their names say. files.h, folders.h and whole_files.h access the disk through
// ravo/platform and return false or -1 if the system fails.
//
// Start with strings/search.h for texts and files.h for the disk; the other headers follow their pattern.
// Positions are 1-based for callers and 0-based inside; a null pointer with a length is an empty buffer. No
// function here keeps state between calls, apart from the choice of a kernel; the module keeps only the
// German day names and a record of the operating system. No system header is included.
#pragma once

/// General utilities: strings and buffers, calendar, checksums, hashes, random numbers, files and folders,
/// the environment.
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
