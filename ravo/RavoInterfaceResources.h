#pragma once

/// The Czech captions of the suite's enumerations, and its messages to the user.
#include <ravo/runtime/language.h>

#include <ravo/catalogue/captions.h>
