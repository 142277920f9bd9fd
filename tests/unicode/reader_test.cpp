// Single characters: location, peeking, read methods.
#include "support/error_text.h"
#include <ravo/DIUnicode.h>

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using namespace std::string_view_literals;

struct Place {
  char16_t ch;
  std::uint32_t pos;
  std::uint32_t line;
  std::uint32_t col;
  bool operator==(const Place&) const = default;
};

void PrintTo(const Place& place, std::ostream* out) {
  *out << "U+" << std::hex << static_cast<unsigned>(place.ch) << std::dec << " at " << place.pos << " ("
       << place.line << ", " << place.col << ")";
}

Place PlaceOf(const TDIUnicodeReader& reader) {
  return {reader.Char(), reader.CharPos(), reader.CharLine(), reader.CharCol()};
}

std::vector<Place> Places(TDIUnicodeReader& reader) {
  std::vector<Place> places;
  while (reader.ReadChar()) places.push_back(PlaceOf(reader));
  return places;
}

std::vector<Place> Places(std::string_view bytes) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA(bytes);
  return Places(reader);
}

TEST(TDIUnicodeReader, BeginsBeforeTheFirstLine) {
  TDIUnicodeReader reader;
  EXPECT_EQ(PlaceOf(reader), (Place{0, 0, 1, 0}));
  EXPECT_FALSE(reader.CharOK());
  EXPECT_EQ(reader.Data(), u"");
  EXPECT_EQ(reader.DataCapacity(), 0u);
  EXPECT_EQ(reader.PeekedCount(), 0u);
  EXPECT_EQ(reader.SourceBuffer(), nullptr);
  EXPECT_EQ(reader.SourceStream(), nullptr);
  EXPECT_EQ(reader.SourceStack(), nullptr);
  EXPECT_EQ(reader.State(), 0u);
  EXPECT_EQ(reader.AutoFreeSourceStreams(), TAutoFreeSourceStreams::afNone);
  EXPECT_NE(reader.ReadMethods().ReadChar, nullptr);
  EXPECT_EQ(reader.ReadMethods().Init, nullptr);
  EXPECT_EQ(reader.ReadMethods().Finalize, nullptr);
  EXPECT_FALSE(reader.ReadChar());
  EXPECT_FALSE(reader.PeekChars(1));
}

TEST(TDIUnicodeReader, BelongsToItsOwner) {
  auto* const owner = new TDIUnicodeReader;
  auto* const reader = new TDIUnicodeReader(owner);
  EXPECT_EQ(reader->Owner(), owner);
  delete owner;
}

TEST(TDIUnicodeReader, ReadsIso8859_1AtFirst) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA(bytes);
  for (char16_t expected = 0; expected < 256; ++expected) {
    ASSERT_TRUE(reader.ReadChar());
    EXPECT_EQ(reader.Char(), expected);
    EXPECT_TRUE(reader.CharOK());
  }
  EXPECT_FALSE(reader.ReadChar());
  EXPECT_FALSE(reader.CharOK());
  EXPECT_EQ(reader.Char(), 255) << "the last character stays";
}

TEST(TDIUnicodeReader, CountsLinesByAnyBreak) {
  const std::vector<Place> expected = {{u'a', 1, 1, 1},  {u'\r', 2, 1, 2}, {u'\n', 3, 1, 2}, {u'b', 4, 2, 1},
                                       {u'\r', 5, 2, 2}, {u'c', 6, 3, 1},  {u'\n', 7, 3, 2}, {u'd', 8, 4, 1}};
  EXPECT_EQ(Places("a\r\nb\rc\nd"), expected);
}

TEST(TDIUnicodeReader, CountsEmptyLines) {
  const std::vector<Place> expected = {{u'\n', 1, 1, 1}, {u'\n', 2, 2, 1}, {u'\r', 3, 3, 1}, {u'\r', 4, 4, 1},
                                       {u'\n', 5, 4, 1}, {u'\n', 6, 5, 1}, {u'x', 7, 6, 1}};
  EXPECT_EQ(Places("\n\n\r\r\n\nx"), expected);
}

TEST(TDIUnicodeReader, StaysAtTheEndWhereItIs) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("a\n");
  EXPECT_EQ(Places(reader).size(), 2u);
  for (int i = 0; i < 3; ++i) {
    EXPECT_FALSE(reader.ReadChar());
    EXPECT_EQ(PlaceOf(reader), (Place{u'\n', 2, 1, 2}));
  }
}

TEST(TDIUnicodeReader, ResetsTheLocation) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("a\nbc");
  while (reader.CharPos() < 3) reader.ReadChar();
  reader.ResetCharLocation();
  EXPECT_EQ(PlaceOf(reader), (Place{0, 0, 1, 0}));
  EXPECT_TRUE(reader.ReadChar());
  EXPECT_EQ(PlaceOf(reader), (Place{u'c', 1, 1, 1}));
}

TEST(PeekChars, MovesNoLocation) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("ab\ncd");
  EXPECT_TRUE(reader.ReadChar());
  EXPECT_TRUE(reader.PeekChars(3));
  EXPECT_EQ(reader.PeekedChars(), u"b\nc");
  EXPECT_EQ(reader.PeekedCount(), 3u);
  EXPECT_EQ(PlaceOf(reader), (Place{u'a', 1, 1, 1}));
  EXPECT_EQ(reader.SourceBufferPosition(), 4u);
  const std::vector<Place> expected = {{u'b', 2, 1, 2}, {u'\n', 3, 1, 3}, {u'c', 4, 2, 1}, {u'd', 5, 2, 2}};
  EXPECT_EQ(Places(reader), expected);
}

