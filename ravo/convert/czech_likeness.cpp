#include <ravo/convert/czech_likeness.h>

#include <algorithm>
#include <cstddef>

namespace ravo::convert {
namespace {

struct Letter {
  char16_t small;
  char16_t capital;
  // The binary logarithm of their number in 100,000 letters.
  int small_bits;
  int capital_bits;
};

// Counted in the 26,662 Czech messages of the programs of a Debian 12 system.
constexpr Letter kCzechLetters[] = {
    {u'á', u'Á', 11, 6}, {u'č', u'Č', 10, 6}, {u'ď', u'Ď', 4, 0}, {u'é', u'É', 10, 4}, {u'ě', u'Ě', 9, 4},
    {u'í', u'Í', 12, 6}, {u'ň', u'Ň', 5, 0},  {u'ó', u'Ó', 6, 2}, {u'ř', u'Ř', 10, 6}, {u'š', u'Š', 9, 5},
    {u'ť', u'Ť', 4, 0},  {u'ú', u'Ú', 6, 3},  {u'ů', u'Ů', 8, 4}, {u'ý', u'Ý', 10, 4}, {u'ž', u'Ž', 10, 5},
};

struct Sign {
  char16_t sign;
  int bits;
};

constexpr char16_t kNoBreakSpace = 0xA0;

// Counted in the same messages, the last ones at least once.
constexpr Sign kSigns[] = {{u'„', 8}, {u'“', 8}, {kNoBreakSpace, 7}, {u'…', 5}, {u'–', 4},
                           {u'©', 1}, {u'•', 1}, {u'€', 1},          {u'§', 1}, {u'°', 1},
                           {u'”', 0}, {u'×', 0}, {u'‚', 0},          {u'‘', 0}};

// Letters of the neighbours.
constexpr std::u16string_view kForeignSmall = u"äöüľĺŕôąćęłńśźżőűăâçđëîţ";
constexpr std::u16string_view kForeignCapital = u"ÄÖÜĽĹŔÔĄĆĘŁŃŚŹŻŐŰĂÂÇĐËÎŢ";
constexpr int kForeignBits = 1;
constexpr int kFrameBits = 1;
constexpr int kOtherBits = -4;
constexpr int kControlBits = -20;
// What Czech words and texts do not do.
constexpr int kWrong = -6;

char16_t Small(char16_t c) {
  if (c < 0x80) return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 0x20) : c;
  for (const Letter& letter : kCzechLetters) {
    if (c == letter.capital) return letter.small;
  }
  const std::size_t foreign = kForeignCapital.find(c);
  return foreign == std::u16string_view::npos ? c : kForeignSmall[foreign];
}

bool IsIn(std::u16string_view letters, char16_t c) { return letters.find(c) != std::u16string_view::npos; }

bool IsSmall(char16_t c) {
  return (c >= u'a' && c <= u'z') || IsIn(u"áčďéěíňóřšťúůýžß", c) || IsIn(kForeignSmall, c);
}
bool IsCapital(char16_t c) { return Small(c) != c; }
bool IsLetter(char16_t c) { return IsSmall(c) || IsCapital(c); }
// Lines, corners and shades, of which tables and frames are drawn.
bool IsFrame(char16_t c) { return c >= 0x2500 && c <= 0x259F; }
bool IsControl(char16_t c) { return (c >= 0x80 && c < 0xA0) || c == 0xFFFD; }

int Frequency(char16_t c) {
  for (const Letter& letter : kCzechLetters) {
    if (c == letter.small) return letter.small_bits;
    if (c == letter.capital) return letter.capital_bits;
  }
  for (const Sign& sign : kSigns) {
    if (c == sign.sign) return sign.bits;
  }
  if (IsControl(c)) return kControlBits;
  if (IsFrame(c)) return kFrameBits;
  return IsLetter(c) ? kForeignBits : kOtherBits;
}

// A character with what is beside it; a blank at the ends of the text.
struct Neighbours {
  char16_t second_before;
  char16_t before;
  char16_t c;
  char16_t after;
};

int LetterInItsPlace(const Neighbours& at) {
  constexpr std::u16string_view kSoftConsonants = u"cčďjňřšťž";
  const char16_t before = Small(at.before);
  const char16_t c = Small(at.c);
  const char16_t after = Small(at.after);
  int bits = 0;
  if (IsSmall(at.before) && IsCapital(at.c)) bits += kWrong;
  if (before == c) bits += kWrong;
  if (c == u'ě' && !IsIn(u"bdfmnptv", before)) bits += kWrong;
  if (c == u'ů' && !IsLetter(before)) bits += kWrong;
  if (c == u'ý' && (IsIn(kSoftConsonants, before) || !IsLetter(before))) bits += kWrong;
  if (IsIn(u"áéěíóúůý", c) && IsIn(u"aeiouyáéěíóúůý", after)) bits += kWrong;
  if (IsIn(u"ďňť", c) && IsIn(u"eěií", after)) bits += kWrong;
  if (IsIn(kSoftConsonants, c) && IsIn(u"yý", after)) bits += kWrong;
  return bits;
}

int SignInItsPlace(const Neighbours& at) {
  if (IsFrame(at.c) && (IsFrame(at.before) || IsFrame(at.after))) return -kWrong;
  const bool in_word = IsLetter(at.before) && IsLetter(at.after);
  // A word of one letter stays with the next one.
  const bool joins = at.c == kNoBreakSpace && !IsLetter(at.second_before);
  return in_word && !joins ? kWrong : 0;
}

int Bits(const Neighbours& at) {
  return Frequency(at.c) + (IsLetter(at.c) ? LetterInItsPlace(at) : SignInItsPlace(at));
}

}  // namespace

int CzechLikeness(std::u16string_view text) {
  const auto at = [text](std::size_t i) { return i < text.size() ? text[i] : u' '; };
  int bits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    // Before the start, `i - 1` wraps around to past the end.
    if (text[i] >= 0x80) bits += Bits({at(i - 2), at(i - 1), text[i], at(i + 1)});
  }
  return bits;
}

}  // namespace ravo::convert
