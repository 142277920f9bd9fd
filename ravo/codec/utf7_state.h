#pragma once

#include <cstdint>

namespace ravo::codec {

/// The state of UTF-7 between characters.
struct Utf7State {
  bool in_base64 = false;
  bool empty = false;          ///< the run has no base 64 byte yet
  std::uint8_t bit_count = 0;  ///< the number of pending bits in `bits`
  std::uint8_t unused = 0;
  std::uint32_t bits = 0;
  std::uint32_t unused_too = 0;
};
static_assert(sizeof(Utf7State) == 12);

}  // namespace ravo::codec
