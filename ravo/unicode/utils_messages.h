#pragma once

#include <ravo/frame/resource_string.h>

/// The messages that the reader shares with the general utilities, which stand above it: their rows alone.
namespace ravo::unicode {

#define RAVO_STRING(name, id, text) inline constexpr ResourceString name{id, u##text};
#include <ravo/utils/messages.inc>
#undef RAVO_STRING

}  // namespace ravo::unicode
