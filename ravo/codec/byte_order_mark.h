#pragma once

#include <ravo/codec/kernels/run.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ravo::codec {

/// The encoding that a byte-order mark names.
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

/// The length of the longest mark in bytes.
inline constexpr std::size_t kLongestByteOrderMark = 4;

/// Returns the mark at the start of `bytes`. Fewer than four bytes are taken as the whole text.
[[nodiscard]] ByteOrderMark FindByteOrderMark(ByteSpan bytes) noexcept;

}  // namespace ravo::codec
