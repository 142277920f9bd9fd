// The sources of a reader: buffers, streams, files, and stacked sources.
#include "support/counted_stream.h"
#include "support/error_text.h"
#include "support/fake_stream.h"
#include "support/guarded_buffer.h"
#include "support/named_pipe.h"
#include "support/scratch_folder.h"
#include <ravo/DIUnicode.h>

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::CountedStream;
using test::ErrorText;
using test::StingyStream;
using namespace std::string_view_literals;
using Mode = TAutoFreeSourceStreams;

MemoryStream StreamOf(std::string_view bytes) { return MemoryStream(std::as_bytes(std::span(bytes))); }

// Decodes two bytes per character, high byte first.
bool ReadPair(TDIUnicodeReader& reader, char16_t& ch) {
  std::uint8_t high = 0;
  std::uint8_t low = 0;
  if (!reader.NextByte(high) || !reader.NextByte(low)) return false;
  ch = static_cast<char16_t>(high << 8 | low);
  return true;
}
constexpr TDIUnicodeReadMethods kReadPairs{nullptr, ReadPair, nullptr};

std::u16string Rest(TDIUnicodeReader& reader) {
  std::u16string text;
  while (reader.ReadChar()) text.push_back(reader.Char());
  return text;
}

std::string Location(const TDIUnicodeReader& reader) {
  return std::to_string(reader.CharPos()) + " " + std::to_string(reader.CharLine()) + ":" +
         std::to_string(reader.CharCol());
}

TEST(SetSourceBuffer, ReadsTheCallersBytes) {
  constexpr std::string_view bytes = "abc";
  TDIUnicodeReader reader;
  reader.SetSourceBuffer(bytes.data(), 3, u"name");
  EXPECT_EQ(static_cast<const void*>(reader.SourceBuffer()), bytes.data());
  EXPECT_EQ(reader.SourceBufferSize(), 3u);
  EXPECT_EQ(reader.SourceBufferPosition(), 0u);
  EXPECT_EQ(reader.SourceFile(), u"name");
  EXPECT_EQ(reader.SourceBufferAsStrA(), "abc");
  EXPECT_EQ(reader.SourceBufferAsStrW().size(), 1u);
  EXPECT_TRUE(reader.ReadChar());
  EXPECT_EQ(reader.SourceBufferPosition(), 1u);
  EXPECT_TRUE(reader.PeekChars(1));
  reader.SetSourceBufferAsStrA("x\ny");
  EXPECT_FALSE(reader.CharOK());
  EXPECT_EQ(reader.PeekedCount(), 0u);
  EXPECT_EQ(reader.SourceFile(), u"");
  EXPECT_EQ(Rest(reader), u"x\ny");
  EXPECT_EQ(Location(reader), "3 2:1");
  reader.SetSourceBuffer(nullptr, 5);
  EXPECT_EQ(reader.SourceBufferSize(), 0u);
  EXPECT_FALSE(reader.ReadChar());
}

TEST(SetSourceBuffer, UsesTheMemoryOfATextItself) {
  const std::u16string text = u"a\x10D";
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrW(text, u"n");
  EXPECT_EQ(static_cast<const void*>(reader.SourceBuffer()), text.data());
  EXPECT_EQ(reader.SourceBufferSize(), 4u);
  EXPECT_EQ(reader.SourceBufferAsStr(), text);
  EXPECT_EQ(reader.SourceFile(), u"n");
  EXPECT_EQ(Rest(reader), u"a\0\r\1"sv);
  reader.SetSourceBufferAsStr(text, u"m");
  EXPECT_EQ(static_cast<const void*>(reader.SourceBuffer()), text.data());
  EXPECT_EQ(reader.SourceFile(), u"m");
}

