// The state of UTF-7 between characters, and its pending output.
#include "encoding_texts.h"

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::Write;
using namespace std::string_view_literals;

TEST(Utf7State, IsARecordWhoseFirstByteTellsBase64) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(Read_UTF_7);
  ASSERT_NE(reader.State(), 0U);
  const auto* const record = reinterpret_cast<const std::uint8_t*>(reader.State());
  EXPECT_EQ(record[0], 0);
  const std::string_view bytes = "+AGEAYg-";
  reader.SetSourceBuffer(test::AsBytes(bytes));
  EXPECT_TRUE(reader.ReadChar());
  EXPECT_NE(record[0], 0);
  EXPECT_EQ(test::ReadAll(reader), u"b");
  EXPECT_EQ(record[0], 0);
  reader.SetReadMethods(Read_UTF_8);
  EXPECT_EQ(reader.State(), 0U);
}

TEST(Utf7State, IsMadeWhereInitWasNotCalled) {
  TDIUnicodeReader reader;
  reader.SetReadMethods({nullptr, Read_UTF_7_ReadChar, Read_UTF_7_Finalize});
  EXPECT_EQ(reader.State(), 0U);
  reader.SetSourceBuffer(test::AsBytes("+AGE-"));
  EXPECT_EQ(test::ReadAll(reader), u"a");
  TDIUnicodeWriter writer;
  writer.SetWriteMethods({nullptr, Write_UTF_7_WriteChar, Write_UTF_7_Flush, Write_UTF_7_Finalize});
  writer.FlushDataBuffer();
  EXPECT_TRUE(writer.TryWriteCharW(u'ř'));
  writer.FlushDataBuffer();
  EXPECT_EQ(test::TextOf(writer.Data()), "+AVk-");
}

// A source in UTF-7 ends on top of one in another encoding: its record is freed, even if no routine is called
// for it.
TEST(Utf7State, GoesWithItsSource) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(Read_Windows_1250);
  reader.SetSourceBuffer(test::AsBytes("\xF8z"));
  reader.PushSource(true);
  reader.SetReadMethods(Read_UTF_7);
  reader.SetSourceBuffer(test::AsBytes("+AVk-a"));
  EXPECT_NE(reader.State(), 0U);
  EXPECT_EQ(test::ReadAll(reader), u"řařz");
  EXPECT_EQ(reader.State(), 0U);
  EXPECT_EQ(reader.ReadMethods().ReadChar, Read_Windows_1250.ReadChar);
}

// Two stacked sources in UTF-7 use one record; without stored methods it stays with the reader.
TEST(Utf7State, StaysWhereUtf7GoesOn) {
  for (const bool store : {false, true}) {
    TDIUnicodeReader reader;
    reader.SetReadMethods(Read_UTF_7);
    reader.SetSourceBuffer(test::AsBytes("+AVk-b"));
    reader.PushSource(store);
    reader.SetSourceBuffer(test::AsBytes("+AVk-a"));
    const auto state = reader.State();
    EXPECT_EQ(test::ReadAll(reader), u"řařb");
    EXPECT_EQ(reader.State(), state);
  }
}

// State of other routines is not touched when their source ends.
TEST(Utf7State, OfOthersIsTheirs) {
  TDIUnicodeReader reader;
  reader.SetSourceBuffer(test::AsBytes("ab"));
  reader.PushSource(true);
  reader.SetReadMethods({nullptr, Read_Iso_8859_2_ReadChar, [](TDIUnicodeReader&) {}});
  reader.SetState(7);
  EXPECT_TRUE(reader.PopSource());
  EXPECT_EQ(reader.State(), 7U);
}

// A run "+AGEAYg-" of which a reader has read "a", and with it two bits of the next unit.
constexpr std::string_view kRun = "+AGEAYg-";

void ReadIntoARun(TDIUnicodeReader& reader) {
  reader.SetReadMethods(Read_UTF_7);
  reader.SetSourceBuffer(test::AsBytes(kRun));
  ASSERT_TRUE(reader.ReadChar());
  ASSERT_EQ(reader.Char(), u'a');
}

