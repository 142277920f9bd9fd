// The room ravo/unicode: characters, a reader and a writer of text in every supported encoding, gathered here
// for programs.
//
// characters/ holds the character database: categories, kinds, mappings and decompositions of one UTF-16
// unit, from generated tables. TDIUnicodeReader (unicode_reader.h) decodes bytes of a buffer, stream or file
// into characters with their location; TDIUnicodeWriter (unicode_writer.h) encodes characters into bytes.
// Both get an encoding as a record of functions; encodings.h declares one for each row of ravo/codec/rows.inc
// and the functions that find an encoding by name. code_pages.h converts whole texts.
//
// Start with encodings.h and unicode_reader.h. The reader is one class over several sources:
// reader_sources.cpp and reader_stack.cpp supply the bytes, reader_runs.cpp reads and skips, reader_data.cpp
// collects.
//
// The room never decodes or encodes by itself: the engines are in ravo/codec, and a unit is always 16 bits.
// It keeps no state outside the objects of the caller.
#pragma once

/// The Unicode text library: the character database, the reader and writer, and the encodings that they
/// support.
#include <ravo/runtime/language.h>

#include <ravo/unicode/characters.h>
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/messages.h>
#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>
