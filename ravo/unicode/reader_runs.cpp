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
using codec::Lines;
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

// Returns whether the run ends at a byte of ASCII, which can be found without decoding.
template <class Belongs>
bool EndsByAscii(const Belongs& belongs) {
  // Untested: discarded in the other instances.
  if constexpr (kIsUntil<Belongs>)
    return belongs.What().IsAscii();
  else
    return false;
}

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

// Advances position, line and column past the run; its last unit becomes the current character. With
// `Lines::One`, only the character before the run can be a line break followed by others.
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
  CountRun(run, Lines::MayBeMore);
  return !run.empty() && run.size() == unread.size();
}

// Takes everything before the first ending character, and that character, which becomes the current one.
// Decodes directly into the Data if it is stored there, else into `room`. `Taken::All` if the ending
// character was reached.
template <class Belongs>
inline auto TDIUnicodeReader::TakeUntil(std::span<char16_t> room, const Belongs& belongs, bool store)
    -> Taken {
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
    return run.taken != 0 && run.taken != unread.size() ? Taken::Some : Taken::Nothing;
  }
  ++FSourceBufferPosition;
  const std::uint8_t last = run.taken != 0 ? unread[run.taken - 1] : 0;
  if (run.lines == Lines::One && last != '\r' && last != '\n' && !codec::kLineBreaks(FChar)) {
    FCharPos += run.made + 1;
    FCharCol += run.made + 1;
    FChar = unread[run.taken];
  } else {
    // Reading units that were just stored would stall on store forwarding; the bytes are equal to them.
    if (run.made == run.taken)
      CountRun(unread.first(run.taken), run.lines);
    else
      CountRun(chars, run.lines);
    CountRun(unread.subspan(run.taken, 1), Lines::One);
  }
  return Taken::All;
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
  CountRun(chars, Lines::MayBeMore);
  return run.made;
}

// Returns whether the ending character is already the current one.
template <class Belongs>
bool TDIUnicodeReader::TakeRuns(const Belongs& belongs, bool store) {
  if (FDecodeRun == nullptr || FPeekedCount != 0) return false;
  std::array<char16_t, kLongestRun> room;
  if (FDecodeUntil != nullptr && EndsByAscii(belongs)) {
    if constexpr (kIsUntil<Belongs>) {
      Taken taken = Taken::Some;
      while (taken == Taken::Some) taken = TakeUntil(room, belongs, store);
      return taken == Taken::All;
    }
  } else if (FDecodeUntil != nullptr && !kIsUntil<Belongs>) {
    while (TakeAscii(belongs, store)) {
    }
  } else {
    std::size_t next = kFirstRun;
    while (TakeDecoded(std::span(room).first(next), belongs, store) == next)
      next = std::min(2 * next, kLongestRun);
  }
  return false;
}

template <class Belongs>
void TDIUnicodeReader::TakeWhile(const Belongs& belongs, bool store) {
  while (FCharOK && belongs(FChar)) {
    if (store) AddChar(FChar);
    if (TakeRuns(belongs, store)) return;
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

void TDIUnicodeReader::ReadCharsTill(char16_t c) { TakeWhile(Not(OneOf(c)), true); }
void TDIUnicodeReader::SkipCharsTill(char16_t c) { TakeWhile(Not(OneOf(c)), false); }
void TDIUnicodeReader::ReadCharsTill(char16_t c, char16_t c2) { TakeWhile(Not(OneOf(c, c2)), true); }
void TDIUnicodeReader::SkipCharsTill(char16_t c, char16_t c2) { TakeWhile(Not(OneOf(c, c2)), false); }
void TDIUnicodeReader::ReadCharsTill(char16_t c, char16_t c2, char16_t c3) {
  TakeWhile(Not(OneOf(c, c2, c3)), true);
}
void TDIUnicodeReader::SkipCharsTill(char16_t c, char16_t c2, char16_t c3) {
  TakeWhile(Not(OneOf(c, c2, c3)), false);
}

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
inline bool TDIUnicodeReader::TakeBufferedBreak() {
  const auto unread = UnreadBytes();
  if (FDecodeUntil == nullptr || FPeekedCount != 0 || unread.size() < 2) return false;
  if (FChar == u'\r' && unread[0] == '\n') [[likely]]
    BeginLine(unread[1], 2, u'\n');
  else
    BeginLine(unread[0], 1, FChar);
  return true;
}

// Makes `first`, `count` bytes ahead and after a line break that ends in `before`, the current character.
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

void TDIUnicodeReader::TakeLine(bool store) {
  if (!FCharOK) ReadChar();
  TakeWhile(Not(codec::kLineBreaks), store);
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
