#include "support/fake_machine.h"
#include <ravo/RavoFileCommon.h>
#include <ravo/platform/code_pages.h>
#include <ravo/runtime/error.h>

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace ravo::RavoFileCommon {
namespace {

using namespace std::string_literals;

std::string Bytes(const MemoryStream& stream) {
  const std::span<const std::byte> bytes = stream.Bytes();
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

std::string TextString(std::u16string_view text) {
  MemoryStream stream;
  Win1250ToPDFDocEncoding(stream, text);
  return Bytes(stream);
}

std::string Field(std::u16string_view name, std::u16string_view value, bool as_unicode) {
  MemoryStream stream;
  FillPDFField(stream, name, value, as_unicode);
  return Bytes(stream);
}

std::string IntegerField(std::u16string_view name, std::int32_t value) {
  MemoryStream stream;
  FillPDFFieldAsInteger(stream, name, value);
  return Bytes(stream);
}

TEST(Win1250ToPDFDocEncoding, WritesUtf16WithItsMark) {
  EXPECT_EQ(TextString(u""), "\xFE\xFF");
  EXPECT_EQ(TextString(u"Novák"), "\xFE\xFF\0N\0o\0v\0\xE1\0k"s);
  EXPECT_EQ(TextString(u"řďž€"), "\xFE\xFF\x01\x59\x01\x0F\x01\x7E\x20\xAC"s);
}

TEST(Win1250ToPDFDocEncoding, EscapesOneByteOfOneCharacter) {
  EXPECT_EQ(TextString(u"č"), "\xFE\xFF\x01\\r"s);
  EXPECT_EQ(TextString(u"Č"), "\xFE\xFF\x01\x0C"s);
  EXPECT_EQ(TextString(u"ččČ"), "\xFE\xFF\x01\\r\x01\\r\x01\x0C"s);
}

TEST(Win1250ToPDFDocEncoding, EscapesNothingElse) {
  EXPECT_EQ(TextString(u"(\\)\r\n"), "\xFE\xFF\0(\0\\\0)\0\r\0\n"s);
}

TEST(Win1250ToPDFDocEncoding, ReplacesWhatTheCodePageLacks) { EXPECT_EQ(TextString(u"語"), "\xFE\xFF\0?"s); }

// All bytes of the code page, compared with the rule for one character.
TEST(Win1250ToPDFDocEncoding, WritesEveryCharacterOfTheCodePage) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::u16string text = platform::CodePages().FromCodePage(std::string(1, static_cast<char>(byte)));
    ASSERT_EQ(text.size(), 1U);
    const char16_t unit = text[0];
    if (unit == u'č' || (unit >= 0x80 && unit < 0xA0)) continue;
    const std::string expected{'\xFE', '\xFF', static_cast<char>(unit >> 8), static_cast<char>(unit & 0xFF)};
    EXPECT_EQ(TextString(text), expected) << byte;
  }
}

// Longer than any buffer involved.
TEST(Win1250ToPDFDocEncoding, WritesLongTexts) {
  std::u16string text;
  std::string expected = "\xFE\xFF";
  for (int i = 0; i < 5000; ++i) {
    text += u"ač";
    expected += "\0a\x01\\r"s;
  }
  EXPECT_EQ(TextString(text), expected);
}

TEST(FillPDFField, WritesBytesOfTheCodePage) {
  EXPECT_EQ(Field(u"Jmeno", u"Novák", false), "<</T(Jmeno)/V(Nov\xE1k)>>");
  EXPECT_EQ(Field(u"", u"", false), "<</T()/V()>>");
}

TEST(FillPDFField, WritesAPdfTextString) {
  EXPECT_EQ(Field(u"Jmeno", u"Novák", true), "<</T(Jmeno)/V(\xFE\xFF\0N\0o\0v\0\xE1\0k)>>"s);
  EXPECT_EQ(Field(u"Město", u"č", true), "<</T(M\xECsto)/V(\xFE\xFF\x01\\r)>>"s);
  EXPECT_EQ(Field(u"a", u"", true), "<</T(a)/V(\xFE\xFF)>>");
}

TEST(FillPDFField, ReplacesWhatTheCodePageLacks) {
  EXPECT_EQ(Field(u"語", u"語", false), "<</T(?)/V(?)>>");
  EXPECT_EQ(Field(u"語", u"語", true), "<</T(?)/V(\xFE\xFF\0?)>>"s);
}

TEST(FillPDFField, EscapesNeitherNameNorValue) {
  EXPECT_EQ(Field(u"a(b", u"c)\\", false), "<</T(a(b)/V(c)\\)>>");
  EXPECT_EQ(Field(u"a\\", u"(", true), "<</T(a\\)/V(\xFE\xFF\0()>>"s);
}

TEST(FillPDFFieldAsInteger, WritesAName) {
  EXPECT_EQ(IntegerField(u"name", -1), "<</T(name)/V/-1>>");
  EXPECT_EQ(IntegerField(u"Ano", 0), "<</T(Ano)/V/0>>");
  EXPECT_EQ(IntegerField(u"č", std::numeric_limits<std::int32_t>::max()), "<</T(\xE8)/V/2147483647>>");
  EXPECT_EQ(IntegerField(u"", std::numeric_limits<std::int32_t>::min()), "<</T()/V/-2147483648>>");
}

// No line break separates fields; each begins at the position of the stream.
TEST(FormFields, FollowEachOther) {
  MemoryStream stream;
  stream.WriteChecked(std::as_bytes(std::span("[....", 5)));
  stream.SetPosition(1);
  FillPDFField(stream, u"a", u"b", false);
  EXPECT_EQ(stream.Position(), 15);
  FillPDFField(stream, u"c", u"d", true);
  FillPDFFieldAsInteger(stream, u"e", 1);
  EXPECT_EQ(stream.Position(), stream.Size());
  EXPECT_EQ(Bytes(stream), "[<</T(a)/V(b)>><</T(c)/V(\xFE\xFF\0d)>><</T(e)/V/1>>"s);
}

// Accepts a few bytes and then no more, like a full disk.
class FullStream final : public ByteStream {
 public:
  explicit FullStream(std::size_t room) : room_(room) {}
  std::size_t Read(std::span<std::byte>) override { return 0; }
  std::size_t Write(std::span<const std::byte> from) override {
    const std::size_t count = std::min(room_, from.size());
    room_ -= count;
    return count;
  }
  std::int64_t Position() const override { return 0; }
  void SetPosition(std::int64_t) override {}
  std::int64_t Size() const override { return 0; }

 private:
  std::size_t room_;
};

TEST(FormFields, PassOnTheStreamsErrors) {
  const std::size_t whole = Field(u"Jmeno", u"Novák", true).size();
  for (std::size_t room = 0; room < whole; ++room) {
    FullStream stream(room);
    EXPECT_THROW(FillPDFField(stream, u"Jmeno", u"Novák", true), StreamError) << room;
  }
  FullStream enough(whole);
  EXPECT_NO_THROW(FillPDFField(enough, u"Jmeno", u"Novák", true));
  FullStream full(3);
  EXPECT_THROW(FillPDFField(full, u"a", u"b", false), StreamError);
  EXPECT_THROW(FillPDFFieldAsInteger(full, u"a", 1), StreamError);
}

}  // namespace
}  // namespace ravo::RavoFileCommon
