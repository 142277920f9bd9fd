#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/xml/item.h>

#include <cstdint>
#include <string_view>

namespace ravo::xml {

/// Writes an item and everything below it as `XMLItemAsString(level)` says, in the code page in force.
void WriteItem(ByteStream& stream, ECXMLParser::TXMLItem& item, std::int32_t level);

}  // namespace ravo::xml
