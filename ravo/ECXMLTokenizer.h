#pragma once

/// Cuts XML into coarse tokens.
#include <ravo/xml/tokenizer.h>