TEST(SetSourceBuffer, RefusesWhileAStreamIsSet) {
  MemoryStream stream = StreamOf("abc");
  TDIUnicodeReader reader;
  reader.SetSourceStream(&stream);
  const auto expected = u"Class TDIUnicodeReader: Operation not allowed in Source Stream Mode";
  EXPECT_EQ(ErrorText([&] { reader.SetSourceBufferAsStrA("x"); }), expected);
  EXPECT_EQ(ErrorText([&] { reader.SetSourceBuffer(nullptr, 0); }), expected);
  EXPECT_EQ(ErrorText([&] { reader.SetSourceBufferSize(0); }), expected);
  EXPECT_EQ(Rest(reader), u"abc");
  reader.SetSourceStream(nullptr);
  reader.SetSourceBufferAsStrA("x");
  EXPECT_EQ(Rest(reader), u"x");
}

TEST(SetSourceBufferPosition, GoesWhereItIsTold) {
  TDIUnicodeReader reader;
  const auto none = u"Class TDIUnicodeReader: SourceBuffer is not assigned";
  EXPECT_EQ(ErrorText([&] { reader.SetSourceBufferPosition(0); }), none);
  EXPECT_EQ(ErrorText([&] { reader.IncSourceBufferPosition(); }), none);
  EXPECT_EQ(ErrorText([&] { reader.SetSourceBufferSize(0); }), none);
  reader.SetSourceBufferAsStrA("a\nbcd");
  for (int i = 0; i < 3; ++i) reader.ReadChar();
  EXPECT_TRUE(reader.PeekChars(1));
  reader.SetSourceBufferPosition(4);
  EXPECT_FALSE(reader.CharOK());
  EXPECT_EQ(reader.PeekedCount(), 0u);
  EXPECT_EQ(Location(reader), "3 2:1") << "the location is kept";
  EXPECT_EQ(Rest(reader), u"d");
  reader.SetSourceBufferPosition(5);
  EXPECT_EQ(ErrorText([&] { reader.SetSourceBufferPosition(6); }),
            u"Class TDIUnicodeReader: SourceBufferPosition out of bounds (6)");
  EXPECT_EQ(ErrorText([&] { reader.IncSourceBufferPosition(); }),
            u"Class TDIUnicodeReader: SourceBufferPosition out of bounds (6)");
  EXPECT_EQ(reader.SourceBufferPosition(), 5u);
}

TEST(IncSourceBufferPosition, StepsOverAByte) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("abc");
  reader.ReadChar();
  EXPECT_TRUE(reader.PeekChars(1));
  reader.IncSourceBufferPosition();
  EXPECT_EQ(reader.SourceBufferPosition(), 3u);
  EXPECT_EQ(reader.PeekedChars(), u"b");
  EXPECT_TRUE(reader.CharOK());
  EXPECT_EQ(Rest(reader), u"b");
}

TEST(SetSourceBufferSize, KeepsThePositionInside) {
  TDIUnicodeReader reader;
  reader.SetSourceBuffer("abcdef", 6);
  for (int i = 0; i < 4; ++i) reader.ReadChar();
  reader.SetSourceBufferSize(5);
  EXPECT_FALSE(reader.CharOK());
  EXPECT_EQ(Rest(reader), u"e");
  reader.SetSourceBufferSize(2);
  EXPECT_EQ(reader.SourceBufferPosition(), 2u);
  EXPECT_EQ(Rest(reader), u"");
}

TEST(SetSourceStream, ReadsBlocksOf4096Bytes) {
  std::string bytes(10000, 'x');
  MemoryStream stream = StreamOf(bytes);
  TDIUnicodeReader reader;
  reader.SetSourceStream(&stream, u"stream");
  EXPECT_EQ(reader.SourceStream(), &stream);
  EXPECT_EQ(reader.SourceFile(), u"stream");
  EXPECT_NE(reader.SourceBuffer(), nullptr);
  EXPECT_EQ(reader.SourceBufferSize(), 0u);
  EXPECT_EQ(stream.Position(), 0) << "nothing is read before it is asked for";
  std::vector<std::int64_t> positions;
  while (reader.ReadChar()) {
    if (positions.empty() || positions.back() != stream.Position()) positions.push_back(stream.Position());
  }
  EXPECT_EQ(positions, (std::vector<std::int64_t>{4096, 8192, 10000}));
  EXPECT_EQ(reader.CharPos(), 10000u);
}

