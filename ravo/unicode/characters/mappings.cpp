#include <ravo/unicode/characters/mapping_tables.h>
#include <ravo/unicode/characters/mappings.h>

namespace ravo::DIUnicode {

#include "generated/mappings.inc"

namespace detail {

const TwoStages<5, char16_t> kCaseFold{kCaseFoldBlocks, kCaseFoldEntries};
const TwoStages<6, char16_t> kUpper{kUpperBlocks, kUpperEntries};
const TwoStages<5, char16_t> kLower{kLowerBlocks, kLowerEntries};
const TwoStages<6, char16_t> kTitle{kTitleBlocks, kTitleEntries};
const TwoStages<5, std::uint8_t> kCombiningClass{kCombiningClassBlocks, kCombiningClassEntries};

}  // namespace detail
}  // namespace ravo::DIUnicode
