// Text by code page number, on the real machine.
#include <ravo/DIUnicode.h>

#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

struct Row {
  std::uint32_t code_page;
  std::u16string_view text;
  std::string_view bytes;
};

constexpr Row kRows[] = {
    {1250, u"p\x159\xEDli\x161", "p\xF8\xEDli\x9A"},
    {1251, u"\x434\x430", "\xE4\xE0"},
    {852, u"\x159\x10D", "\xFD\x9F"},
    {437, u"\xE9\x2592", "\x82\xB1"},
    {28592, u"\x159\x10D", "\xF8\xE8"},
    {20866, u"\x434\x430", "\xC4\xC1"},
    {65001, u"\x10D\x20AC", "\xC4\x8D\xE2\x82\xAC"},
};

TEST(CodePages, AreKnownByTheirNumbers) {
  for (const Row& row : kRows) {
    TDIUnicodeReader reader;
    reader.AddStrW(row.text);
    EXPECT_EQ(reader.DataAsStrA(row.code_page), row.bytes) << row.code_page;
    TDIUnicodeWriter writer;
    writer.SetWriteMethods(Write_UCS_2_LE);
    EXPECT_TRUE(writer.WriteStrA(row.bytes, row.code_page));
    EXPECT_EQ(writer.DataToStrW(), row.text) << row.code_page;
    EXPECT_EQ(writer.DataToStrA(row.code_page), row.bytes) << row.code_page;
    EXPECT_EQ(FromCodePage(row.bytes, row.code_page), row.text) << row.code_page;
    EXPECT_EQ(ToCodePage(row.text, row.code_page), row.bytes) << row.code_page;
  }
}

TEST(CodePages, PutSomethingForWhatTheyLack) {
  TDIUnicodeReader reader;
  reader.AddStrW(u"a\x4E00");
  for (const std::uint32_t code_page : {1250u, 852u, 28592u})
    EXPECT_EQ(reader.DataAsStrA(code_page), "a?") << code_page;
}

TEST(CodePages, ThatNobodyKnowsGiveNothing) {
  TDIUnicodeReader reader;
  reader.AddStrW(u"abc");
  EXPECT_EQ(reader.DataAsStrA(4711), "");
  TDIUnicodeWriter writer;
  EXPECT_TRUE(writer.WriteStrA("abc", 4711));
  EXPECT_EQ(writer.DataSize(), 0u);
}

TEST(CodePages, TheSystemsIsTheDefault) {
  EXPECT_EQ(FromCodePage("p\xF8\xEDli\x9A"), u"p\x159\xEDli\x161");
  EXPECT_EQ(ToCodePage(u"p\x159\xEDli\x161"), "p\xF8\xEDli\x9A");
  EXPECT_EQ(ToCodePage(u"\x4E00"), "?");
  EXPECT_EQ(FromCodePage(""), u"");
  EXPECT_EQ(ToCodePage(u""), "");
  EXPECT_EQ(FromCodePage("abc", 4711), u"");
  EXPECT_EQ(ToCodePage(u"abc", 4711), "");
}

// The published table leaves them unassigned; systems map them to control characters.
TEST(CodePages, FiveBytesOfWindows1250AreControlsOfTheSystemAlone) {
  for (const char16_t control : {u'\u0081', u'\u0083', u'\u0088', u'\u0090', u'\u0098'}) {
    const std::string byte(1, static_cast<char>(control));
    const std::u16string text(1, control);
    TDIUnicodeReader reader;
    reader.AddStrW(text);
    EXPECT_EQ(reader.DataAsStrA(1250), byte) << int{control};
    TDIUnicodeWriter writer;
    writer.SetWriteMethods(Write_UCS_2_LE);
    EXPECT_TRUE(writer.WriteStrA(byte, 1250));
    EXPECT_EQ(writer.DataToStrW(), text) << int{control};
    reader.SetReadMethods(Read_Windows_1250);
    reader.SetSourceBufferAsStrA(byte);
    EXPECT_TRUE(reader.ReadChar());
    EXPECT_EQ(reader.Char(), u'\uFFFD') << int{control};
    writer.SetWriteMethods(Write_Windows_1250);
    EXPECT_FALSE(writer.TryWriteCharW(control)) << int{control};
  }
}

}  // namespace
}  // namespace ravo::DIUnicode
