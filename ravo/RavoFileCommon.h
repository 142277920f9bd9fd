#pragma once

/// Fields of PDF forms, and dates and flags for forms and XML exports.
#include <ravo/runtime/language.h>

#include <ravo/formout/form_fields.h>
#include <ravo/formout/form_values.h>
