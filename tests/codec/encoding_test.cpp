// Steps over spans: any division of a text gives the same result, and each step reports why it stopped.
#include "one_by_one.h"
#include "support/effort.h"
#include <ravo/codec/byte_order_mark.h>
#include <ravo/codec/texts.h>

#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::codec {
namespace {

using namespace std::string_literals;
using test::AsBytes;

const Encoding& RowOf(std::string_view name) {
  const Encoding* const row = FindEncoding(name);
  EXPECT_NE(row, nullptr) << name;
  return *row;
}

std::string_view KindsOfBytes(const Encoding& row) {
  if (row.engine.starts_with("Utf7")) return "aB+-/9 \xE1";
  if (row.engine == "Utf8") return "ab\xC3\xA1\xC5\x99\xE2\x82\xAC\xF0\x80\xED\xA0\xFE";
  if (row.engine == "Gb18030") return "ab\x81\x30\xB0\xA1\xFF";
  if (row.engine == "SingleByte") return "ab\x80\x81\xE1\xF8";
  return std::string_view("a\0\0\0\0\xD8\xDC\x20", 8);
}

std::string SomeBytes(std::mt19937& random, const Encoding& row) {
  const std::string_view alphabet = KindsOfBytes(row);
  std::string bytes(random() % 70, 'x');
  for (char& byte : bytes) {
    if (random() % 3 != 0) byte = alphabet[random() % alphabet.size()];
  }
  return bytes;
}

// Decodes with small blocks of bytes and of room; passes incomplete characters again with what follows.
// Continues after bytes that end the data, as a reader can.
std::u16string ReadInSteps(const Encoding& row, std::string_view bytes, std::size_t block, std::size_t room) {
  State state;
  std::u16string text;
  std::vector<char16_t> units(room);
  std::size_t end = std::min(block, bytes.size());
  for (std::size_t at = 0;;) {
    const Input input = end == bytes.size() ? Input::IsLast : Input::MoreFollows;
    const Step step = Decode(row, state, AsBytes(bytes.substr(at, end - at)), units, input);
    text.append(units.data(), step.made);
    at += step.taken;
    EXPECT_LE(at, end);
    const bool fills = step.stop != Stop::RoomUsed || step.made == room;
    const bool is_short = step.stop != Stop::CutShort || end - at <= kMostBytesAtOnce;
    const bool may_end = step.stop != Stop::EndOfData || row.name.starts_with("UTF_16");
    EXPECT_TRUE(fills && is_short && may_end) << row.name;
    if (step.stop == Stop::RoomUsed || step.stop == Stop::EndOfData) continue;
    if (input == Input::IsLast) return text;
    end = std::min(end + block, bytes.size());
  }
}

std::u16string ReadOneByOneToTheEnd(const Encoding& row, std::string_view bytes) {
  State state;
  SpanSource source(AsBytes(bytes));
  std::u16string text;
  char16_t ch = 0;
  for (;;) {
    const std::size_t before = source.Position();
    if (row.decode_one(source, state, ch))
      text += ch;
    else if (source.Position() == bytes.size() || source.Position() == before)
      return text;
  }
}

TEST(Decode, InStepsGivesWhatSingleCharactersGive) {
  std::mt19937 random(5);
  for (const Encoding& row : Encodings()) {
    if (row.decode_one == nullptr) continue;
    for (int i = 0; i < test::Rounds(400); ++i) {
      const std::string bytes = SomeBytes(random, row);
      const std::size_t block = 1 + random() % 20;
      const std::size_t room = 1 + random() % 40;
      ASSERT_EQ(ReadInSteps(row, bytes, block, room), ReadOneByOneToTheEnd(row, bytes))
          << row.name << ' ' << i << ' ' << block << ' ' << room;
    }
  }
}

struct StopRow {
  std::string_view encoding;
  std::string_view bytes;
  Input input;
  std::size_t room;
  std::size_t taken;
  std::u16string_view text;
  Stop stop;
};

const StopRow kStops[] = {
    {"UTF_8", "ab", Input::MoreFollows, 9, 2, u"ab", Stop::SourceUsed},
    {"UTF_8", "", Input::IsLast, 0, 0, u"", Stop::SourceUsed},
    {"UTF_8", "ab", Input::IsLast, 1, 1, u"a", Stop::RoomUsed},
    {"UTF_8", "a\xE2\x82", Input::MoreFollows, 9, 1, u"a", Stop::CutShort},
    {"UTF_8", "a\xE2\x82", Input::IsLast, 9, 3, u"a\uFFFD", Stop::SourceUsed},
    {"UTF_8", "a\xFE\x80z", Input::IsLast, 9, 4, u"a\uFFFD\uFFFDz", Stop::SourceUsed},
    {"UTF_16_LE", std::string_view("a\0\0\xDCz\0", 6), Input::IsLast, 9, 4, u"a", Stop::EndOfData},
    {"UTF_16_LE", std::string_view("a\0b", 3), Input::IsLast, 9, 3, u"a", Stop::SourceUsed},
    {"UTF_16_LE", std::string_view("a\0b", 3), Input::MoreFollows, 9, 2, u"a", Stop::CutShort},
    {"UTF_7", "+AV", Input::MoreFollows, 9, 0, u"", Stop::CutShort},
    {"UTF_7", "+AV", Input::IsLast, 9, 3, u"\uFFFD", Stop::SourceUsed},
    {"GB_18030", "\x81\x30", Input::MoreFollows, 9, 0, u"", Stop::CutShort},
    {"Windows_1250", "\xF8\x81", Input::IsLast, 9, 2, u"ř\uFFFD", Stop::SourceUsed},
};

TEST(Decode, SaysWhyItEnded) {
  for (const StopRow& row : kStops) {
    State state;
    std::vector<char16_t> units(row.room);
    const Step step = Decode(RowOf(row.encoding), state, AsBytes(row.bytes), units, row.input);
    EXPECT_EQ(step.stop, row.stop) << row.encoding << ' ' << row.bytes;
    EXPECT_EQ(step.taken, row.taken) << row.encoding << ' ' << row.bytes;
    EXPECT_EQ(std::u16string_view(units.data(), step.made), row.text) << row.encoding << ' ' << row.bytes;
  }
}

std::u16string SomeText(std::mt19937& random) {
  std::u16string text;
  for (std::size_t left = random() % 60; left > 0; --left) {
    const char16_t units[] = {u'a', u'+', u'č', u'-', u'!', u'€', static_cast<char16_t>(random())};
    text += units[random() % std::size(units)];
  }
  return text;
}

TEST(Encodings, KnowTheCharacterOfEveryByte) {
  for (const Encoding& row : Encodings()) {
    ASSERT_EQ(row.table != nullptr, row.engine == "SingleByte") << row.name;
    for (unsigned byte = 0; row.table != nullptr && row.decode_one != nullptr && byte < 256; ++byte)
      ASSERT_EQ(Decoded(row, std::string(1, static_cast<char>(byte))), std::u16string(1, (*row.table)[byte]))
          << row.name << byte;
  }
}

TEST(Encodings, KnowWhetherEveryByteIsACharacter) {
  std::size_t whole = 0;
  for (const Encoding& row : Encodings()) {
    bool has_every_byte = row.engine == "SingleByte";
    for (unsigned byte = 0; has_every_byte && byte < 256; ++byte)
      has_every_byte = !IsSpecial(Decoded(row, std::string(1, static_cast<char>(byte)))[0]);
    EXPECT_EQ(row.has_every_byte, has_every_byte) << row.name;
    whole += has_every_byte ? 1 : 0;
  }
  EXPECT_TRUE(RowOf("Iso_8859_2").has_every_byte);
  EXPECT_TRUE(RowOf("CP_852").has_every_byte);
  EXPECT_FALSE(RowOf("Windows_1250").has_every_byte);
  EXPECT_LT(whole, Encodings().size());
}

TEST(Encode, InStepsGivesWhatSingleCharactersGive) {
  std::mt19937 random(6);
  for (const Encoding& row : Encodings()) {
    if (row.encode_one == nullptr) continue;
    for (int i = 0; i < test::Rounds(400); ++i) {
      std::u16string text = SomeText(random);
      std::erase_if(text, [&](char16_t ch) { return !test::WriteOneByOne(row, {&ch, 1}); });
      const std::size_t block = 1 + random() % 20;
      std::vector<std::uint8_t> room(kMostBytesAtOnce + random() % 20);
      State state;
      std::string bytes;
      for (std::u16string_view rest = text; !rest.empty();) {
        const Step step = Encode(row, state, rest.substr(0, block), room);
        ASSERT_NE(step.stop, Stop::NotEncodable) << row.name;
        ASSERT_GT(step.taken, 0U) << row.name;
        bytes += test::TextOf(std::span(room).first(step.made));
        rest.remove_prefix(step.taken);
      }
      bytes +=
          test::TextOf(std::span(room).first(Flush(row, state, std::span(room).first<kMostBytesAtOnce>())));
      ASSERT_EQ(bytes, test::WriteOneByOne(row, text)) << row.name << ' ' << i;
    }
  }
}

TEST(Encode, StopsBeforeWhatTheEncodingLacks) {
  State state;
  std::vector<std::uint8_t> room(20);
  const Step step = Encode(RowOf("Windows_1250"), state, std::u16string_view(u"ř\u4E00z"), room);
  EXPECT_EQ(step.stop, Stop::NotEncodable);
  EXPECT_EQ(step.taken, 1U);
  EXPECT_EQ(step.made, 1U);
}

TEST(Encode, TakesNothingThatDoesNotFit) {
  State state;
  std::vector<std::uint8_t> room(2);
  const Step step = Encode(RowOf("UTF_8"), state, std::u16string_view(u"a€"), room);
  EXPECT_EQ(step.stop, Stop::RoomUsed);
  EXPECT_EQ(step.taken, 1U);
  EXPECT_EQ(step.made, 1U);
  // UTF-7 has pending bits: output that does not fit leaves the state unchanged.
  std::vector<std::uint8_t> small(3);
  State seven;
  EXPECT_EQ(Encode(RowOf("UTF_7"), seven, std::u16string_view(u"řx"), small).taken, 1U);
  EXPECT_TRUE(seven.in_base64);
  EXPECT_EQ(Encode(RowOf("UTF_7"), seven, std::u16string_view(u"x"), std::span(small).first(2)).stop,
            Stop::RoomUsed);
  EXPECT_TRUE(seven.in_base64);
}

TEST(Texts, OfAnEncodingWithWhatItLacks) {
  EXPECT_EQ(Encoded(RowOf("Windows_1250"), u"a\u4E00ř"), "a?\xF8");
  EXPECT_EQ(Encoded(RowOf("UTF_7"), u"řa"), "+AVk-a");
  EXPECT_EQ(Encoded(RowOf("UTF_7"), u"ř"), "+AVk-");
  EXPECT_EQ(Encoded(RowOf("UTF_16_BE"), u"\xD800"), "\0?"s);
  EXPECT_EQ(Decoded(RowOf("UTF_7"), "+AVk-a+"), u"řa\uFFFD");
  EXPECT_EQ(Decoded(RowOf("UTF_16_LE"), "a\0\0\xDCz\0"s), u"a");
  EXPECT_EQ(Encoded(RowOf("CP_437"), std::u16string(10000, u'é')), std::string(10000, '\x82'));
}

TEST(FindByteOrderMark, KnowsFive) {
  const auto found = [](std::string_view bytes) { return FindByteOrderMark(AsBytes(bytes)); };
  EXPECT_EQ(found("\xEF\xBB\xBFz").encoding, "UTF_8");
  EXPECT_EQ(found("\xEF\xBB\xBFz").length, 3U);
  EXPECT_EQ(found("\xFE\xFFz").order, ByteOrder::Utf16BigEndian);
  EXPECT_EQ(found("\xFF\xFEz\0"s).order, ByteOrder::Utf16LittleEndian);
  EXPECT_EQ(found("\xFF\xFE\0\0"s).order, ByteOrder::Utf32LittleEndian);
  EXPECT_EQ(found("\0\0\xFE\xFF"s).encoding, "UTF_32_BE");
  for (const std::string& none : {""s, "\xEF\xBB"s, "\xFE"s, "ab"s, "\0\0\xFE"s})
    EXPECT_EQ(found(none).length, 0U) << none;
}

}  // namespace
}  // namespace ravo::codec
