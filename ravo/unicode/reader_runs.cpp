// The families that read and skip, each from one loop. Where the encoding decodes whole runs, a run is
// decoded, what belongs at its front is passed over at once, and the reader stands as if it had read the
// characters one by one.
#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/encodings/runs.h>
#include <ravo/unicode/predicates.h>
#include <ravo/unicode/run_search.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>
#include <array>

namespace ravo::DIUnicode {
namespace {

using unicode::Except;
using unicode::OneOf;
using unicode::OrWhiteSpace;

// Most words and numbers are shorter than the first run; each full one is followed by a longer one.
constexpr std::size_t kFirstRun = 32;
constexpr std::size_t kLongestRun = 1024;

// A test that somebody brought.
struct Passing {
  CharPredicate validate;

  bool operator()(char16_t c) const { return validate(c); }
};

struct PassingBut {
  CharPredicate validate;
  char16_t end;

  bool operator()(char16_t c) const { return validate(c) && c != end; }
};

// White space; nearly all of it is blanks and what ends lines.
struct WhiteSpace {
  static bool IsPlain(char16_t c) { return c == u' ' || static_cast<char16_t>(c - 9) <= 13 - 9; }

  bool operator()(char16_t c) const { return IsPlain(c) || (c > 0x7F && CharIsWhiteSpaceW(c)); }
  [[nodiscard]] std::size_t LengthIn(std::u16string_view run) const {
    std::size_t at = 0;
    while (at < run.size()) {
      at += unicode::LengthBefore(run.substr(at), [](char16_t c) { return !IsPlain(c); });
      if (at == run.size() || !(*this)(run[at])) break;
      ++at;
    }
    return at;
  }
};

template <class Belongs>
std::size_t LengthIn(std::u16string_view run, const Belongs& belongs) {
  if constexpr (requires { belongs.LengthIn(run); }) {
    return belongs.LengthIn(run);
  } else {
    return static_cast<std::size_t>(std::ranges::find_if_not(run, belongs) - run.begin());
  }
}

}  // namespace

// Decodes what belongs, as much as comes at once and fits, and steps over its bytes.
template <class Belongs>
std::size_t TDIUnicodeReader::DecodeBelonging(std::span<char16_t> room, const Belongs& belongs) {
  if (FDecodeRun == nullptr || FPeekedCount != 0) return 0;
  const auto bytes = UnreadBytes();
  Run run = FDecodeRun(bytes, room);
  const std::size_t length = LengthIn({room.data(), run.made}, belongs);
  if (length < run.made) {
    // With as many bytes as characters each has one; else the shorter run tells how many bytes it has.
    run = run.taken == run.made ? Run{length, length} : FDecodeRun(bytes, room.first(length));
  }
  FSourceBufferPosition += static_cast<std::uint32_t>(run.taken);
  return run.made;
}

// The current character becomes the last one of the run, with the location that it has then.
void TDIUnicodeReader::CountRun(std::u16string_view run) noexcept {
  while (!run.empty()) {
    std::size_t count = 0;
    if (!unicode::kLineBreaks(FChar))
      count = std::min(unicode::LengthBefore(run, unicode::kLineBreaks) + 1, run.size());
    FLastChar = count > 1 ? run[count - 2] : FChar;
    FChar = run[std::max<std::size_t>(count, 1) - 1];
    if (count == 0) {
      CountLocation();
      count = 1;
    } else {
      FCharPos += static_cast<std::uint32_t>(count);
      FCharCol += static_cast<std::uint32_t>(count);
    }
    run.remove_prefix(count);
  }
}

template <class Belongs>
std::size_t TDIUnicodeReader::PassRun(std::span<char16_t> room, const Belongs& belongs, bool store) {
  const std::u16string_view run(room.data(), DecodeBelonging(room, belongs));
  if (store) AddStrW(run);
  CountRun(run);
  return run.size();
}

template <class Belongs>
void TDIUnicodeReader::PassOver(const Belongs& belongs, bool store) {
  std::array<char16_t, kLongestRun> room;
  std::size_t next = kFirstRun;
  while (FCharOK && belongs(FChar)) {
    if (store) AddChar(FChar);
    while (PassRun(std::span(room).first(next), belongs, store) == next)
      next = std::min(2 * next, kLongestRun);
    ReadChar();
  }
}

std::size_t TDIUnicodeReader::ReadRun(std::span<char16_t> room) {
  const auto any = [](char16_t) { return true; };
  if (const std::size_t count = DecodeBelonging(room, any); count != 0) return count;
  if (!ReadChar()) return 0;
  room.front() = FChar;
  return 1;
}

void TDIUnicodeReader::ReadChars(char16_t c) { PassOver(OneOf(c), true); }
void TDIUnicodeReader::SkipChars(char16_t c) { PassOver(OneOf(c), false); }
void TDIUnicodeReader::ReadChars(char16_t c, char16_t c2) { PassOver(OneOf(c, c2), true); }
void TDIUnicodeReader::SkipChars(char16_t c, char16_t c2) { PassOver(OneOf(c, c2), false); }

void TDIUnicodeReader::ReadChars(CharPredicate Validate) { PassOver(Passing{OrWhiteSpace(Validate)}, true); }
void TDIUnicodeReader::SkipChars(CharPredicate Validate) { PassOver(Passing{OrWhiteSpace(Validate)}, false); }
void TDIUnicodeReader::ReadChars(CharPredicate Validate, char16_t c) {
  PassOver(PassingBut{OrWhiteSpace(Validate), c}, true);
}
void TDIUnicodeReader::SkipChars(CharPredicate Validate, char16_t c) {
  PassOver(PassingBut{OrWhiteSpace(Validate), c}, false);
}

void TDIUnicodeReader::ReadCharsTill(char16_t c) { PassOver(Except(OneOf(c)), true); }
void TDIUnicodeReader::SkipCharsTill(char16_t c) { PassOver(Except(OneOf(c)), false); }
void TDIUnicodeReader::ReadCharsTill(char16_t c, char16_t c2) { PassOver(Except(OneOf(c, c2)), true); }
void TDIUnicodeReader::SkipCharsTill(char16_t c, char16_t c2) { PassOver(Except(OneOf(c, c2)), false); }
void TDIUnicodeReader::ReadCharsTill(char16_t c, char16_t c2, char16_t c3) {
  PassOver(Except(OneOf(c, c2, c3)), true);
}
void TDIUnicodeReader::SkipCharsTill(char16_t c, char16_t c2, char16_t c3) {
  PassOver(Except(OneOf(c, c2, c3)), false);
}

void TDIUnicodeReader::ReadCharsTill(CharPredicate Validate) {
  const auto belongs = [validate = OrWhiteSpace(Validate)](char16_t c) { return !validate(c); };
  PassOver(belongs, true);
}
void TDIUnicodeReader::SkipCharsTill(CharPredicate Validate) {
  const auto belongs = [validate = OrWhiteSpace(Validate)](char16_t c) { return !validate(c); };
  PassOver(belongs, false);
}

void TDIUnicodeReader::ReadDigits() { PassOver(Passing{CharIsDigitW}, true); }
void TDIUnicodeReader::SkipDigits() { PassOver(Passing{CharIsDigitW}, false); }
void TDIUnicodeReader::ReadHexDigits() { PassOver(Passing{CharIsHexDigitW}, true); }
void TDIUnicodeReader::SkipHexDigits() { PassOver(Passing{CharIsHexDigitW}, false); }
void TDIUnicodeReader::ReadWhiteSpace() { PassOver(WhiteSpace{}, true); }
void TDIUnicodeReader::SkipWhiteSpace() { PassOver(WhiteSpace{}, false); }
void TDIUnicodeReader::ReadCharsTillWhiteSpace() {
  PassOver([](char16_t c) { return !WhiteSpace{}(c); }, true);
}

void TDIUnicodeReader::PassLine(bool store) {
  if (!FCharOK) ReadChar();
  PassOver(Except(unicode::kLineBreaks), store);
  const bool pair_may_follow = FCharOK && FChar == u'\r';
  if (FCharOK) ReadChar();
  if (pair_may_follow && FCharOK && FChar == u'\n') ReadChar();
}

void TDIUnicodeReader::ReadTillEndOfLine() { PassLine(true); }
void TDIUnicodeReader::SkipTillEndOfLine() { PassLine(false); }
void TDIUnicodeReader::ReadLine() {
  ZeroDataSize();
  PassLine(true);
}
void TDIUnicodeReader::SkipLine() { PassLine(false); }

void TDIUnicodeReader::SkipEmptyLines(CharPredicate Validate) {
  const CharPredicate validate = OrWhiteSpace(Validate);
  const auto stays_on_line = [validate](char16_t c) { return !unicode::kLineBreaks(c) && validate(c); };
  for (;;) {
    PassOver(stays_on_line, true);
    if (!FCharOK || !unicode::kLineBreaks(FChar)) return;
    ZeroDataSize();
    ReadChar();
  }
}

}  // namespace ravo::DIUnicode
