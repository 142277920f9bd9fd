// The families that read and skip, each from one loop. Where the encoding decodes whole runs, what belongs is
// passed over at once, and the reader stands as if it had read the characters one by one.
#include <ravo/codec/kernels/run_search.h>
#include <ravo/codec/run.h>
#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/predicates.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>
#include <array>
#include <bit>

namespace ravo::DIUnicode {
namespace {

using codec::EndBytes;
using codec::Lines;
using codec::Not;
using codec::OneOf;
using codec::Run;
using codec::RunUntil;
using unicode::OrWhiteSpace;

constexpr std::size_t kLongestRun = 1024;
// Where characters are decoded to be looked at, most words and numbers are shorter than the first run; each
// full one is followed by a longer one.
constexpr std::size_t kFirstRun = 32;

// A test that somebody brought.
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
constexpr bool kIsTill = false;
template <std::size_t count>
constexpr bool kIsTill<Not<OneOf<count>>> = true;

// Whether the first byte that does not belong can be found among the bytes: what ends the run is ASCII.
template <class Belongs>
bool EndsByAscii(const Belongs& belongs) {
  // Untested: discarded in the other instances.
  if constexpr (kIsTill<Belongs>)
    return belongs.What().IsAscii();
  else
    return false;
}

template <class Unit, class Belongs>
std::size_t LengthIn(std::span<const Unit> run, const Belongs& belongs) {
  // Untested: discarded in the other instances.
  if constexpr (kIsTill<Belongs>)
    return codec::LengthBefore(run, belongs.What());
  else
    return static_cast<std::size_t>(std::ranges::find_if_not(run, belongs) - run.begin());
}

// How many bytes at the front are ASCII that belongs.
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

template <std::size_t count>
constexpr EndBytes EndsOf(const Not<OneOf<count>>& belongs) {
  const auto& ends = belongs.What().Chars();
  const auto byte = [&ends](std::size_t i) {
    return static_cast<std::uint8_t>(ends[std::min(i, count - 1)]);
  };
  return {byte(0), byte(1), byte(2)};
}

}  // namespace

template <class Unit>
void TDIUnicodeReader::AddRun(std::span<Unit> run) {
  std::ranges::copy(run, ExtendData(run.size()).begin());
}

// The current character becomes the last one of the run, with the location that it has then. In one line only
// the character before the run can be a break that others follow.
template <class Unit>
void TDIUnicodeReader::CountRun(std::span<const Unit> run, Lines lines) noexcept {
  if (run.empty()) return;
  const auto starts = codec::FindLineStarts(FChar, lines == Lines::MayBeMore ? run : run.first(1));
  const auto size = static_cast<std::uint32_t>(run.size());
  const char16_t before = size > 1 ? static_cast<char16_t>(run[size - 2]) : FChar;
  FChar = run.back();
  FCharPos += size;
  FCharCol += size;
  if (starts.count != 0) {
    FCharLine += static_cast<std::uint32_t>(starts.count);
    FCharCol = size - static_cast<std::uint32_t>(starts.last);
  }
  // The line feed of a pair stands in the column of the carriage return.
  if (FChar == u'\n' && before == u'\r') --FCharCol;
}

// ASCII that belongs, from its bytes. Answers whether there may be more.
template <class Belongs>
bool TDIUnicodeReader::PassAscii(const Belongs& belongs, bool store) {
  const auto unread = UnreadBytes().first(std::min(UnreadBytes().size(), kLongestRun));
  const auto run = unread.first(AsciiLengthIn(unread, belongs));
  if (store) AddRun(run);
  FSourceBufferPosition += static_cast<std::uint32_t>(run.size());
  CountRun(run, Lines::MayBeMore);
  return !run.empty() && run.size() == unread.size();
}

// Everything before a character that ends it, decoded in its place in the Data or, where there is none, in
// `room`, and that character, which becomes the current one. Nothing where something else is in between.
template <class Belongs>
inline auto TDIUnicodeReader::PassTill(std::span<char16_t> room, const Belongs& belongs, bool store)
    -> Passed {
  const bool in_place = store && FData != nullptr;
  const auto to = in_place ? RoomInData() : room;
  const EndBytes ends = EndsOf(belongs);
  const auto unread = UnreadBytes();
  const RunUntil run = FDecodeUntil(unread, to, ends);
  if (in_place)
    CountAsData(run.made);
  else if (store)
    AddRun(to.first(run.made));
  // The Data may have moved.
  const auto chars =
      std::span(in_place ? Data().substr(FDataSize - run.made) : std::u16string_view(to.data(), run.made));
  FSourceBufferPosition += static_cast<std::uint32_t>(run.taken);
  if (run.taken == unread.size() || !ends.Has(unread[run.taken])) {
    CountRun(chars, run.lines);
    return run.taken != 0 && run.taken != unread.size() ? Passed::Some : Passed::Nothing;
  }
  ++FSourceBufferPosition;
  const std::uint8_t last = run.taken != 0 ? unread[run.taken - 1] : 0;
  if (run.lines == Lines::One && last != '\r' && last != '\n' && !codec::kLineBreaks(FChar)) {
    FCharPos += run.made + 1;
    FCharCol += run.made + 1;
    FChar = unread[run.taken];
  } else {
    // Characters that were just stored are there for the processor only after a while, their bytes are there
    // now.
    if (run.made == run.taken)
      CountRun(unread.first(run.taken), run.lines);
    else
      CountRun(chars, run.lines);
    CountRun(unread.subspan(run.taken, 1), Lines::One);
  }
  return Passed::All;
}

// What belongs among decoded characters.
template <class Belongs>
std::size_t TDIUnicodeReader::PassDecoded(std::span<char16_t> room, const Belongs& belongs, bool store) {
  const auto unread = UnreadBytes();
  Run run = FDecodeRun(unread, room);
  const std::size_t length = LengthIn(std::span<const char16_t>(room.first(run.made)), belongs);
  // The shorter run tells how many bytes it has.
  if (length < run.made) run = FDecodeRun(unread, room.first(length));
  const auto chars = std::span<const char16_t>(room.first(run.made));
  if (store) AddRun(chars);
  FSourceBufferPosition += static_cast<std::uint32_t>(run.taken);
  CountRun(chars, Lines::MayBeMore);
  return run.made;
}

// Whether the character that ends it all is the current one already.
template <class Belongs>
bool TDIUnicodeReader::PassRuns(const Belongs& belongs, bool store) {
  if (FDecodeRun == nullptr || FPeekedCount != 0) return false;
  std::array<char16_t, kLongestRun> room;
  if (FDecodeUntil != nullptr && EndsByAscii(belongs)) {
    if constexpr (kIsTill<Belongs>) {
      Passed passed = Passed::Some;
      while (passed == Passed::Some) passed = PassTill(room, belongs, store);
      return passed == Passed::All;
    }
  } else if (FDecodeUntil != nullptr && !kIsTill<Belongs>) {
    while (PassAscii(belongs, store)) {
    }
  } else {
    std::size_t next = kFirstRun;
    while (PassDecoded(std::span(room).first(next), belongs, store) == next)
      next = std::min(2 * next, kLongestRun);
  }
  return false;
}

template <class Belongs>
void TDIUnicodeReader::PassOver(const Belongs& belongs, bool store) {
  while (FCharOK && belongs(FChar)) {
    if (store) AddChar(FChar);
    if (PassRuns(belongs, store)) return;
    ReadChar();
  }
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

void TDIUnicodeReader::ReadCharsTill(char16_t c) { PassOver(Not(OneOf(c)), true); }
void TDIUnicodeReader::SkipCharsTill(char16_t c) { PassOver(Not(OneOf(c)), false); }
void TDIUnicodeReader::ReadCharsTill(char16_t c, char16_t c2) { PassOver(Not(OneOf(c, c2)), true); }
void TDIUnicodeReader::SkipCharsTill(char16_t c, char16_t c2) { PassOver(Not(OneOf(c, c2)), false); }
void TDIUnicodeReader::ReadCharsTill(char16_t c, char16_t c2, char16_t c3) {
  PassOver(Not(OneOf(c, c2, c3)), true);
}
void TDIUnicodeReader::SkipCharsTill(char16_t c, char16_t c2, char16_t c3) {
  PassOver(Not(OneOf(c, c2, c3)), false);
}

void TDIUnicodeReader::ReadCharsTill(CharPredicate Validate) {
  PassOver(Failing{OrWhiteSpace(Validate)}, true);
}
void TDIUnicodeReader::SkipCharsTill(CharPredicate Validate) {
  PassOver(Failing{OrWhiteSpace(Validate)}, false);
}

void TDIUnicodeReader::ReadDigits() { PassOver(Passing{CharIsDigitW}, true); }
void TDIUnicodeReader::SkipDigits() { PassOver(Passing{CharIsDigitW}, false); }
void TDIUnicodeReader::ReadHexDigits() { PassOver(Passing{CharIsHexDigitW}, true); }
void TDIUnicodeReader::SkipHexDigits() { PassOver(Passing{CharIsHexDigitW}, false); }
void TDIUnicodeReader::ReadWhiteSpace() { PassOver(WhiteSpace{}, true); }
void TDIUnicodeReader::SkipWhiteSpace() { PassOver(WhiteSpace{}, false); }
void TDIUnicodeReader::ReadCharsTillWhiteSpace() { PassOver(NoWhiteSpace{}, true); }

// The rest of the line break that is the current character, and the character behind it, from the buffer: as
// `ReadChar`. Which of the two ways it goes can be foreseen; a number in its place would have to be waited
// for.
inline bool TDIUnicodeReader::PassBufferedBreak() {
  const auto unread = UnreadBytes();
  if (FDecodeUntil == nullptr || FPeekedCount != 0 || unread.size() < 2) return false;
  if (FChar == u'\r' && unread[0] == '\n') [[likely]]
    BeginLine(unread[1], 2, u'\n');
  else
    BeginLine(unread[0], 1, FChar);
  return true;
}

// `first` is `count` bytes away, behind a break that ends in `before`.
inline void TDIUnicodeReader::BeginLine(std::uint8_t first, std::uint32_t count, char16_t before) {
  if (first < 0x80) [[likely]] {
    FSourceBufferPosition += count;
    FCharPos += count;
    ++FCharLine;
    FCharCol = 1;
    FChar = first;
  } else {
    FSourceBufferPosition += count - 1;
    FCharPos += count - 1;
    FChar = before;
    ReadChar();
  }
}

void TDIUnicodeReader::PassLine(bool store) {
  if (!FCharOK) ReadChar();
  PassOver(Not(codec::kLineBreaks), store);
  if (!FCharOK || PassBufferedBreak()) return;
  const bool pair_may_follow = FChar == u'\r';
  ReadChar();
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
  const auto stays_on_line = [validate](char16_t c) { return !codec::kLineBreaks(c) && validate(c); };
  for (;;) {
    PassOver(stays_on_line, true);
    if (!FCharOK || !codec::kLineBreaks(FChar)) return;
    ZeroDataSize();
    ReadChar();
  }
}

}  // namespace ravo::DIUnicode
