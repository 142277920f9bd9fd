#include <ravo/DIUnicode.h>

#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

TEST(FindEncoding, ANumberIsThatOfACodePageAndNothingElse) {
  ASSERT_NE(FindEncoding("1250"), nullptr);
  EXPECT_EQ(FindEncoding("1250")->name, "Windows_1250");
  for (const char* none : {"", "0", "12500000", "99999", "12x0", "12,99", "-"})
    EXPECT_EQ(FindEncoding(none), nullptr) << none;
}

// A row that the caller made belongs to no encoding.
TEST(EncodedCharacter, OfAnotherRowIsNone) {
  const TDIUnicodeWriteMethods own{nullptr, [](TDIUnicodeWriter&, char16_t) { return true; }, nullptr,
                                   nullptr};
  EncodingRow row = *FindEncoding("1250");
  EXPECT_EQ(EncodedCharacter(row, u'a').size(), 1U);
  row.write = &own;
  EXPECT_TRUE(EncodedCharacter(row, u'a').empty());
}

// GB 18030 is read-only.
TEST(EncodingsOfCodePages, WhatIsNotWrittenGivesNoText) {
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(Write_UTF_16_LE);
  writer.WriteStrW(u"text");
  EXPECT_EQ(writer.DataToStrA(54936), "");
  EXPECT_EQ(writer.DataToStrA(99999), "");
  const EncodingRow* const row = FindEncodingByCodePage(54936);
  ASSERT_NE(row, nullptr);
  EXPECT_TRUE(EncodedCharacter(*row, u'a').empty());
}

}  // namespace
}  // namespace ravo::DIUnicode