TEST(Utf7State, ANewSourceBeginsInsideTheRunThatWasLeft) {
  TDIUnicodeReader buffers;
  ReadIntoARun(buffers);
  buffers.SetSourceBuffer(test::AsBytes("AYg-c"));
  EXPECT_EQ(test::ReadAll(buffers), u"bc");

  MemoryStream bytes(std::as_bytes(std::span("AYg-c"sv)));
  TDIUnicodeReader streams;
  ReadIntoARun(streams);
  streams.SetSourceStream(&bytes);
  EXPECT_EQ(test::ReadAll(streams), u"bc");

  // "+" is 62 in base 64, six bits of the unit: 00 111110 000000 00, 0110 000100 000000, with twelve bits
  // left over.
  TDIUnicodeReader rewound;
  ReadIntoARun(rewound);
  rewound.RewindSource();
  EXPECT_EQ(test::ReadAll(rewound), u"\u3E00\u6100\uFFFD");

  for (const bool store : {false, true}) {
    TDIUnicodeReader stacked;
    ReadIntoARun(stacked);
    stacked.PushSource(store);
    stacked.SetSourceBuffer(test::AsBytes("AYg-c"));
    EXPECT_EQ(test::ReadAll(stacked), u"bcAYg-") << "the one below goes on outside";
  }
}

TEST(Utf7State, SetReadMethodsBeginsOutsideARun) {
  TDIUnicodeReader reader;
  ReadIntoARun(reader);
  reader.SetReadMethods(Read_UTF_7);
  reader.SetSourceBuffer(test::AsBytes("AYg-c"));
  EXPECT_EQ(test::ReadAll(reader), u"AYg-c");
  ReadIntoARun(reader);
  reader.SetReadMethods(Read_UTF_7);
  reader.RewindSource();
  EXPECT_EQ(test::ReadAll(reader), u"ab");
}

// The end of all data ends a run, so it does not affect the next source.
TEST(Utf7State, TheEndOfTheDataEndsARun) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(Read_UTF_7);
  reader.SetSourceBuffer(test::AsBytes("+AGE"));
  EXPECT_EQ(test::ReadAll(reader), u"a");
  reader.SetSourceBuffer(test::AsBytes("AYg"));
  EXPECT_EQ(test::ReadAll(reader), u"AYg");
}

// A writer starts each stream at the initial state of the encoding.
TEST(Utf7State, OfAStreamIsNotThatOfTheNextOneInAWriter) {
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(Write_Windows_1250);
  writer.SetOnInvalidChar([](TDIUnicodeWriter&, char16_t, char16_t&, std::uint32_t,
                             TDIInvalidCharAction& action) { action = TDIInvalidCharAction::icAbort; });
  MemoryStream first(std::as_bytes(std::span("+AGFOAABi-"sv)));
  EXPECT_FALSE(writer.WriteStream(&first, Read_UTF_7)) << "U+4E00 is refused inside the run";
  MemoryStream second(std::as_bytes(std::span("AYg-c"sv)));
  EXPECT_TRUE(writer.WriteStream(&second, Read_UTF_7));
  EXPECT_EQ(test::TextOf(writer.Data()), "aAYg-c");
}

TEST(WriteUtf7, HoldsBackUntilFlushed) {
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(Write_UTF_7);
  EXPECT_TRUE(writer.TryWriteCharW(u'ř'));
  EXPECT_EQ(test::TextOf(writer.Data()), "+AV");
  writer.FlushDataBuffer();
  EXPECT_EQ(test::TextOf(writer.Data()), "+AVk-");
  writer.FlushDataBuffer();
  EXPECT_TRUE(writer.TryWriteCharW(u'a'));
  EXPECT_EQ(test::TextOf(writer.Data()), "+AVk-a");
}

TEST(WriteUtf7, ClosesARunWhereItMust) {
  EXPECT_EQ(Write(Write_UTF_7, u"řa"), "+AVk-a");
  EXPECT_EQ(Write(Write_UTF_7, u"ř-"), "+AVk--");
  EXPECT_EQ(Write(Write_UTF_7, u"ř "), "+AVk ");
  EXPECT_EQ(Write(Write_UTF_7, u"ř+"), "+AVkAKw-");
  EXPECT_EQ(Write(Write_UTF_7, u"a+b"), "a+-b");
  EXPECT_EQ(Write(Write_UTF_7, u"ř!"), "+AVkAIQ-");
  EXPECT_EQ(Write(Write_UTF_7_ODC, u"ř!"), "+AVk!");
  EXPECT_EQ(Write(Write_UTF_7_ODC, u"~\\"), "+AH4AXA-");
}

}  // namespace
}  // namespace ravo::DIUnicode
