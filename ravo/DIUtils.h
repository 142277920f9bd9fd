#pragma once

/// General utilities: strings and buffers, German day names.
#include <ravo/utils/german_days.h>
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
