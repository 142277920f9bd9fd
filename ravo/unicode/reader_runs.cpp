// The families that read and skip, over one loop. If the encoding decodes whole runs, they take matching
// characters a run at a time, with the same result as one by one.
#include <ravo/codec/kernels/run.h>
#include <ravo/codec/kernels/run_search.h>
#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/predicates.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>
#include <array>
#include <bit>

namespace ravo::DIUnicode {
namespace {

using codec::EndBytes;
using codec::LineStarts;
using codec::Not;
using codec::OneOf;
using codec::Run;
using codec::RunUntil;
using unicode::OrWhiteSpace;

constexpr std::size_t kLongestRun = 1024;
// Most words and numbers fit into the first run; each full run doubles the next.
constexpr std::size_t kFirstRun = 32;

struct Passing {
  CharPredicate validate;

  bool operator()(char16_t c) const { return validate(c); }
};

struct Failing {
  CharPredicate validate;

  bool operator()(char16_t c) const { return !validate(c); }
};

struct PassingBut {
  CharPredicate validate;
  char16_t end;

  bool operator()(char16_t c) const { return validate(c) && c != end; }
};

struct WhiteSpace {
  bool operator()(char16_t c) const { return codec::PlainWhite{}(c) || (c > 0x7F && CharIsWhiteSpaceW(c)); }
};

struct NoWhiteSpace {
  bool operator()(char16_t c) const { return !WhiteSpace{}(c); }
};

template <class Belongs>
constexpr bool kIsUntil = false;
template <std::size_t count>
constexpr bool kIsUntil<Not<OneOf<count>>> = true;

template <class Unit, class Belongs>
std::size_t LengthIn(std::span<const Unit> run, const Belongs& belongs) {
  // Untested: discarded in the other instances.
  if constexpr (kIsUntil<Belongs>)
    return codec::LengthBefore(run, belongs.What());
  else
    return static_cast<std::size_t>(std::ranges::find_if_not(run, belongs) - run.begin());
}

// Returns the number of leading bytes that are matching ASCII.
template <class Belongs>
std::size_t AsciiLengthIn(std::span<const std::uint8_t> bytes, const Belongs& belongs) {
  std::size_t length = 0;
  if constexpr (std::same_as<Belongs, WhiteSpace>) {
    length = codec::LengthBefore(bytes, Not(codec::PlainWhite{}));
  } else {
    while (length < bytes.size() && bytes[length] < 0x80 && belongs(bytes[length])) ++length;
  }
  return length;
}

}  // namespace

template <class Unit>
void TDIUnicodeReader::AddRun(std::span<Unit> run) {
  std::ranges::copy(run, ExtendData(run.size()).begin());
}

// Without a branch: line breaks are hard to predict.
inline void TDIUnicodeReader::CountLines(std::uint32_t size, const LineStarts& starts) noexcept {
  const std::uint32_t on_line = starts.count == 0 ? 1 : 0;
  FCharPos += size;
  FCharLine += static_cast<std::uint32_t>(starts.count);
  FCharCol = (FCharCol & (0 - on_line)) + size - static_cast<std::uint32_t>(starts.last);
}

// Advances position, line and column past the run; its last unit becomes the current character.
template <class Unit>
void TDIUnicodeReader::CountRun(std::span<const Unit> run, const LineStarts& starts) noexcept {
  if (run.empty()) return;
  const char16_t before = run.size() > 1 ? static_cast<char16_t>(run[run.size() - 2]) : FChar;
  FChar = run.back();
  CountLines(static_cast<std::uint32_t>(run.size()), starts);
  // The line feed of a pair has the column of the carriage return.
  if (FChar == u'\n' && before == u'\r') --FCharCol;
}

// Takes matching ASCII directly from the bytes. Returns whether more may follow.
template <class Belongs>
bool TDIUnicodeReader::TakeAscii(const Belongs& belongs, bool store) {
  const auto unread = UnreadBytes().first(std::min(UnreadBytes().size(), kLongestRun));
  const auto run = unread.first(AsciiLengthIn(unread, belongs));
  if (store) AddRun(run);
  FSourceBufferPosition += static_cast<std::uint32_t>(run.size());
  CountRun(run, codec::FindLineStarts(FChar, run));
  return !run.empty() && run.size() == unread.size();
}

// Takes characters up to the first ending one. Returns whether that is the current one now.
[[gnu::always_inline]] inline bool TDIUnicodeReader::TakeUntil(EndBytes ends, bool store) {
  // `FDecodeUntil` does not count a line that starts with the run.
  if (FDecodeUntil == nullptr || FPeekedCount != 0 || codec::kLineBreaks(FChar)) return false;
  std::array<char16_t, kLongestRun> room;
  const auto unread = UnreadBytes();
  const auto to = store ? RoomInData() : room;
  const RunUntil run = FDecodeUntil(unread, to, ends);
  const LineStarts starts{run.LineStarts(), run.LastLineStart()};
  if (run.Taken() == unread.size() || !ends.Has(unread[run.Taken()])) {
    CountRun(std::span<const char16_t>(to.first(run.Made())), starts);
    if (store) CountAsData(run.Made());
    FSourceBufferPosition += run.Taken();
    return false;
  }
  if (store) CountAsData(run.Made());
  CountLines(run.Made(), starts);
  // Reading units that were just stored would stall on store forwarding; line breaks are equal to their
  // bytes.
  FLastChar = run.Taken() != 0 ? unread[run.Taken() - 1] : FChar;
  FChar = unread[run.Taken()];
  FSourceBufferPosition += run.Taken() + 1;
  CountLocation();
  return true;
}

// Decodes a run and takes its leading characters that match.
template <class Belongs>
std::size_t TDIUnicodeReader::TakeDecoded(std::span<char16_t> room, const Belongs& belongs, bool store) {
  const auto unread = UnreadBytes();
  Run run = FDecodeRun(unread, room);
  const std::size_t length = LengthIn(std::span<const char16_t>(room.first(run.made)), belongs);
  // Decodes again to learn the byte count of the shorter run.
  if (length < run.made) run = FDecodeRun(unread, room.first(length));
  const auto chars = std::span<const char16_t>(room.first(run.made));
  if (store) AddRun(chars);
  FSourceBufferPosition += static_cast<std::uint32_t>(run.taken);
  CountRun(chars, codec::FindLineStarts(FChar, chars));
  return run.made;
}

// Takes characters up to the first of `ends`, also across the ends of buffers.
void TDIUnicodeReader::TakeTill(EndBytes ends, bool store) {
  while (FCharOK && !ends.Has(FChar)) {
    if (store) AddChar(FChar);
    if (TakeUntil(ends, store)) return;
    ReadChar();
  }
}

template <class Belongs>
void TDIUnicodeReader::TakeRuns(const Belongs& belongs, bool store) {
  if (FDecodeUntil != nullptr && !kIsUntil<Belongs>) {
    while (TakeAscii(belongs, store)) {
    }
  } else {
    std::array<char16_t, kLongestRun> room;
    std::size_t next = kFirstRun;
    while (TakeDecoded(std::span(room).first(next), belongs, store) == next)
      next = std::min(2 * next, kLongestRun);
  }
}

// Out of line: keeps `TakeWhileNot` short.
template <class Belongs>
[[gnu::noinline]] void TDIUnicodeReader::TakeWhile(const Belongs& belongs, bool store) {
  while (FCharOK && belongs(FChar)) {
    if (store) AddChar(FChar);
    if (FDecodeRun != nullptr && FPeekedCount == 0) TakeRuns(belongs, store);
    ReadChar();
  }
}

// Characters of ASCII are found among the bytes, without decoding.
template <class... Chars>
void TDIUnicodeReader::TakeWhileNot(bool store, Chars... ends) {
  if (FDecodeUntil != nullptr && OneOf(ends...).IsAscii())
    TakeTill(EndBytes(static_cast<std::uint8_t>(ends)...), store);
  else
    TakeWhile(Not(OneOf(ends...)), store);
}

std::size_t TDIUnicodeReader::ReadRun(std::span<char16_t> room) {
  if (FDecodeRun != nullptr && FPeekedCount == 0) {
    const Run run = FDecodeRun(UnreadBytes(), room);
    FSourceBufferPosition += static_cast<std::uint32_t>(run.taken);
    if (run.made != 0) return run.made;
  }
  if (!ReadChar()) return 0;
  room.front() = FChar;
  return 1;
}

void TDIUnicodeReader::ReadChars(char16_t c) { TakeWhile(OneOf(c), true); }
void TDIUnicodeReader::SkipChars(char16_t c) { TakeWhile(OneOf(c), false); }
void TDIUnicodeReader::ReadChars(char16_t c, char16_t c2) { TakeWhile(OneOf(c, c2), true); }
void TDIUnicodeReader::SkipChars(char16_t c, char16_t c2) { TakeWhile(OneOf(c, c2), false); }

void TDIUnicodeReader::ReadChars(CharPredicate Validate) { TakeWhile(Passing{OrWhiteSpace(Validate)}, true); }
void TDIUnicodeReader::SkipChars(CharPredicate Validate) {
  TakeWhile(Passing{OrWhiteSpace(Validate)}, false);
}
void TDIUnicodeReader::ReadChars(CharPredicate Validate, char16_t c) {
  TakeWhile(PassingBut{OrWhiteSpace(Validate), c}, true);
}
void TDIUnicodeReader::SkipChars(CharPredicate Validate, char16_t c) {
  TakeWhile(PassingBut{OrWhiteSpace(Validate), c}, false);
}

void TDIUnicodeReader::ReadCharsTill(char16_t c) { TakeWhileNot(true, c); }
void TDIUnicodeReader::SkipCharsTill(char16_t c) { TakeWhileNot(false, c); }
void TDIUnicodeReader::ReadCharsTill(char16_t c, char16_t c2) { TakeWhileNot(true, c, c2); }
void TDIUnicodeReader::SkipCharsTill(char16_t c, char16_t c2) { TakeWhileNot(false, c, c2); }
void TDIUnicodeReader::ReadCharsTill(char16_t c, char16_t c2, char16_t c3) { TakeWhileNot(true, c, c2, c3); }
void TDIUnicodeReader::SkipCharsTill(char16_t c, char16_t c2, char16_t c3) { TakeWhileNot(false, c, c2, c3); }

void TDIUnicodeReader::ReadCharsTill(CharPredicate Validate) {
  TakeWhile(Failing{OrWhiteSpace(Validate)}, true);
}
void TDIUnicodeReader::SkipCharsTill(CharPredicate Validate) {
  TakeWhile(Failing{OrWhiteSpace(Validate)}, false);
}

void TDIUnicodeReader::ReadDigits() { TakeWhile(Passing{CharIsDigitW}, true); }
void TDIUnicodeReader::SkipDigits() { TakeWhile(Passing{CharIsDigitW}, false); }
void TDIUnicodeReader::ReadHexDigits() { TakeWhile(Passing{CharIsHexDigitW}, true); }
void TDIUnicodeReader::SkipHexDigits() { TakeWhile(Passing{CharIsHexDigitW}, false); }
void TDIUnicodeReader::ReadWhiteSpace() { TakeWhile(WhiteSpace{}, true); }
void TDIUnicodeReader::SkipWhiteSpace() { TakeWhile(WhiteSpace{}, false); }
void TDIUnicodeReader::ReadCharsTillWhiteSpace() { TakeWhile(NoWhiteSpace{}, true); }

// Reads the rest of the current line break, and the character after it, from the buffer, as `ReadChar` does.
// A branch can be predicted; a computed count would be a dependency chain.
inline bool TDIUnicodeReader::TakeBufferedBreak() noexcept {
  const auto unread = UnreadBytes();
  if (FDecodeUntil == nullptr || FPeekedCount != 0 || unread.size() < 2) return false;
  return FChar == u'\r' && unread[0] == '\n' ? BeginLine(unread[1], 2) : BeginLine(unread[0], 1);
}

// Makes `first`, `count` bytes ahead and after a line break, the current character if it is ASCII.
inline bool TDIUnicodeReader::BeginLine(std::uint8_t first, std::uint32_t count) noexcept {
  if (first >= 0x80) return false;
  FSourceBufferPosition += count;
  FCharPos += count;
  ++FCharLine;
  FCharCol = 1;
  FChar = first;
  return true;
}

void TDIUnicodeReader::TakeLine(bool store) {
  if (!FCharOK) ReadChar();
  TakeWhileNot(store, u'\r', u'\n');
  if (!FCharOK || TakeBufferedBreak()) return;
  const bool pair_may_follow = FChar == u'\r';
  ReadChar();
  if (pair_may_follow && FCharOK && FChar == u'\n') ReadChar();
}

void TDIUnicodeReader::ReadTillEndOfLine() { TakeLine(true); }
void TDIUnicodeReader::SkipTillEndOfLine() { TakeLine(false); }
void TDIUnicodeReader::ReadLine() {
  ZeroDataSize();
  TakeLine(true);
}
void TDIUnicodeReader::SkipLine() { TakeLine(false); }

void TDIUnicodeReader::SkipEmptyLines(CharPredicate Validate) {
  const CharPredicate validate = OrWhiteSpace(Validate);
  const auto stays_on_line = [validate](char16_t c) { return !codec::kLineBreaks(c) && validate(c); };
  for (;;) {
    TakeWhile(stays_on_line, true);
    if (!FCharOK || !codec::kLineBreaks(FChar)) return;
    ZeroDataSize();
    ReadChar();
  }
}

}  // namespace ravo::DIUnicode