TEST(SetSourceStream, TakesStreamsThatGiveLessThanAsked) {
  std::string bytes;
  for (int i = 0; i < 9000; ++i) bytes.push_back(static_cast<char>('a' + i % 23));
  for (const std::size_t most : {1U, 2U, 3U, 4095U, 4096U, 4097U}) {
    MemoryStream inner = StreamOf(bytes);
    StingyStream stream(inner, most);
    TDIUnicodeReader reader;
    reader.SetSourceStream(&stream);
    EXPECT_EQ(Rest(reader), std::u16string(bytes.begin(), bytes.end())) << most;
  }
}

TEST(SetSourceStream, ANewStreamContinuesTheLocation) {
  MemoryStream first = StreamOf("ab\nc");
  MemoryStream second = StreamOf("d\ne");
  TDIUnicodeReader reader;
  reader.SetSourceStream(&first);
  Rest(reader);
  EXPECT_EQ(Location(reader), "4 2:1");
  EXPECT_TRUE(reader.CharOK() == false && reader.Char() == u'c');
  reader.SetSourceStream(&second);
  reader.ReadChar();
  EXPECT_EQ(Location(reader), "5 2:2");
  reader.SetSourceStream(nullptr);
  EXPECT_EQ(reader.SourceBuffer(), nullptr);
  EXPECT_EQ(Location(reader), "5 2:2");
  EXPECT_FALSE(reader.ReadChar());
}

TEST(SetSourceStream, OnAStackBeginsAnew) {
  MemoryStream stream = StreamOf("d");
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("abc");
  reader.ReadChar();
  reader.PushSource(true);
  reader.SetSourceStream(&stream);
  reader.ReadChar();
  EXPECT_EQ(Location(reader), "1 1:1");
  reader.SetSourceStream(&stream);
  EXPECT_EQ(Location(reader), "0 1:0");
}

TEST(SetSourceFile, OpensTheFile) {
  const test::ScratchFolder folder;
  folder.Write("a.txt", "first");
  TDIUnicodeReader reader;
  reader.SetSourceFile(folder.File(u"a.txt"));
  EXPECT_EQ(reader.SourceFile(), folder.File(u"a.txt"));
  EXPECT_EQ(Rest(reader), u"first");
  EXPECT_NE(reader.SourceStream(), nullptr);
  EXPECT_THROW(reader.SetSourceFile(folder.File(u"missing.txt")), StreamError);
  EXPECT_EQ(reader.SourceFile(), folder.File(u"a.txt")) << "all is as before";
  reader.RewindSource();
  EXPECT_EQ(Rest(reader), u"first");
  reader.FreeSourceStream();
  EXPECT_EQ(reader.SourceStream(), nullptr);
  EXPECT_EQ(reader.SourceBuffer(), nullptr);
  EXPECT_FALSE(reader.ReadChar());
  reader.FreeSourceStream();
}

