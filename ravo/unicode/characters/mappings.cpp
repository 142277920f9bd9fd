#include <ravo/unicode/characters/mapping_tables.h>
#include <ravo/unicode/characters/mappings.h>

namespace ravo::DIUnicode {

#include "generated/mappings.inc"

char16_t CharToCaseFoldW(char16_t c) noexcept { return FoldedUnit(c); }
char16_t CharToUpperW(char16_t c) noexcept { return UpperUnit(c); }
char16_t CharToLowerW(char16_t c) noexcept { return LowerUnit(c); }
char16_t CharToTitleW(char16_t c) noexcept { return LookUp<6>(kTitleBlocks, kTitleEntries, c, c); }

std::uint8_t CharCanonicalCombiningClassW(char16_t c) noexcept {
  return LookUp<5>(kCombiningClassBlocks, kCombiningClassEntries, c, std::uint8_t{0});
}

}  // namespace ravo::DIUnicode
