#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/characters/decompositions.h>
#include <ravo/unicode/characters/mapping_tables.h>

namespace ravo::DIUnicode {
namespace {

#include "generated/decompositions.inc"

// The conjoining jamo of Hangul: leading, vowel and trailing, and the counts of the last two.
constexpr unsigned kSyllableBase = 0xAC00;
constexpr unsigned kLeadBase = 0x1100;
constexpr unsigned kVowelBase = 0x1161;
constexpr unsigned kTrailBase = 0x11A7;
constexpr unsigned kVowels = 21;
constexpr unsigned kTrails = 28;

CharSequence At(const std::uint8_t* pool, unsigned offset) {
  return offset == 0 ? CharSequence() : CharSequence(pool + offset);
}

}  // namespace

std::u16string CharSequence::Text() const {
  if (!bytes_) return {};
  std::u16string text(size(), u'\0');
  for (std::size_t i = 0; i < text.size(); ++i) text[i] = (*this)[i];
  return text;
}

CharSequence CharDecomposeCanonicalW(char16_t c) noexcept {
  return At(kCanonicalPool, detail::LookUp<5>(kCanonicalBlocks, kCanonicalEntries, c, 0U));
}

CharSequence CharDecomposeCompatibleW(char16_t c) noexcept {
  const CharSequence found =
      At(kCompatiblePool, detail::LookUp<5>(kCompatibleBlocks, kCompatibleEntries, c, 0U));
  return found ? found : CharDecomposeCanonicalW(c);
}

std::u16string CharDecomposeCanonicalStrW(char16_t c) { return CharDecomposeCanonicalW(c).Text(); }
std::u16string CharDecomposeCompatibleStrW(char16_t c) { return CharDecomposeCompatibleW(c).Text(); }

std::u16string CharDecomposeHangulW(char16_t c) {
  if (!CharIsHangulW(c)) return {};
  const unsigned index = c - kSyllableBase;
  const unsigned trail = index % kTrails;
  std::u16string letters = {static_cast<char16_t>(kLeadBase + index / (kVowels * kTrails)),
                            static_cast<char16_t>(kVowelBase + index / kTrails % kVowels)};
  if (trail != 0) letters.push_back(static_cast<char16_t>(kTrailBase + trail));
  return letters;
}

}  // namespace ravo::DIUnicode
