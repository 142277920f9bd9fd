#pragma once

/// The accounting helpers: rounding, account checks, calendar steps and texts that all modules of the suite
/// share.
#include <ravo/runtime/language.h>

#include <ravo/catalogue/table_catalogue.h>
#include <ravo/common/accounts.h>
#include <ravo/common/backup_name.h>
#include <ravo/common/byte_size.h>
#include <ravo/common/calendar.h>
#include <ravo/common/descriptions.h>
#include <ravo/common/diacritics.h>
#include <ravo/common/float_separator.h>
#include <ravo/common/identifiers.h>
#include <ravo/common/qualified_names.h>
#include <ravo/common/rounding.h>
#include <ravo/common/stream_records.h>
#include <ravo/common/text_checksum.h>
#include <ravo/common/text_helpers.h>
