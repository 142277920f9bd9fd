#pragma once

/// The main module: what is common to all modules of the library. Texts, errors and lists of objects,
/// resource strings, and the listings of tables, captions and interfaces.
#include <ravo/runtime/language.h>

#include <ravo/catalogue/captions.h>
#include <ravo/catalogue/table_catalogue.h>
#include <ravo/frame/resource_string.h>
#include <ravo/hostapi/interface_list.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/object_list.h>
#include <ravo/runtime/text.h>
