#pragma once

/// The Unicode text library: the character database.
#include <ravo/unicode/characters.h>
