#pragma once

#include <cstdint>

/// The tables behind the mappings, for loops that cannot afford a call for every unit. A block number of 0 or
/// an entry of 0 means that the unit stays as it is.
namespace ravo::DIUnicode {

extern const std::uint8_t kCaseFoldBlocks[];
extern const char16_t kCaseFoldEntries[];
extern const std::uint8_t kUpperBlocks[];
extern const char16_t kUpperEntries[];
extern const std::uint8_t kLowerBlocks[];
extern const char16_t kLowerEntries[];

/// The entry of `c`, or `fallback` where that is 0. Block 0 stands in front of the others and holds zeros.
template <unsigned block_bits, class Entry, class Default>
[[nodiscard]] inline Default LookUp(const std::uint8_t* blocks, const Entry* entries, char16_t c,
                                    Default fallback) noexcept {
  constexpr unsigned size = 1U << block_bits;
  const Entry entry = entries[blocks[c >> block_bits] * size + (c & (size - 1))];
  return entry != 0 ? entry : fallback;
}

[[nodiscard]] inline char16_t FoldedUnit(char16_t c) noexcept {
  return LookUp<5>(kCaseFoldBlocks, kCaseFoldEntries, c, c);
}
[[nodiscard]] inline char16_t UpperUnit(char16_t c) noexcept {
  return LookUp<6>(kUpperBlocks, kUpperEntries, c, c);
}
[[nodiscard]] inline char16_t LowerUnit(char16_t c) noexcept {
  return LookUp<5>(kLowerBlocks, kLowerEntries, c, c);
}

}  // namespace ravo::DIUnicode
