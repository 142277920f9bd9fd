#include <ravo/platform/windows_pattern.h>
#include <ravo/runtime/text.h>

#include <algorithm>

namespace ravo::platform {
namespace {

// Quoted text has no escape: text with one kind of quote in it is written in pieces, each in the other kind.
void AppendLiteral(std::u16string& out, std::u16string_view text) {
  while (!text.empty()) {
    const char16_t quote = text.front() == u'\'' ? u'"' : u'\'';
    const std::u16string_view piece = text.substr(0, text.find(quote));
    out.append(1, quote).append(piece).append(1, quote);
    text.remove_prefix(piece.size());
  }
}

// Removes a quoted text from the front of `rest`. Two quotes inside are one quote; a missing closing quote
// is assumed at the end.
std::u16string TakeQuoted(std::u16string_view& rest) {
  std::u16string text;
  rest.remove_prefix(1);
  while (!rest.empty()) {
    const char16_t ch = rest.front();
    rest.remove_prefix(1);
    if (ch == u'\'') {
      if (!rest.starts_with(u'\'')) break;
      rest.remove_prefix(1);
    }
    text.push_back(ch);
  }
  return text;
}

// Letters that are literal for Windows but not for `FormatDateTime` need quotes, and so do quotes.
void AppendOther(std::u16string& out, std::u16string_view run) {
  if (IsAsciiLetter(run.front()) || run.front() == u'"') return AppendLiteral(out, run);
  out += run;
}

// A run of `count` equal letters. Longer runs mean the same as the longest known one.
void AppendLetters(std::u16string& out, char16_t letter, std::size_t count) {
  const auto put = [&](char16_t ours, std::size_t most) { out.append(std::min(count, most), ours); };
  switch (letter) {
    case u'd':
      return put(u'd', 4);
    case u'M':
      return put(u'm', 4);
    case u'y':
      return void(out.append(count > 2 ? 4 : count, u'y'));
    case u'h':
    case u'H':
      return put(u'h', 2);
    case u'm':
      return put(u'n', 2);
    case u's':
      return put(u's', 2);
    case u't':
      return void(out.append(count > 1 ? u"AMPM" : u"A/P"));
    case u'g':
      return;
    default:
      return AppendOther(out, std::u16string(count, letter));
  }
}

}  // namespace

std::u16string FromWindowsPattern(std::u16string_view pattern) {
  std::u16string out;
  while (!pattern.empty()) {
    const char16_t ch = pattern.front();
    if (ch == u'\'') {
      AppendLiteral(out, TakeQuoted(pattern));
      continue;
    }
    const std::size_t count = std::min(pattern.find_first_not_of(ch), pattern.size());
    AppendLetters(out, ch, count);
    pattern.remove_prefix(count);
  }
  return out;
}

}  // namespace ravo::platform
