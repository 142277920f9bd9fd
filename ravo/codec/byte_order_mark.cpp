#include <ravo/codec/byte_order_mark.h>

#include <algorithm>
#include <array>

namespace ravo::codec {
namespace {

struct Mark {
  ByteOrderMark mark;
  std::array<std::uint8_t, kLongestByteOrderMark> bytes;
};

// FF FE 00 00 precedes its prefix FF FE.
constexpr Mark kMarks[] = {{{ByteOrder::Utf32BigEndian, "UTF_32_BE", 4}, {0x00, 0x00, 0xFE, 0xFF}},
                           {{ByteOrder::Utf32LittleEndian, "UTF_32_LE", 4}, {0xFF, 0xFE, 0x00, 0x00}},
                           {{ByteOrder::Utf8, "UTF_8", 3}, {0xEF, 0xBB, 0xBF}},
                           {{ByteOrder::Utf16BigEndian, "UTF_16_BE", 2}, {0xFE, 0xFF}},
                           {{ByteOrder::Utf16LittleEndian, "UTF_16_LE", 2}, {0xFF, 0xFE}}};

bool BeginsWith(ByteSpan bytes, const Mark& mark) {
  const std::size_t length = mark.mark.length;
  return bytes.size() >= length &&
         std::ranges::equal(bytes.first(length), ByteSpan(mark.bytes).first(length));
}

}  // namespace

ByteOrderMark FindByteOrderMark(ByteSpan bytes) noexcept {
  for (const Mark& mark : kMarks) {
    if (BeginsWith(bytes, mark)) return mark.mark;
  }
  return {};
}

}  // namespace ravo::codec