TEST(SetSourceFile, ReadsAPipe) {
  const std::string text(10'000, 'x');
  const test::NamedPipe pipe(text);
  TDIUnicodeReader reader;
  reader.SetSourceFile(pipe.Name());
  EXPECT_EQ(Rest(reader).size(), text.size());
  reader.RewindSource();
  EXPECT_EQ(Rest(reader).size(), text.size());
  reader.FreeSourceStream();
}

// Reading address 0 of a process's memory fails.
TEST(SetSourceFile, AFailedReadIsNoEnd) {
  constexpr std::u16string_view unreadable = u"/proc/self/mem";
  if (!std::filesystem::exists(unreadable))
    GTEST_SKIP() << "this system has no file that fails when it is read";
  TDIUnicodeReader reader;
  reader.SetSourceFile(unreadable);
  EXPECT_THROW(reader.ReadChar(), StreamError);
  reader.FreeSourceStream();
}

TEST(RewindSource, GoesToTheFirstByte) {
  MemoryStream stream = StreamOf("skipped\nab");
  stream.SetPosition(8);
  TDIUnicodeReader reader;
  reader.SetSourceStream(&stream);
  EXPECT_EQ(Rest(reader), u"ab");
  reader.RewindSource();
  EXPECT_EQ(Location(reader), "0 1:0");
  EXPECT_EQ(Rest(reader), u"skipped\nab");
  TDIUnicodeReader buffer;
  buffer.SetSourceBufferAsStrA("a\nb");
  buffer.ReadChar();
  EXPECT_TRUE(buffer.PeekChars(2));
  buffer.RewindSource();
  EXPECT_FALSE(buffer.CharOK());
  EXPECT_EQ(Rest(buffer), u"a\nb");
  EXPECT_EQ(Location(buffer), "3 2:1");
}

TEST(SourceStreamModified, GoesOverTheBufferedBytesAgain) {
  MemoryStream stream = StreamOf("ab\ncd");
  TDIUnicodeReader reader;
  reader.SetSourceStream(&stream);
  for (int i = 0; i < 4; ++i) reader.ReadChar();
  EXPECT_TRUE(reader.PeekChars(1));
  reader.SourceStreamModified();
  EXPECT_FALSE(reader.CharOK());
  EXPECT_EQ(reader.PeekedCount(), 0u);
  EXPECT_EQ(Location(reader), "0 1:0");
  EXPECT_EQ(Rest(reader), u"ab\ncd");
}

TEST(PushSource, ReadsAnotherSourceInTheMiddle) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("ab\ncd", u"outer");
  for (int i = 0; i < 4; ++i) reader.ReadChar();
  reader.PushSource(true);
  EXPECT_EQ(reader.SourceBuffer(), nullptr);
  EXPECT_EQ(reader.SourceFile(), u"");
  EXPECT_EQ(Location(reader), "0 1:0");
  EXPECT_EQ(reader.SourceStack()->CharPos, 4u);
  EXPECT_EQ(reader.SourceStack()->CharLine, 2u);
  EXPECT_EQ(reader.SourceStack()->CharCol, 1u);
  EXPECT_EQ(reader.SourceStack()->SourceFile, u"outer");
  EXPECT_EQ(reader.SourceStack()->UserData, 0);
  reader.SetSourceBufferAsStrA("x\ny", u"inner");
  EXPECT_EQ(reader.FirstSourceFile(), u"outer");
  std::string places;
  while (reader.ReadChar()) places += static_cast<char>(reader.Char()) + Location(reader) + "; ";
  EXPECT_EQ(places, "x1 1:1; \n2 1:2; y3 2:1; d5 2:2; ");
  EXPECT_EQ(reader.SourceFile(), u"outer");
  EXPECT_EQ(reader.SourceStack(), nullptr);
  EXPECT_EQ(reader.FirstSourceFile(), u"outer");
}

TEST(PushSource, TheLastCharacterOfASourceCountsForTheNext) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("ab");
  reader.ReadChar();
  reader.PushSource(true);
  reader.SetSourceBufferAsStrA("x\n");
  EXPECT_EQ(Rest(reader), u"x\nb");
  EXPECT_EQ(Location(reader), "2 2:1") << "the line feed of the source above ended a line here";
}

TEST(PushSource, SavesNeitherPeekedCharactersNorState) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("abc");
  EXPECT_TRUE(reader.PeekChars(2));
  reader.SetState(7);
  reader.PushSource(true);
  EXPECT_EQ(reader.PeekedChars(), u"ab");
  EXPECT_EQ(reader.State(), 7u);
  reader.SetState(8);
  EXPECT_TRUE(reader.PopSource());
  EXPECT_EQ(reader.State(), 8u);
  EXPECT_EQ(Rest(reader), u"abc");
  reader.SetState(0);
}

TEST(PushSource, WithReadMethodsBringsThemBack) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(kReadPairs);
  reader.SetSourceBufferAsStrA("\x01\x0D\x01\x59"sv);
  reader.ReadChar();
  reader.PushSource(true);
  reader.SetReadMethods({});
  reader.SetSourceBufferAsStrA("ab");
  EXPECT_EQ(Rest(reader), u"ab\x159") << "what goes on is read with its own methods";
}

