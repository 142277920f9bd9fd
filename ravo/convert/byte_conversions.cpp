#include <ravo/convert/byte_conversions.h>

#include <algorithm>

namespace ravo::convert {

ByteConversions::ByteConversions(const codec::Encoding& from, const codec::Encoding& to) {
  for (std::size_t byte = 0; byte < all_.size(); ++byte) {
    const char16_t unit = (*from.table)[byte];
    codec::State state;
    std::array<std::uint8_t, codec::kMostBytesAtOnce> made{};
    const std::size_t size = codec::IsSpecial(unit) ? 0 : codec::Encode(to, state, {&unit, 1}, made).made;
    std::copy_n(made.begin(), kMostBytes, all_[byte].bytes.begin());
    all_[byte].size = static_cast<std::uint16_t>(size);
    all_[byte].missing = size == 0 ? 1 : 0;
  }
}

}  // namespace ravo::convert