TEST(PeekChars, PeeksOnlyWhatIsMissing) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("abcdef");
  EXPECT_TRUE(reader.PeekChars(3));
  EXPECT_TRUE(reader.PeekChars(2));
  EXPECT_EQ(reader.PeekedChars(), u"abc");
  EXPECT_TRUE(reader.ReadChar());
  EXPECT_EQ(reader.PeekedChars(), u"bc") << "the others move down";
  EXPECT_TRUE(reader.PeekChars(4));
  EXPECT_EQ(reader.PeekedChars(), u"bcde");
  EXPECT_TRUE(reader.PeekChars(0));
  EXPECT_EQ(reader.Char(), u'a');
  EXPECT_EQ(Places(reader).size(), 5u);
}

TEST(PeekChars, KeepsWhatCameBeforeTheEnd) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("ab");
  EXPECT_FALSE(reader.PeekChars(5));
  EXPECT_EQ(reader.PeekedChars(), u"ab");
  EXPECT_EQ(Places(reader).size(), 2u);
  EXPECT_FALSE(reader.PeekChars(1));
}

TEST(PeekChars, AreClearedAndNotReadAgain) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("abcd");
  EXPECT_TRUE(reader.PeekChars(3));
  reader.ClearPeekedChars();
  EXPECT_EQ(reader.PeekedChars(), u"");
  EXPECT_TRUE(reader.ReadChar());
  EXPECT_EQ(PlaceOf(reader), (Place{u'd', 1, 1, 1}));
}

// Reading peeked characters one by one takes linear time.
TEST(PeekChars, ManyAreTakenQuickly) {
  const std::string text(1 << 20, 'x');
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA(text);
  EXPECT_TRUE(reader.PeekChars(1 << 20));
  while (reader.ReadChar()) {
  }
  EXPECT_EQ(reader.CharPos(), 1u << 20);
}

// Counts its calls in the state; each call of `Init` adds a million.
std::vector<std::string> calls;

void CountInit(TDIUnicodeReader& reader) {
  EXPECT_EQ(reader.State(), 0u);
  reader.SetState(1000);
  calls.emplace_back("Init");
}
bool CountReadChar(TDIUnicodeReader& reader, char16_t& ch) {
  ch = static_cast<char16_t>(u'A' + reader.State() % 26);
  reader.SetState(reader.State() + 1);
  return reader.State() <= 1004;
}
void CountFinalize(TDIUnicodeReader& reader) {
  calls.push_back("Finalize " + std::to_string(reader.State()));
}

constexpr TDIUnicodeReadMethods kCounting{CountInit, CountReadChar, CountFinalize};

TEST(SetReadMethods, InitialisesAndFinalises) {
  calls.clear();
  {
    TDIUnicodeReader reader;
    reader.SetReadMethods(kCounting);
    EXPECT_EQ(calls, std::vector<std::string>{"Init"});
    EXPECT_EQ(Places(reader).size(), 4u);
    reader.SetReadMethods(reader.ReadMethods());
    EXPECT_EQ(calls, (std::vector<std::string>{"Init", "Finalize 1005", "Init"}));
    reader.SetReadMethods({});
    EXPECT_EQ(reader.State(), 0u);
    EXPECT_EQ(calls.size(), 4u);
    reader.SetReadMethods(kCounting);
  }
  EXPECT_EQ(calls.back(), "Finalize 1000");
}

TEST(SetReadMethods, WithoutReadCharMeanIso8859_1) {
  calls.clear();
  TDIUnicodeReader reader;
  reader.SetReadMethods({CountInit, nullptr, nullptr});
  EXPECT_TRUE(calls.empty()) << "its Init is not called";
  reader.SetSourceBufferAsStrA("\xE8");
  EXPECT_TRUE(reader.ReadChar());
  EXPECT_EQ(reader.Char(), 0xE8);
}

TEST(Messages, HaveTheirTexts) {
  EXPECT_EQ(SDataSizeError.View(), u"DataSize out of bounds (%d)");
  EXPECT_EQ(SNoDataError.View(), u"Data is not assigned");
  EXPECT_EQ(SNoDestStreamError.View(), u"Destination stream is not assigned");
  EXPECT_EQ(SNoSourceBufferError.View(), u"SourceBuffer is not assigned");
  EXPECT_EQ(SSourceBufferPositionError.View(), u"SourceBufferPosition out of bounds (%d)");
  EXPECT_EQ(SSourceStreamModeError.View(), u"Operation not allowed in Source Stream Mode");
}

TEST(PublishedProperties, StandInTheirOrder) {
  const auto& reader = TDIUnicodeReader::kPublishedProperties;
  EXPECT_EQ(reader.size(), 19u);
  EXPECT_EQ(reader.front(), "Char");
  EXPECT_EQ(reader[6], "PeekedChars");
  EXPECT_EQ(reader.back(), "State");
  const auto& writer = TDIUnicodeWriter::kPublishedProperties;
  EXPECT_EQ(writer.size(), 8u);
  EXPECT_EQ(writer.front(), "ReplacementChar");
  EXPECT_EQ(writer.back(), "State");
}

}  // namespace
}  // namespace ravo::DIUnicode