TEST(PushSource, WithoutReadMethodsKeepsThoseInForce) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(kReadPairs);
  reader.SetSourceBufferAsStrA("\x01\x0D\x01\x59"sv);
  reader.ReadChar();
  reader.PushSource(false);
  EXPECT_EQ(reader.SourceStack()->ReadMethods.ReadChar, nullptr);
  reader.SetReadMethods({});
  reader.SetSourceBufferAsStrA("ab");
  EXPECT_EQ(Rest(reader), u"ab\x01\x59");
}

TEST(PopSource, GoesBackByHand) {
  TDIUnicodeReader reader;
  EXPECT_FALSE(reader.PopSource());
  reader.SetSourceBufferAsStrA("ab", u"1");
  reader.ReadChar();
  reader.PushSource(true);
  reader.SetSourceBufferAsStrA("xyz", u"2");
  reader.ReadChar();
  reader.PushSource(true);
  reader.SetSourceBufferAsStrA("", u"3");
  EXPECT_EQ(reader.SourceStack()->Next->SourceFile, u"1");
  EXPECT_EQ(reader.FirstSourceFile(), u"1");
  EXPECT_TRUE(reader.PopSource());
  EXPECT_EQ(reader.SourceFile(), u"2");
  EXPECT_TRUE(reader.PopSource());
  EXPECT_EQ(Rest(reader), u"b");
  EXPECT_FALSE(reader.PopSource());
}

TEST(PopSource, SkipsSourcesWithoutBytes) {
  MemoryStream unread = StreamOf("stream");
  TDIUnicodeReader reader;
  reader.SetSourceStream(&unread);
  for (const std::string_view bytes : {"x"sv, ""sv, ""sv}) {
    reader.PushSource(true);
    reader.SetSourceBufferAsStrA(bytes);
  }
  EXPECT_EQ(Rest(reader), u"xstream") << "a stream of which nothing was read yet has bytes";
}

TEST(PopSource, AStreamGoesOnAfterItsBufferedBytes) {
  std::string bytes(4098, 'x');
  bytes[4097] = 'y';
  MemoryStream long_stream = StreamOf(bytes);
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("ab");
  reader.ReadChar();
  reader.PushSource(true);
  reader.SetSourceStream(&long_stream);
  while (reader.CharPos() < 4096) reader.ReadChar();
  ASSERT_EQ(reader.SourceBufferPosition(), reader.SourceBufferSize());
  reader.PushSource(true);
  reader.SetSourceBufferAsStrA("c");
  EXPECT_EQ(Rest(reader), u"cxyb");
}

TEST(ClearSourceStack, GoesToTheBottom) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("ab", u"1");
  for (int i = 0; i < 5; ++i) reader.PushSource(i % 2 == 0);
  reader.ClearSourceStack();
  EXPECT_EQ(reader.SourceFile(), u"1");
  EXPECT_EQ(Rest(reader), u"ab");
}

// The streams that a reader has deleted after its two sources ended, and after its destructor.
struct FreedRow {
  Mode mode;
  int first_at_end;
  int second_at_end;
};

TEST(AutoFreeSourceStreams, SaysWhichAreFreed) {
  constexpr FreedRow rows[] = {{Mode::afNone, 0, 0}, {Mode::afAllButFirst, 0, 1}, {Mode::afAll, 1, 1}};
  for (const FreedRow& row : rows) {
    int first_freed = 0;
    int second_freed = 0;
    auto* const first = new CountedStream("ab", first_freed);
    auto* const second = new CountedStream("xy", second_freed);
    {
      TDIUnicodeReader reader;
      reader.SetAutoFreeSourceStreams(row.mode);
      reader.SetSourceStream(first);
      reader.ReadChar();
      reader.PushSource(true);
      reader.SetSourceStream(second);
      EXPECT_EQ(Rest(reader), u"xyb");
      EXPECT_EQ(second_freed, row.second_at_end);
      EXPECT_EQ(first_freed, row.first_at_end);
      EXPECT_EQ(reader.SourceStream() == nullptr, row.first_at_end == 1);
      EXPECT_FALSE(reader.ReadChar());
    }
    EXPECT_EQ(first_freed, row.first_at_end);
    if (first_freed == 0) delete first;
    if (second_freed == 0) delete second;
  }
}

