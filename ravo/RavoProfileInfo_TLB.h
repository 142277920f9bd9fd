#pragma once

/// The profile-information reader: the interfaces of a profile's modules, packages, plug-ins and operations,
/// and the factories of its classes.
#include <ravo/runtime/language.h>

#include <ravo/hostapi/co_classes.h>
#include <ravo/hostapi/interfaces.h>
#include <ravo/hostapi/operations.h>
#include <ravo/hostapi/registered_class.h>
#include <ravo/runtime/component_object.h>
#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/wide_string.h>
