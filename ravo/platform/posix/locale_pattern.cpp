#include <ravo/platform/posix/locale_pattern.h>
#include <ravo/runtime/text.h>

#include <algorithm>

namespace ravo::platform::posix {
namespace {

// `plain` is the form without padding, if there is one.
struct Conversion {
  char16_t letter;
  std::u16string_view padded;
  std::u16string_view plain;
};

constexpr Conversion kConversions[] = {
    {u'd', u"dd", u"d"},
    {u'e', u"d", u"d"},
    {u'm', u"mm", u"m"},
    {u'y', u"yy", u"yy"},
    {u'Y', u"yyyy", u"yyyy"},
    {u'b', u"mmm", u"mmm"},
    {u'h', u"mmm", u"mmm"},
    {u'B', u"mmmm", u"mmmm"},
    {u'a', u"ddd", u"ddd"},
    {u'A', u"dddd", u"dddd"},
    {u'H', u"hh", u"h"},
    {u'k', u"h", u"h"},
    {u'I', u"hh", u"h"},
    {u'l', u"h", u"h"},
    {u'M', u"nn", u"n"},
    {u'S', u"ss", u"s"},
    {u'p', u"ampm", u"ampm"},
    {u'P', u"ampm", u"ampm"},
    {u'D', u"mm/dd/yy", u"mm/dd/yy"},
    {u'F', u"yyyy-mm-dd", u"yyyy-mm-dd"},
    {u'R', u"hh:nn", u"hh:nn"},
    {u'T', u"hh:nn:ss", u"hh:nn:ss"},
    {u'r', u"hh:nn:ss ampm", u"hh:nn:ss ampm"},
    {u'n', u" ", u" "},
    {u't', u" ", u" "},
    {u'%', u"%", u"%"},
};

// Flags, a width and modifiers come before the letter.
constexpr std::u16string_view kModifiers = u"-_0^#+123456789EO";

// One piece of a literal text: units that need no quotes, letters, or the quotes themselves.
std::u16string_view TakePiece(std::u16string_view& text, std::u16string_view& quote) {
  const auto quote_of = [](char16_t ch) -> std::u16string_view {
    if (ch == u'"') return u"'";
    return ch == u'\'' || IsAsciiLetter(ch) ? u"\"" : u"";
  };
  quote = quote_of(text.front());
  const auto end = std::ranges::find_if(text, [&](char16_t ch) { return quote_of(ch) != quote; });
  const std::u16string_view piece = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(piece.size());
  return piece;
}

std::u16string Literal(std::u16string_view text) {
  std::u16string result;
  while (!text.empty()) {
    std::u16string_view quote;
    const std::u16string_view piece = TakePiece(text, quote);
    result.append(quote).append(piece).append(quote);
  }
  return result;
}

// Removes the modifiers and the letter of a conversion from the front of `rest`, which begins after "%".
std::u16string_view TakeConversion(std::u16string_view& rest) {
  const std::size_t end = std::min(rest.find_first_not_of(kModifiers), rest.size());
  const std::u16string_view modifiers = rest.substr(0, end);
  rest.remove_prefix(end);
  if (rest.empty()) return {};
  const auto row = std::ranges::find(kConversions, rest.front(), &Conversion::letter);
  rest.remove_prefix(1);
  if (row == std::end(kConversions)) return {};
  return modifiers.find_first_of(u"-_") == std::u16string_view::npos ? row->padded : row->plain;
}

}  // namespace

std::u16string PatternFromLocale(std::u16string_view pattern) {
  std::u16string result;
  while (!pattern.empty()) {
    const std::u16string_view literal = pattern.substr(0, pattern.find(u'%'));
    result += Literal(literal);
    pattern.remove_prefix(literal.size());
    if (pattern.empty()) break;
    pattern.remove_prefix(1);
    result += TakeConversion(pattern);
  }
  return std::u16string(Trimmed(result));
}

}  // namespace ravo::platform::posix