TEST(AutoFreeSourceStreams, LeavesTheFirstStreamOfAReaderThatGoes) {
  for (const Mode mode : {Mode::afNone, Mode::afAllButFirst, Mode::afAll}) {
    int first_freed = 0;
    int second_freed = 0;
    auto* const first = new CountedStream("ab", first_freed);
    auto* const second = new CountedStream("xy", second_freed);
    {
      TDIUnicodeReader reader;
      reader.SetAutoFreeSourceStreams(mode);
      reader.SetSourceStream(first);
      reader.ReadChar();
      reader.PushSource(true);
      reader.SetSourceStream(second);
      reader.ReadChar();
    }
    EXPECT_EQ(second_freed, mode == Mode::afNone ? 0 : 1);
    EXPECT_EQ(first_freed, 0);
    delete first;
    if (second_freed == 0) delete second;
  }
}

TEST(AutoFreeSourceStreams, PeekedCharactersOutliveTheirStream) {
  int freed = 0;
  TDIUnicodeReader reader;
  reader.SetAutoFreeSourceStreams(Mode::afAll);
  reader.SetSourceStream(new CountedStream("abc", freed), u"name");
  EXPECT_FALSE(reader.PeekChars(4));
  EXPECT_EQ(freed, 1);
  EXPECT_EQ(reader.SourceFile(), u"name");
  EXPECT_EQ(Rest(reader), u"abc");
}

TEST(FillSourceBuffer, MovesUnreadBytesToTheFront) {
  std::string bytes;
  for (int i = 0; i < 6000; ++i) bytes.push_back(static_cast<char>('a' + i % 26));
  MemoryStream stream = StreamOf(bytes);
  TDIUnicodeReader reader;
  reader.SetSourceStream(&stream);
  EXPECT_EQ(reader.FillSourceBuffer(false), 4096u);
  EXPECT_EQ(reader.FillSourceBuffer(true), 4096u) << "a full buffer is no end";
  EXPECT_EQ(stream.Position(), 4096);
  reader.SetSourceBufferPosition(4000);
  EXPECT_EQ(reader.FillSourceBuffer(true), 1904u);
  EXPECT_EQ(reader.SourceBufferPosition(), 0u);
  EXPECT_EQ(reader.SourceBufferSize(), 96u + 1904);
  EXPECT_EQ(reader.SourceBufferAsStrA(), bytes.substr(4000));
  reader.SetSourceBufferPosition(1990);
  EXPECT_EQ(reader.FillSourceBuffer(true), 0u);
  EXPECT_EQ(reader.SourceBufferAsStrA(), bytes.substr(5990));
}

TEST(FillSourceBuffer, GivesUnreadBytesUpUnlessTheyMove) {
  std::string bytes(5000, 'x');
  MemoryStream stream = StreamOf(bytes);
  TDIUnicodeReader reader;
  reader.SetSourceStream(&stream);
  EXPECT_EQ(reader.FillSourceBuffer(false), 4096u);
  EXPECT_EQ(reader.FillSourceBuffer(false), 904u);
  EXPECT_EQ(reader.SourceBufferSize(), 904u);
  EXPECT_EQ(reader.FillSourceBuffer(false), 0u);
}

struct BomRow {
  std::string_view bytes;
  TDIBOM bom;
  std::uint32_t length;
};

constexpr BomRow kBomRows[] = {
    {"\0\0\xFE\xFF"sv, TDIBOM::bomutf32be, 4},
    {"\xFF\xFE\0\0"sv, TDIBOM::bomutf32le, 4},
    {"\xEF\xBB\xBF"sv, TDIBOM::bomUtf8, 3},
    {"\xFE\xFF"sv, TDIBOM::bomutf16be, 2},
    {"\xFF\xFE"sv, TDIBOM::bomutf16le, 2},
    {"\xFF\xFE\0"sv, TDIBOM::bomutf16le, 2},
    {"\xFF\xFE\0\1"sv, TDIBOM::bomutf16le, 2},
    {"\xFE\xFF\0\0"sv, TDIBOM::bomutf16be, 2},
    {"\0\0\xFE\xFFxyz"sv, TDIBOM::bomutf32be, 4},
    {"\xEF\xBB"sv, TDIBOM::bomUnknown, 0},
    {"\xEF\xBB\xBE"sv, TDIBOM::bomUnknown, 0},
    {"\0\0\xFE"sv, TDIBOM::bomUnknown, 0},
    {"\0\0\xFF\xFE"sv, TDIBOM::bomUnknown, 0},
    {"\xFF"sv, TDIBOM::bomUnknown, 0},
    {""sv, TDIBOM::bomUnknown, 0},
    {"abcd"sv, TDIBOM::bomUnknown, 0},
};

