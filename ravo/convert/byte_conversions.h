#pragma once

#include <ravo/codec/encoding.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>

namespace ravo::convert {

/// What each byte of a single-byte encoding is in another one: faster than the engines for short texts.
class ByteConversions {
 public:
  static constexpr std::size_t kMostBytes = 4;  ///< that one byte becomes

  /// Preconditions: `from` is a single-byte encoding, `to` has no state.
  ByteConversions(const codec::Encoding& from, const codec::Encoding& to);

  /// Converts a text and returns the number of bytes; nothing if a byte is no character, or `to` lacks it.
  /// May write past the result. Precondition: the room is `kMostBytes` for each byte.
  [[nodiscard]] std::optional<std::size_t> Convert(codec::ByteSpan bytes,
                                                   codec::ByteRoom room) const noexcept {
    std::uint8_t* to = room.data();
    std::uint16_t missing = 0;
    for (const std::uint8_t byte : bytes) {
      const Converted& converted = all_[byte];
      std::memcpy(to, converted.bytes.data(), kMostBytes);
      to += converted.size;
      missing |= converted.missing;
    }
    if (missing != 0) return std::nullopt;
    return static_cast<std::size_t>(to - room.data());
  }

 private:
  struct Converted {
    std::array<std::uint8_t, kMostBytes> bytes;
    std::uint16_t size;
    std::uint16_t missing;  // 1 if there are no bytes, else 0
  };

  std::array<Converted, 256> all_;
};

}  // namespace ravo::convert
