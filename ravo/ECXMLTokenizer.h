#pragma once

/// Cuts XML into coarse tokens.
#include <ravo/runtime/language.h>

#include <ravo/xml/tokenizer.h>