TEST(ReadBOM, KnowsTheMarksOfABuffer) {
  for (const BomRow& row : kBomRows) {
    const test::GuardedBuffer guarded(std::as_bytes(std::span(row.bytes)));
    TDIUnicodeReader reader;
    reader.SetReadMethods(kReadPairs);
    reader.SetSourceBuffer(guarded.Bytes().data(), static_cast<std::uint32_t>(guarded.Bytes().size()));
    EXPECT_EQ(reader.ReadBOM(), row.bom) << row.bytes;
    EXPECT_EQ(reader.SourceBufferPosition(), row.length);
    EXPECT_EQ(reader.ReadMethods().ReadChar, ReadPair);
    EXPECT_EQ(reader.CharPos(), 0u);
  }
}

TEST(ReadBOM, KnowsTheMarksOfAnyStream) {
  for (const BomRow& row : kBomRows) {
    for (const std::size_t most : {1U, 2U, 3U, 4U, 4096U}) {
      MemoryStream inner = StreamOf(row.bytes);
      StingyStream stream(inner, most);
      TDIUnicodeReader reader;
      reader.SetSourceStream(&stream);
      EXPECT_EQ(reader.ReadBOM(), row.bom) << row.bytes << " by " << most;
      EXPECT_EQ(Rest(reader).size(), row.bytes.size() - row.length);
    }
  }
}

TEST(ReadBOM, AcrossTheEdgeOfTheBuffer) {
  for (std::uint32_t before = 4090; before <= 4100; ++before) {
    MemoryStream stream = StreamOf(std::string(before, 'x') + "\xFF\xFE" + std::string(2, '\0') + "y");
    TDIUnicodeReader reader;
    reader.SetSourceStream(&stream);
    while (reader.CharPos() < before) reader.ReadChar();
    EXPECT_EQ(reader.ReadBOM(), TDIBOM::bomutf32le) << before;
    EXPECT_EQ(Rest(reader), u"y");
  }
}

TEST(ReadBOM, LeavesNoUnreadByteOfAStackedSource) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("\xFF\xFE-outer");
  reader.PushSource(true);
  reader.SetSourceBufferAsStrA("abc");
  EXPECT_EQ(reader.ReadBOM(), TDIBOM::bomUnknown);
  EXPECT_EQ(reader.SourceBufferAsStrA(), "abc");
  reader.SetSourceBufferPosition(3);
  EXPECT_EQ(reader.ReadBOM(), TDIBOM::bomutf16le) << "of the source below, once this one has ended";
  EXPECT_EQ(Rest(reader), u"-outer");
}

// Block boundaries are invisible to decoders.
TEST(PeekByte, RefillsAndSkips) {
  std::string bytes;
  for (int i = 0; i < 4100; ++i) bytes.push_back(static_cast<char>(i % 251));
  MemoryStream stream = StreamOf(bytes);
  TDIUnicodeReader reader;
  reader.SetSourceStream(&stream);
  for (const char expected : bytes) {
    std::uint8_t byte = 0;
    ASSERT_TRUE(reader.PeekByte(byte));
    ASSERT_TRUE(reader.PeekByte(byte));
    ASSERT_EQ(static_cast<char>(byte), expected);
    reader.SkipByte();
  }
  std::uint8_t byte = 0;
  EXPECT_FALSE(reader.PeekByte(byte));
  EXPECT_FALSE(reader.NextByte(byte));
}

}  // namespace
}  // namespace ravo::DIUnicode
