#pragma once

#include <ravo/codec/kernels/run.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ravo::codec {

/// What the byte-order mark at the start of a text says.
enum class ByteOrder : std::uint8_t {
  Unknown,
  Utf8,
  Utf16BigEndian,
  Utf16LittleEndian,
  Utf32BigEndian,
  Utf32LittleEndian
};

struct ByteOrderMark {
  ByteOrder order = ByteOrder::Unknown;
  std::string_view encoding;  ///< the name of its row; empty if unknown
  std::size_t length = 0;     ///< in bytes
};

/// Of the longest mark.
inline constexpr std::size_t kLongestByteOrderMark = 4;

/// Returns the mark at the front of `bytes`. If fewer than four bytes are given, they are all that there are.
[[nodiscard]] ByteOrderMark FindByteOrderMark(ByteSpan bytes) noexcept;

}  // namespace ravo::codec
