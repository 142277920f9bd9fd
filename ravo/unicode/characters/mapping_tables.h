#pragma once

#include <ravo/unicode/characters/mappings.h>

#include <cstdint>

/// The mapping tables, for hot loops without a call per unit. A block number of 0 or an entry of 0 means that
/// the unit maps to itself.
namespace ravo::DIUnicode {

extern const std::uint8_t kCaseFoldBlocks[];
extern const char16_t kCaseFoldEntries[];
extern const std::uint8_t kUpperBlocks[];
extern const char16_t kUpperEntries[];
extern const std::uint8_t kLowerBlocks[];
extern const char16_t kLowerEntries[];

[[nodiscard]] inline char16_t FoldedUnit(char16_t c) noexcept {
  return detail::LookUp<5>(kCaseFoldBlocks, kCaseFoldEntries, c, c);
}
[[nodiscard]] inline char16_t UpperUnit(char16_t c) noexcept {
  return detail::LookUp<6>(kUpperBlocks, kUpperEntries, c, c);
}
[[nodiscard]] inline char16_t LowerUnit(char16_t c) noexcept {
  return detail::LookUp<5>(kLowerBlocks, kLowerEntries, c, c);
}

}  // namespace ravo::DIUnicode
