// What UTF-7 remembers between characters, and what it holds back.
#include "encoding_texts.h"

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::Write;

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

// A source in UTF-7 ends on top of one in another encoding: the record goes with it, also where no routine is
// called for it.
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

// Two sources in UTF-7 on top of each other use one record; without stored methods it stays with the reader.
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

// What other routines keep in the state is not touched when their source ends.
TEST(Utf7State, OfOthersIsTheirs) {
  TDIUnicodeReader reader;
  reader.SetSourceBuffer(test::AsBytes("ab"));
  reader.PushSource(true);
  reader.SetReadMethods({nullptr, Read_Iso_8859_2_ReadChar, [](TDIUnicodeReader&) {}});
  reader.SetState(7);
  EXPECT_TRUE(reader.PopSource());
  EXPECT_EQ(reader.State(), 7U);
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
