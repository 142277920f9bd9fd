// The families that read and skip, each from one loop. Where the encoding decodes whole runs, what belongs is
// passed over at once, and the reader stands as if it had read the characters one by one.
#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/encodings/runs.h>
#include <ravo/unicode/predicates.h>
#include <ravo/unicode/run_search.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>
#include <array>
#include <bit>

namespace ravo::DIUnicode {
namespace {

using unicode::Not;
using unicode::OneOf;
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
  bool operator()(char16_t c) const { return unicode::PlainWhite{}(c) || (c > 0x7F && CharIsWhiteSpaceW(c)); }
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
  if constexpr (kIsTill<Belongs>)
    return belongs.What().IsAscii();
  else
    return false;
}

template <class Unit, class Belongs>
std::size_t LengthIn(std::span<const Unit> run, const Belongs& belongs) {
  if constexpr (kIsTill<Belongs>)
    return unicode::LengthBefore(run, belongs.What());
  else
    return static_cast<std::size_t>(std::ranges::find_if_not(run, belongs) - run.begin());
}

// How many bytes at the front are ASCII that belongs.
template <class Belongs>
std::size_t AsciiLengthIn(std::span<const std::uint8_t> bytes, const Belongs& belongs) {
  std::size_t length = 0;
  if constexpr (std::same_as<Belongs, WhiteSpace>) {
    length = unicode::LengthBefore(bytes, Not(unicode::PlainWhite{}));
  } else {
    while (length < bytes.size() && bytes[length] < 0x80 && belongs(bytes[length])) ++length;
  }
  return length;
}

// A guess by the first characters.
bool LooksPlain(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= unicode::kSearchBlock &&
         unicode::UnitBlock<std::uint8_t>(bytes.data()).NoAscii() == 0;
}

std::size_t WholeBlocksOf(std::size_t length) {
  return (length + unicode::kSearchBlock - 1) / unicode::kSearchBlock * unicode::kSearchBlock;
}

// How much ASCII stands before the first byte that ends it, widened on the way. Whole blocks are written.
template <class Kind>
std::size_t WidenAsciiBefore(std::span<const std::uint8_t> bytes, std::span<char16_t> to, const Kind& ends) {
  const std::size_t most = std::min(bytes.size(), to.size());
  std::size_t at = 0;
  for (; most - at >= unicode::kSearchBlock; at += unicode::kSearchBlock) {
    const unicode::UnitBlock<std::uint8_t> block(bytes.data() + at);
    block.Widen(to.data() + at);
    if (const unsigned hits = ends.HitsIn(block) | block.NoAscii(); hits != 0)
      return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  for (; at < most && bytes[at] < 0x80 && !ends(bytes[at]); ++at) to[at] = bytes[at];
  return at;
}

}  // namespace

template <class Unit>
void TDIUnicodeReader::AddRun(std::span<Unit> run) {
  std::ranges::copy(run, ExtendData(run.size()).begin());
}

// The current character becomes the last one of the run, with the location that it has then.
template <class Unit>
void TDIUnicodeReader::CountRun(std::span<const Unit> run) noexcept {
  while (!run.empty()) {
    std::size_t count = 1;
    if (unicode::kLineBreaks(FChar)) {
      FLastChar = FChar;
      FChar = run.front();
      CountLocation();
    } else {
      // A line break itself still counts for its line.
      count = std::min(unicode::LengthBefore(run, unicode::kLineBreaks) + 1, run.size());
      FLastChar = count > 1 ? run[count - 2] : FChar;
      FChar = run[count - 1];
      FCharPos += static_cast<std::uint32_t>(count);
      FCharCol += static_cast<std::uint32_t>(count);
    }
    run = run.subspan(count);
  }
}

// The same where no character of the run ends a line.
void TDIUnicodeReader::CountWithinLine(std::span<const char16_t> run) noexcept {
  if (run.empty()) return;
  FLastChar = FChar;
  FChar = run.front();
  CountLocation();
  FCharPos += static_cast<std::uint32_t>(run.size() - 1);
  FCharCol += static_cast<std::uint32_t>(run.size() - 1);
  if (run.size() > 1) FLastChar = run[run.size() - 2];
  FChar = run.back();
}

// ASCII that belongs, from its bytes. Answers whether there may be more.
template <class Belongs>
bool TDIUnicodeReader::PassAscii(const Belongs& belongs, bool store) {
  const auto unread = UnreadBytes().first(std::min(UnreadBytes().size(), kLongestRun));
  const auto run = unread.first(AsciiLengthIn(unread, belongs));
  if (store) AddRun(run);
  FSourceBufferPosition += static_cast<std::uint32_t>(run.size());
  CountRun(run);
  return !run.empty() && run.size() == unread.size();
}

// The characters of a run, already in place or to be added, are passed over.
template <class Belongs>
void TDIUnicodeReader::Take(const Run& run, std::span<const char16_t> to, const Belongs& belongs,
                            bool store) {
  const auto chars = to.first(run.made);
  if (store && to.data() == FData.get() + FDataSize)
    FDataSize += static_cast<std::uint32_t>(run.made);
  else if (store)
    AddRun(chars);
  FSourceBufferPosition += static_cast<std::uint32_t>(run.taken);
  if (belongs.What()(u'\r') && belongs.What()(u'\n'))
    CountWithinLine(chars);
  else
    CountRun(chars);
}

// Where a run goes: to its place in the Data, or where there is not the room for it, elsewhere.
std::span<char16_t> TDIUnicodeReader::PlaceFor(std::size_t count, std::span<char16_t> elsewhere, bool store) {
  const std::size_t room = FDataCapacity - FDataSize;
  return store && room >= count ? std::span(FData.get() + FDataSize, room) : elsewhere;
}

// ASCII before a byte that ends it, widened without the decoder. Answers whether there may be more.
template <class Belongs>
bool TDIUnicodeReader::PassAsciiTill(std::span<char16_t> room, const Belongs& belongs, bool store) {
  const auto to = PlaceFor(2 * unicode::kSearchBlock, room, store);
  const std::size_t ascii = WidenAsciiBefore(UnreadBytes(), to, belongs.What());
  Take({ascii, ascii}, to, belongs, store);
  if (UnreadBytes().empty()) return false;
  FIsPlain = UnreadBytes().front() < 0x80;
  return !belongs.What()(UnreadBytes().front());
}

// Everything before a byte that ends it, decoded at once. Bytes behind that one are decoded too where that
// makes whole blocks; they do not count: among the last characters, the first one that ends it is the end.
// Answers whether there may be more.
template <class Belongs>
bool TDIUnicodeReader::PassMixedTill(std::span<char16_t> room, const Belongs& belongs, bool store) {
  const auto& ends = belongs.What();
  const auto unread = UnreadBytes().first(std::min(UnreadBytes().size(), room.size()));
  const std::size_t length = unicode::LengthBefore(unread, ends);
  const auto bytes = unread.first(std::min(WholeBlocksOf(length), unread.size()));
  const auto to = PlaceFor(bytes.size(), room, store);
  Run run = FDecodeRun(bytes, to);
  if (run.taken > length && run.taken == run.made) {
    run = {length, length};
  } else if (run.taken > length) {
    const auto end =
        std::span<const char16_t>(to.first(run.made)).last(std::min(run.made, unicode::kSearchBlock));
    run = {length, run.made - end.size() + unicode::LengthBefore(end, ends)};
  }
  FIsPlain = LooksPlain(bytes);
  Take(run, to, belongs, store);
  return run.taken != 0 && run.taken == unread.size();
}

// What belongs among decoded characters.
template <class Belongs>
std::size_t TDIUnicodeReader::PassDecoded(std::span<char16_t> room, const Belongs& belongs, bool store) {
  const auto unread = UnreadBytes();
  Run run = FDecodeRun(unread, room);
  const std::size_t length = LengthIn(std::span<const char16_t>(room.first(run.made)), belongs);
  // The shorter run tells how many bytes it has.
  if (length < run.made) run = FDecodeRun(unread, room.first(length));
  return Pass(run, room, store);
}

std::size_t TDIUnicodeReader::Pass(const Run& run, std::span<const char16_t> room, bool store) {
  const auto chars = room.first(run.made);
  if (store) AddRun(chars);
  FSourceBufferPosition += static_cast<std::uint32_t>(run.taken);
  CountRun(chars);
  return run.made;
}

template <class Belongs>
void TDIUnicodeReader::PassRuns(const Belongs& belongs, bool store) {
  if (FDecodeRun == nullptr || FPeekedCount != 0) return;
  std::array<char16_t, kLongestRun> room;
  if (FKeepsAscii && EndsByAscii(belongs)) {
    if constexpr (kIsTill<Belongs>) {
      while (FIsPlain ? PassAsciiTill(room, belongs, store) : PassMixedTill(room, belongs, store)) {
      }
    }
  } else if (FKeepsAscii && !kIsTill<Belongs>) {
    while (PassAscii(belongs, store)) {
    }
  } else {
    std::size_t next = kFirstRun;
    while (PassDecoded(std::span(room).first(next), belongs, store) == next)
      next = std::min(2 * next, kLongestRun);
  }
}

template <class Belongs>
void TDIUnicodeReader::PassOver(const Belongs& belongs, bool store) {
  while (FCharOK && belongs(FChar)) {
    if (store) AddChar(FChar);
    PassRuns(belongs, store);
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

void TDIUnicodeReader::PassLine(bool store) {
  if (!FCharOK) ReadChar();
  PassOver(Not(unicode::kLineBreaks), store);
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
