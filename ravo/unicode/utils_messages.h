#pragma once

#include <ravo/frame/resource_string.h>

/// The messages that the reader shares with ravo/utils. Only the rows, because that room is above this one.
namespace ravo::unicode {

#define RAVO_STRING(name, id, text) inline constexpr ResourceString name{id, u##text};
#include <ravo/utils/messages.inc>
#undef RAVO_STRING

}  // namespace ravo::unicode
