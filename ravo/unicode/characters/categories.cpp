#include <ravo/unicode/characters/categories.h>
#include <ravo/unicode/characters/character_kinds.h>

#include <cstdint>

namespace ravo::DIUnicode {
namespace {

// Units below `first` wrap to large numbers and fail the one comparison.
constexpr bool Within(char16_t c, unsigned first, unsigned last) { return c - first <= last - first; }

// Returns whether the bit of `c` is set in a bit set that starts at the unit `first`.
constexpr bool Among(char16_t c, unsigned first, std::uint64_t bits) {
  const unsigned at = c - first;
  return at < 64 && ((bits >> at) & 1) != 0;
}

}  // namespace

#include "generated/categories.inc"

}  // namespace ravo::DIUnicode
