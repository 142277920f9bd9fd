#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

/// How all kinds read an input: which characters they keep, which they skip, and where each was.
///
/// An input is UTF-8 or UTF-16 as it is. A kind says in a `Spelling` which characters it keeps and which it
/// skips; `Read` copies the kept ones, letters in upper case, into a small buffer, or says why not. Positions
/// of kept characters are not stored: a refusal walks the input once more (`PositionOf`), so that a correct
/// input does not pay for it.
namespace ravo::czech::detail {

/// Sets of characters, to be combined.
using Marks = std::uint8_t;
inline constexpr Marks kBlank =
    1;  ///< spaces of all widths, no-break ones, tabs, line ends, marks of no width
inline constexpr Marks kDigit = 2;    ///< 0 to 9
inline constexpr Marks kLetter = 4;   ///< A to Z of either case
inline constexpr Marks kHyphen = 8;   ///< hyphen, dashes, minus
inline constexpr Marks kDot = 16;     ///< full stop
inline constexpr Marks kSlash = 32;   ///< slash, fraction slash
inline constexpr Marks kSign = 64;    ///< plus and asterisk
inline constexpr Marks kOther = 128;  ///< anything else: no kind keeps or skips it

/// One character: what it is, what it is kept as, how many units it takes.
struct Mark {
  Marks marks = kOther;
  char kept = 0;
  std::uint8_t units = 1;
};

[[nodiscard]] constexpr Mark AsciiMark(char character) noexcept {
  const auto is = [character](std::string_view set) { return set.find(character) != std::string_view::npos; };
  if (character >= '0' && character <= '9') return {kDigit, character};
  if (character >= 'A' && character <= 'Z') return {kLetter, character};
  if (character >= 'a' && character <= 'z') return {kLetter, static_cast<char>(character - 'a' + 'A')};
  if (character == ' ' || (character >= '\t' && character <= '\r')) return {kBlank, ' '};
  if (character == '-') return {kHyphen, character};
  if (character == '.') return {kDot, character};
  if (character == '/') return {kSlash, character};
  if (is("+*")) return {kSign, character};
  return {};
}

inline constexpr auto kAsciiMarks = [] {
  std::array<Mark, 128> marks{};
  for (std::size_t i = 0; i < marks.size(); ++i) marks[i] = AsciiMark(static_cast<char>(i));
  return marks;
}();

/// By unit, up to 255: its marks, `kOther` beyond ASCII, and above them what it is kept as.
inline constexpr auto kUnits = [] {
  std::array<std::uint16_t, 256> units{};
  for (std::size_t i = 0; i < units.size(); ++i) {
    const Mark mark = i < 128 ? kAsciiMarks[i] : Mark{};
    units[i] = static_cast<std::uint16_t>(mark.marks | mark.kept << 8);
  }
  return units;
}();

/// Unsigned value of a unit of either encoding.
template <class Unit>
[[nodiscard]] constexpr std::uint32_t UnitValue(Unit unit) noexcept {
  return static_cast<std::make_unsigned_t<Unit>>(unit);
}
template <>
[[nodiscard]] constexpr std::uint32_t UnitValue(char16_t unit) noexcept {
  return unit;
}

/// The code point at `at` and the units it takes. An ill-formed unit is U+FFFD.
struct CodePoint {
  std::uint32_t value = 0;
  std::uint8_t units = 1;
};
[[nodiscard]] CodePoint CodePointAt(std::string_view text, std::size_t at) noexcept;
[[nodiscard]] CodePoint CodePointAt(std::u16string_view text, std::size_t at) noexcept;

/// What a character beyond ASCII is.
[[nodiscard]] Mark WideMark(CodePoint point) noexcept;

template <class Unit>
[[nodiscard]] inline Mark MarkAt(std::basic_string_view<Unit> text, std::size_t at) noexcept {
  const std::uint32_t unit = UnitValue(text[at]);
  return unit < 128 ? kAsciiMarks[unit] : WideMark(CodePointAt(text, at));
}

/// How a kind is written.
struct Spelling {
  Code empty = Code::Correct;
  Code character = Code::Correct;
  Code length = Code::Correct;
  Marks keep = 0;
  Marks skip = kBlank;
  /// What people write before it, in capitals without accents, dots and blanks; a label precedes its own
  /// prefixes.
  std::array<std::string_view, 8> labels{};
};

/// Where the input continues past a label and what divides it from the rest; 0 if there is no label.
[[nodiscard]] std::size_t AfterLabel(std::string_view text, const Spelling& spelling) noexcept;
[[nodiscard]] std::size_t AfterLabel(std::u16string_view text, const Spelling& spelling) noexcept;

/// Whether a label can begin with this unit: a digit begins none, and of the letters only some do.
[[nodiscard]] constexpr bool MayBeginLabel(std::uint32_t unit, const Spelling& spelling) noexcept {
  if (unit >= 128 || kAsciiMarks[unit].marks == kBlank) return true;
  for (const std::string_view label : spelling.labels) {
    if (label.empty()) break;
    if (label[0] == kAsciiMarks[unit].kept) return true;
  }
  return false;
}

/// The kept characters, or the reason why not. `from` is where they begin, past a label.
template <std::size_t capacity>
struct Kept {
  FixedText<capacity> text;
  std::size_t from = 0;
  Code code = Code::Correct;
  bool digits_alone = false;  ///< whether it is known that nothing but digits was kept
  std::size_t position = 0;

