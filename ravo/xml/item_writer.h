#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/xml/item_store.h>

#include <cstdint>
#include <string>

/// Writes items as XML, as bytes for a stream or as text. The flag `OnOneLine` of the topmost item becomes
/// that of everything below it.
namespace ravo::xml {

/// Options for writing. `Writer` in item_writer.cpp applies each of them.
struct WriteOptions {
  std::int32_t level = 0;  ///< blanks before the tags of the topmost item
};

/// Writes an item and everything below it in the code page in force. Errors of the stream pass through.
void WriteItem(ByteStream& stream, ItemStore& item, const WriteOptions& options);

/// An item and everything below it.
[[nodiscard]] std::u16string TextOfItem(ItemStore& item, const WriteOptions& options);

/// Name and attributes as in the opening tag.
[[nodiscard]] std::u16string TextOfTag(const ItemStore& item);

}  // namespace ravo::xml
