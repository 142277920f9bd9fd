#pragma once

#include <cstdint>

namespace ravo::codec {

/// What UTF-7 remembers between characters.
struct Utf7State {
  bool in_base64 = false;
  bool empty = false;          ///< the run has had no byte of base 64 yet
  std::uint8_t bit_count = 0;  ///< of `bits`, those that make no whole unit or byte yet
  std::uint8_t unused = 0;
  std::uint32_t bits = 0;
  std::uint32_t unused_too = 0;
};
static_assert(sizeof(Utf7State) == 12);

}  // namespace ravo::codec
