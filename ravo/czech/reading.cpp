#include <ravo/czech/reading.h>

namespace ravo::czech::detail {
namespace {

constexpr CodePoint kIllFormed{0xFFFD, 1};

constexpr bool IsTrailing(std::uint32_t unit) noexcept { return (unit & 0xC0) == 0x80; }

constexpr bool IsBlankPoint(std::uint32_t point) noexcept {
  return point == 0x85 || point == 0xA0 || point == 0xAD || (point >= 0x2000 && point <= 0x200D) ||
         point == 0x2028 || point == 0x2029 || point == 0x202F || point == 0x205F || point == 0x2060 ||
         point == 0x3000 || point == 0xFEFF;
}

constexpr bool IsHyphenPoint(std::uint32_t point) noexcept {
  return (point >= 0x2010 && point <= 0x2015) || point == 0x2212;
}

// Of the letters in labels, accents gone; combining accents are dropped (0), other characters stay what they
// are.
constexpr std::uint32_t Plain(std::uint32_t point) noexcept {
  if (point >= 'a' && point <= 'z') return point - 'a' + 'A';
  if (point >= 0x300 && point <= 0x36F) return 0;
  switch (point) {
    case 0xC1:
    case 0xE1:
      return 'A';
    case 0x10C:
    case 0x10D:
      return 'C';
    case 0xC9:
    case 0xE9:
      return 'E';
    case 0xCD:
    case 0xED:
      return 'I';
    case 0xDA:
    case 0xFA:
    case 0x16E:
    case 0x16F:
      return 'U';
    default:
      return point;
  }
}

constexpr bool DividesLabel(std::uint32_t point) noexcept {
  return point == ':' || point == '.' || point == '=' || point == ' ' || point == '\t' || IsBlankPoint(point);
}

template <class Unit>
std::size_t SkipDividers(std::basic_string_view<Unit> text, std::size_t at) noexcept {
  while (at < text.size()) {
    const CodePoint point = CodePointAt(text, at);
    if (!DividesLabel(point.value)) break;
    at += point.units;
  }
  return at;
}

// The end of `label` at `at`, or npos.
template <class Unit>
std::size_t LabelMatch(std::basic_string_view<Unit> text, std::size_t at, std::string_view label) noexcept {
  std::size_t matched = 0;
  while (matched < label.size()) {
    if (at >= text.size()) return std::string_view::npos;
    const CodePoint point = CodePointAt(text, at);
    const std::uint32_t plain = Plain(point.value);
    if (plain == static_cast<unsigned char>(label[matched])) {
      ++matched;
    } else if (matched == 0 || (plain != 0 && plain != '-' && !DividesLabel(plain))) {
      return std::string_view::npos;
    }
    at += point.units;
  }
  return at;
}

template <class Unit>
bool EndsInColon(std::basic_string_view<Unit> text, std::size_t end) noexcept {
  return end < text.size() && UnitValue(text[end]) == ':';
}

template <class Unit>
std::size_t AfterLabelIn(std::basic_string_view<Unit> text, const Spelling& spelling) noexcept {
  std::size_t begin = 0;
  while (begin < text.size() && (MarkAt(text, begin).marks & kBlank)) begin += MarkAt(text, begin).units;
  for (const std::string_view label : spelling.labels) {
    if (label.empty()) break;
    std::size_t end = LabelMatch(text, begin, label);
    if (end == std::string_view::npos) continue;
    while (end < text.size() && Plain(CodePointAt(text, end).value) == 0) end += CodePointAt(text, end).units;
    const std::size_t rest = SkipDividers(text, end);
    // A kind that has letters itself may begin like its label, and one of digits like a label that ends in
    // some.
    if (rest == end && (spelling.keep & kLetter)) continue;
    if (kAsciiMarks[static_cast<unsigned char>(label.back())].marks == kDigit && !EndsInColon(text, end))
      continue;
    return rest;
  }
  return 0;
}

}  // namespace

CodePoint CodePointAt(std::string_view text, std::size_t at) noexcept {
  const auto unit = [text](std::size_t i) { return i < text.size() ? UnitValue(text[i]) : 0U; };
  const std::uint32_t first = unit(at);
  if (first < 0x80) return {first, 1};
  const std::uint32_t second = unit(at + 1);
  if (first >= 0xC2 && first <= 0xDF && IsTrailing(second)) return {(first & 0x1F) << 6 | (second & 0x3F), 2};
  const std::uint32_t third = unit(at + 2);
  if (first < 0xE0 || first > 0xEF || !IsTrailing(second) || !IsTrailing(third)) return kIllFormed;
  const std::uint32_t point = (first & 0xF) << 12 | (second & 0x3F) << 6 | (third & 0x3F);
  return point < 0x800 || (point >= 0xD800 && point <= 0xDFFF) ? kIllFormed : CodePoint{point, 3};
}

CodePoint CodePointAt(std::u16string_view text, std::size_t at) noexcept { return {text[at], 1}; }

Mark WideMark(CodePoint point) noexcept {
  if (IsBlankPoint(point.value)) return {kBlank, ' ', point.units};
  if (IsHyphenPoint(point.value)) return {kHyphen, '-', point.units};
  if (point.value == 0x2044 || point.value == 0x2215) return {kSlash, '/', point.units};
  return {kOther, 0, point.units};
}

std::size_t AfterLabel(std::string_view text, const Spelling& spelling) noexcept {
  return AfterLabelIn(text, spelling);
}
std::size_t AfterLabel(std::u16string_view text, const Spelling& spelling) noexcept {
  return AfterLabelIn(text, spelling);
}

}  // namespace ravo::czech::detail
