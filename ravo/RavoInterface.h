// The public headers of the library: one per module of the suite, which only includes the headers of its
// room.
//
// Include the header of the module whose functions you use; its names are in a namespace of the same name
// within namespace ravo. Names directly in ravo are shared by all modules. Hosts in C include package.h, and
// constants.h for identifiers and captions. No public header includes a header of the operating system, so
// they work before and after <windows.h>.
//
// Start here: this header has the types that the other modules take and return. docs/guide.md shows each task
// with code.
#pragma once

/// The main module: texts, errors and lists of objects that all modules share, resource strings, and the
/// listings of tables, captions and interfaces.
#include <ravo/runtime/language.h>

#include <ravo/catalogue/captions.h>
#include <ravo/catalogue/table_catalogue.h>
#include <ravo/frame/resource_string.h>
#include <ravo/hostapi/interface_list.h>
#include <ravo/platform/file_stream.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/object_list.h>
#include <ravo/runtime/text.h>
