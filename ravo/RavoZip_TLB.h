#pragma once

/// The archive packer: its interfaces, and the factory of its class.
#include <ravo/runtime/language.h>

#include <ravo/hostapi/co_classes.h>
#include <ravo/hostapi/interfaces.h>
#include <ravo/hostapi/operations.h>
#include <ravo/hostapi/registered_class.h>
#include <ravo/runtime/component_object.h>
#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/wide_string.h>
