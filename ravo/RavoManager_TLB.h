#pragma once

/// The host's object model: the interfaces of sessions, tables, fields, business objects, rights, plug-ins
/// and reports, and the classes with which a module calls or implements them.
#include <ravo/runtime/language.h>

#include <ravo/hostapi/interfaces.h>
#include <ravo/hostapi/operations.h>
#include <ravo/runtime/component_object.h>
#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/wide_string.h>