  [[nodiscard]] std::size_t Size() const noexcept { return text.size; }
  [[nodiscard]] char At(std::size_t index) const noexcept { return text.characters[index]; }
  [[nodiscard]] std::string_view View() const noexcept { return text.View(); }
};

template <class Unit>
[[nodiscard]] inline std::size_t LabelEnd(std::basic_string_view<Unit> text,
                                          const Spelling& spelling) noexcept {
  if (text.empty()) return 0;
  const std::uint32_t first = UnitValue(text[0]);
  if (first - '0' < 10 || !MayBeginLabel(first, spelling)) return 0;
  return AfterLabel(text, spelling);
}

/// Reads an input of kept characters alone, as most are; false for any other. It has no label: a label has
/// letters, and a kind that keeps letters requires a divider after its label.
template <std::size_t capacity, class Unit>
[[nodiscard]] inline bool ReadClean(std::basic_string_view<Unit> text, const Spelling& spelling,
                                    Kept<capacity>& kept) noexcept {
  if (text.empty() || text.size() > capacity) return false;
  unsigned seen = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::uint16_t unit = kUnits[std::min(UnitValue(text[i]), 255U)];
    if (!(unit & spelling.keep)) return false;
    seen |= unit;
    kept.text.characters[i] = static_cast<char>(unit >> 8);
  }
  kept.text.size = static_cast<std::uint8_t>(text.size());
  kept.digits_alone = (seen & 0xFF) == kDigit;
  return true;
}

/// Reads an input with a label, blanks or a character that does not belong.
template <std::size_t capacity, class Unit>
[[gnu::noinline]] void ReadMixed(std::basic_string_view<Unit> text, const Spelling& spelling,
                                 Kept<capacity>& kept) noexcept {
  kept.text = {};
  kept.digits_alone = false;
  kept.from = LabelEnd(text, spelling);
  // Locals: a character stored through a pointer could alias any object.
  std::size_t at = kept.from;
  std::size_t size = 0;
  Code code = Code::Correct;
  while (at < text.size() && code == Code::Correct) {
    const Mark mark = MarkAt(text, at);
    const bool keeps = (mark.marks & spelling.keep) != 0;
    if (keeps && size < capacity) {
      kept.text.characters[size++] = mark.kept;
    } else if (keeps) {
      code = spelling.length;
    } else if (!(mark.marks & spelling.skip)) {
      code = spelling.character;
    }
    if (code == Code::Correct) at += mark.units;
  }
  kept.text.size = static_cast<std::uint8_t>(size);
  kept.position = at;
  kept.code = size == 0 && code == Code::Correct ? spelling.empty : code;
}

/// Reads at most `capacity` kept characters past a label. Refuses an input without any, and the first that
/// does not belong.
template <std::size_t capacity, class Unit>
[[nodiscard]] inline Kept<capacity> Read(std::basic_string_view<Unit> text,
                                         const Spelling& spelling) noexcept {
  Kept<capacity> kept;
  if (!ReadClean(text, spelling, kept)) ReadMixed(text, spelling, kept);
  return kept;
}

/// The first character from `from` on that is no digit; the length otherwise.
[[nodiscard]] constexpr std::size_t FirstNoDigit(std::string_view text, std::size_t from = 0) noexcept {
  while (from < text.size() && text[from] >= '0' && text[from] <= '9') ++from;
  return from;
}

/// Where the kept character number `index` is in the input; the input's length if there are fewer.
template <class Unit>
[[nodiscard, gnu::noinline, gnu::cold]] std::size_t PositionOf(std::basic_string_view<Unit> text,
                                                               const Spelling& spelling, std::size_t from,
                                                               std::size_t index) noexcept {
  for (std::size_t at = from; at < text.size();) {
    const Mark mark = MarkAt(text, at);
    if ((mark.marks & spelling.keep) && index-- == 0) return at;
    at += mark.units;
  }
  return text.size();
}

/// The refusal of the kept character number `index`.
template <class Value, class Unit>
[[nodiscard]] Parsed<Value> Refuse(std::basic_string_view<Unit> text, const Spelling& spelling,
                                   std::size_t from, std::size_t index, Code code) noexcept {
  return {{}, code, PositionOf(text, spelling, from, index)};
}

}  // namespace ravo::czech::detail
