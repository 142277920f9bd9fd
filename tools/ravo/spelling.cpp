#include "spelling.h"

#include <ravo/DIUnicode.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tool {
namespace {

using Has = std::function<bool(char16_t)>;

struct Spelled {
  char16_t code;
  const char16_t* spelling;
};

// Spellings that decompositions lack: letters with strokes, ligatures, and signs.
constexpr Spelled kSpelled[] = {
    {0x00A0, u" "},  {0x00A9, u"(C)"}, {0x00AB, u"\""}, {0x00AD, u"-"},   {0x00AE, u"(R)"}, {0x00B4, u"'"},
    {0x00B7, u"."},  {0x00BB, u"\""},  {0x00C6, u"AE"}, {0x00D0, u"D"},   {0x00D7, u"x"},   {0x00D8, u"O"},
    {0x00DE, u"TH"}, {0x00DF, u"ss"},  {0x00E6, u"ae"}, {0x00F0, u"d"},   {0x00F7, u":"},   {0x00F8, u"o"},
    {0x00FE, u"th"}, {0x0110, u"D"},   {0x0111, u"d"},  {0x0126, u"H"},   {0x0127, u"h"},   {0x0131, u"i"},
    {0x0138, u"k"},  {0x0141, u"L"},   {0x0142, u"l"},  {0x014A, u"N"},   {0x014B, u"n"},   {0x0152, u"OE"},
    {0x0153, u"oe"}, {0x0166, u"T"},   {0x0167, u"t"},  {0x0192, u"f"},   {0x02BC, u"'"},   {0x1E9E, u"SS"},
    {0x2010, u"-"},  {0x2011, u"-"},   {0x2012, u"-"},  {0x2013, u"-"},   {0x2014, u"-"},   {0x2015, u"-"},
    {0x2018, u"'"},  {0x2019, u"'"},   {0x201A, u"'"},  {0x201B, u"'"},   {0x201C, u"\""},  {0x201D, u"\""},
    {0x201E, u"\""}, {0x201F, u"\""},  {0x2020, u"+"},  {0x2022, u"*"},   {0x2032, u"'"},   {0x2033, u"\""},
    {0x2039, u"'"},  {0x203A, u"'"},   {0x2044, u"/"},  {0x20AC, u"EUR"}, {0x2190, u"<-"},  {0x2192, u"->"},
    {0x2212, u"-"},  {0x2215, u"/"},   {0x2217, u"*"},  {0x2260, u"!="},  {0x2264, u"<="},  {0x2265, u">="},
};
static_assert(std::ranges::is_sorted(kSpelled, {}, &Spelled::code));

bool IsMark(char16_t c) { return ravo::DIUnicode::CharIsMarkW(c); }

bool HasAll(std::u16string_view text, const Has& has) { return std::ranges::all_of(text, has); }

// Letters with diacritics are in these blocks.
bool IsComposed(char16_t c, std::u16string_view decomposition) {
  return ravo::DIUnicode::CharDecomposeCanonicalStrW(c) == decomposition;
}

// The character that decomposes into a letter and its marks, among those that may be used; 0 if there is
// none.
char16_t Composed(std::u16string_view decomposition, const Has& has) {
  if (decomposition.size() == 1) return has(decomposition[0]) ? decomposition[0] : u'\0';
  for (char16_t c = 0xC0; c < 0x2000; ++c) {
    if (IsComposed(c, decomposition) && has(c)) return c;
  }
  return 0;
}

std::u16string WithFewerMarks(std::u16string_view decomposition, const Has& has) {
  const auto is_mark = [](char16_t c) { return IsMark(c); };
  if (decomposition.size() < 2 || !std::ranges::all_of(decomposition.substr(1), is_mark)) return {};
  for (std::size_t length = decomposition.size() - 1; length > 0; --length) {
    if (const char16_t c = Composed(decomposition.substr(0, length), has); c != 0) return {c};
  }
  return {};
}

std::u16string_view FromTable(char16_t c) {
  const auto* const found = std::ranges::lower_bound(kSpelled, c, {}, &Spelled::code);
  return found != std::end(kSpelled) && found->code == c ? found->spelling : std::u16string_view();
}

std::u16string Usable(std::u16string_view text, const Has& has);

// A character that may not be used, by others.
std::u16string Spell(char16_t c, const Has& has) {
  if (const auto spelled = FromTable(c); !spelled.empty())
    return HasAll(spelled, has) ? std::u16string(spelled) : std::u16string();
  if (auto letter = WithFewerMarks(ravo::DIUnicode::CharDecomposeCanonicalStrW(c), has); !letter.empty())
    return letter;
  const std::u16string parts = ravo::DIUnicode::CharDecomposeCompatibleStrW(c);
  return parts == std::u16string(1, c) ? std::u16string() : Usable(parts, has);
}

// The text without its marks, each character as it is or spelled; empty if one of them cannot be.
std::u16string Usable(std::u16string_view text, const Has& has) {
  std::u16string all;
  for (const char16_t c : text) {
    if (IsMark(c)) continue;
    const std::u16string part = has(c) ? std::u16string(1, c) : Spell(c, has);
    if (part.empty()) return {};
    all += part;
  }
  return all;
}

}  // namespace

std::u16string SpellingOf(char32_t code, const Has& has) {
  return code > 0xFFFF ? std::u16string() : Spell(static_cast<char16_t>(code), has);
}

}  // namespace tool
