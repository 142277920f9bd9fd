#include <ravo/codec/byte_order_mark.h>
#include <ravo/unicode/unicode_reader.h>

namespace ravo::DIUnicode {

TDIBOM TDIUnicodeReader::ReadBOM() {
  // A source is popped only if it has no bytes left.
  if (UnreadBytes().empty()) FillSourceBuffer(true);
  while (UnreadBytes().size() < codec::kLongestByteOrderMark && FillFromStream(true) != 0) {
  }
  const codec::ByteOrderMark mark = codec::FindByteOrderMark(UnreadBytes());
  FSourceBufferPosition += static_cast<std::uint32_t>(mark.length);
  // Both enumerations have the same order.
  static_assert(static_cast<int>(codec::ByteOrder::Utf32LittleEndian) ==
                static_cast<int>(TDIBOM::bomutf32le));
  return static_cast<TDIBOM>(mark.order);
}

}  // namespace ravo::DIUnicode
