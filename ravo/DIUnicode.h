#pragma once

/// The Unicode text library: the character database, the reader and writer, and the encodings that they
/// support.
#include <ravo/runtime/language.h>

#include <ravo/unicode/characters.h>
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/messages.h>
#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>
