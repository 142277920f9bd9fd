#pragma once

/// The Unicode text library: the character database, and the encodings that readers and writers take.
#include <ravo/unicode/characters.h>
#include <ravo/unicode/encodings.h>
