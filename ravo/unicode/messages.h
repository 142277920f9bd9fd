#pragma once

#include <ravo/frame/resource_string.h>

/// The error messages of reader and writer, exported so that callers recognize them in every language.
namespace ravo::DIUnicode {

#define RAVO_STRING(name, id, text) /** #text */ inline constexpr ResourceString name{id, u##text};
#include <ravo/unicode/messages.inc>
#undef RAVO_STRING

}  // namespace ravo::DIUnicode
