#pragma once

/// Splits XML into coarse tokens.
#include <ravo/runtime/language.h>

#include <ravo/xml/tokenizer.h>
