// The list of encodings, and stated cases of each engine.
#include "encoding_texts.h"
#include "support/effort.h"
#include <ravo/DIUnicode.h>

#include <set>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::Read;
using test::Write;
using namespace std::string_literals;
using namespace std::string_view_literals;

TEST(EncodingRows, HaveDistinctNamesAndCodePages) {
  std::set<std::string_view> names;
  std::set<std::uint32_t> code_pages;
  for (const EncodingRow& row : EncodingRows()) {
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
    if (row.code_page != 0) {
      EXPECT_TRUE(code_pages.insert(row.code_page).second) << row.name;
    }
    EXPECT_FALSE(row.label.empty());
    EXPECT_TRUE(row.read != nullptr || row.write != nullptr) << row.name;
  }
  EXPECT_TRUE(names.contains("Windows_1250") && names.contains("GB_18030"));
}

std::vector<std::string_view> NamesOf(const EncodingRow& row) {
  std::vector<std::string_view> names = {row.name};
  for (std::string_view rest = row.aliases; !rest.empty();) {
    const std::size_t length = std::min(rest.find(' '), rest.size());
    names.push_back(rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }
  return names;
}

// No alias is another row's name, alias or number.
TEST(FindEncoding, FindsEveryRowByEachOfItsNames) {
  for (const EncodingRow& row : EncodingRows()) {
    for (const std::string_view name : NamesOf(row)) EXPECT_EQ(FindEncoding(name), &row) << name;
    if (row.code_page == 0) continue;
    EXPECT_EQ(FindEncodingByCodePage(row.code_page), &row) << row.name;
    EXPECT_EQ(FindEncoding(std::to_string(row.code_page)), &row) << row.name;
  }
}

TEST(FindEncoding, LooksAtLettersAndDigitsAlone) {
  const EncodingRow* const wanted = FindEncoding("Windows_1250");
  ASSERT_NE(wanted, nullptr);
  EXPECT_EQ(wanted->read, &Read_Windows_1250);
  EXPECT_EQ(wanted->write, &Write_Windows_1250);
  for (const auto* name : {"windows-1250", "WINDOWS 1250", "cp1250", "CP-1250", "1250", " x-cp1250 "}) {
    EXPECT_EQ(FindEncoding(name), wanted) << name;
  }
}

TEST(FindEncoding, AnswersNullForWhatIsNone) {
  for (const auto* name : {"", "-", "windows", "windows-12500", "0", "12500000000", "utf", "č"}) {
    EXPECT_EQ(FindEncoding(name), nullptr) << name;
  }
  EXPECT_EQ(FindEncodingByCodePage(0), nullptr);
  EXPECT_EQ(FindEncodingByCodePage(1), nullptr);
}

std::string Alone(std::string_view encoding, char16_t ch) {
  return test::TextOf(EncodedCharacter(*FindEncoding(encoding), ch));
}

TEST(EncodedCharacter, GivesTheBytesOfOneCharacter) {
  EXPECT_EQ(Alone("Windows_1250", u'Ř'), "\xD8");
  EXPECT_EQ(Alone("Windows_1250", u'\u4E00'), "");
  EXPECT_EQ(Alone("Windows_1250", u'\0'), "\0"s);
  EXPECT_EQ(Alone("UTF_32_LE", u'A'), "A\0\0\0"s);
  EXPECT_EQ(Alone("UTF_7", u'ř'), "+AVk-");
  EXPECT_EQ(Alone("UTF_7", u'+'), "+-");
  EXPECT_EQ(Alone("UTF_7", u'!'), "+ACE-");
  EXPECT_EQ(Alone("UTF_7_ODC", u'!'), "!");
  EXPECT_EQ(Alone("GB_18030", u'A'), "");
}

TEST(EncodedCharacter, IsWhatAWriterWrites) {
  for (const EncodingRow& row : EncodingRows()) {
    if (row.write == nullptr) continue;
    for (unsigned unit = 0; unit < 0x10000; unit += 7 * test::StepUnderSanitizers(5)) {
      const std::u16string text(1, static_cast<char16_t>(unit));
      ASSERT_EQ(test::TextOf(EncodedCharacter(row, text[0])), Write(*row.write, text).value_or(""))
          << row.name << ' ' << unit;
    }
  }
}

TEST(WriteWindows1250, StatedCases) {
  EXPECT_EQ(Write(Write_Windows_1250, u"\u0158"), "\xD8");
  EXPECT_EQ(Write(Write_Windows_1250, u"\u4E00"), std::nullopt);
  EXPECT_EQ(Write(Write_Windows_1250, u"\uFFFD"), std::nullopt);
  EXPECT_EQ(Write(Write_Windows_1250, u"Příliš žluťoučký kůň"),
            "P\xF8\xEDli\x9A \x9Elu\x9Dou\xE8k\xFD k\xF9\xF2");
}

TEST(ReadWindows1250, StatedCases) {
  EXPECT_EQ(Read(Read_Windows_1250, "\xD8\x80"), u"Ř€");
  EXPECT_EQ(Read(Read_Windows_1250, "a\x81z"), u"a\uFFFDz");
  EXPECT_EQ(Read(Read_Windows_1250, ""), u"");
}

// As in TIS 620, which the upper half of this encoding follows.
TEST(WriteMacThai, AMarkAsItsOwnByteNotAsOneOfItsPositions) {
  for (const char16_t mark : u"\u0E31\u0E34\u0E35\u0E36\u0E37\u0E47\u0E48\u0E49\u0E4A\u0E4B\u0E4C\u0E4D"sv) {
    const std::u16string text(1, mark);
    const std::string byte(1, static_cast<char>(mark - 0x0E00 + 0xA0));
    EXPECT_EQ(Write(Write_Mac_Thai, text), byte) << static_cast<int>(mark);
    EXPECT_EQ(Read(Read_Mac_Thai, byte), text) << static_cast<int>(mark);
  }
  EXPECT_EQ(Read(Read_Mac_Thai, "\x83\x88\x98\xE8"), u"\u0E48\u0E48\u0E48\u0E48");
}

// If several bytes decode to one character and none is a variant, the lowest is written.
TEST(WriteSharedCharacters, TheLowestByte) {
  for (unsigned char byte = 0x20; byte < 0x7F; ++byte) {
    const std::string alone(1, static_cast<char>(byte));
    for (const auto* const methods : {&Write_Mac_Hebrew, &Write_Mac_Arabic, &Write_Mac_Farsi}) {
      EXPECT_EQ(Write(*methods, std::u16string(1, byte)), alone);
    }
  }
  EXPECT_EQ(Write(Write_CP_1006, u"\uFE8E"), "\xB1");
  EXPECT_EQ(Write(Write_Mac_Hebrew, u"\u05B8"), "\xCB");
}

// The two differ in signs below A0 and, above, in one letter.
TEST(ReadKoi8Ru, HasTheLettersOfKoi8UAndTheBelarusianOne) {
  for (int byte = 0xA0; byte < 0x100; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    const std::u16string wanted = byte == 0xAE ? u"ў" : byte == 0xBE ? u"Ў" : Read(Read_Koi8_U, bytes);
    EXPECT_EQ(Read(Read_Koi8_RU, bytes), wanted) << byte;
  }
}

TEST(WriteUtf8, SurrogatesAsThreeBytesEach) {
  EXPECT_EQ(Write(Write_UTF_8, u"\xD83D\xDE00"), "\xED\xA0\xBD\xED\xB8\x80");
  EXPECT_EQ(Write(Write_UTF_8, u"\x7F\x80\x7FF\x800\xFFFF"), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
}

TEST(ReadUtf8, FourBytesAreOneReplacement) {
  EXPECT_EQ(Read(Read_UTF_8, "\xF0\x9F\x98\x80"), u"\uFFFD");
  EXPECT_EQ(Read(Read_UTF_8, "\xF0\x9F\x98\x80z\xF8\x88\x80\x80\x80z\xFC\x84\x80\x80\x80\x80z"),
            u"\uFFFDz\uFFFDz\uFFFDz");
}

TEST(ReadUtf16, SurrogatePairIsOneReplacement) {
  EXPECT_EQ(Read(Read_UTF_16_BE, "\xD8\x3D\xDE\0\0z"s), u"\uFFFDz");
  EXPECT_EQ(Read(Read_UTF_16_LE, "\x3D\xD8\0\xDEz\0"s), u"\uFFFDz");
  EXPECT_EQ(Read(Read_UTF_16_BE, "\xD8\x3D\0a\0z"s), u"\uFFFDz");  // whatever the second unit is
  EXPECT_EQ(Read(Read_UTF_16_BE, "\xD8\x3D\0"s), u"\uFFFD");
  EXPECT_EQ(Read(Read_UTF_16_BE, "\xD8\x3D"s), u"\uFFFD");
}

TEST(ReadUtf16, LowSurrogateEndsTheData) {
  EXPECT_EQ(Read(Read_UTF_16_BE, "\xDC\0\0z"s), u"");
  EXPECT_EQ(Read(Read_UTF_16_LE, "a\0\0\xDFz\0"s), u"a");
}

TEST(WriteUtf16, RefusesSurrogates) {
  EXPECT_EQ(Write(Write_UTF_16_BE, u"aŘ"), "\0a\x01\x58"s);
  EXPECT_EQ(Write(Write_UTF_16_LE, u"aŘ"), "a\0\x58\x01"s);
  for (const auto* methods : {&Write_UTF_16_BE, &Write_UTF_16_LE, &Write_UTF_32_BE, &Write_UTF_32_LE}) {
    EXPECT_EQ(Write(*methods, u"\xD800"), std::nullopt);
    EXPECT_EQ(Write(*methods, u"\xDFFF"), std::nullopt);
    EXPECT_NE(Write(*methods, u"\xD7FF\xE000\xFFFF"), std::nullopt);
  }
}

TEST(Ucs2AndUcs4, SurrogatesPass) {
  const std::u16string text = u"a\xD83D\xDE00\xDC00\xD800";
  EXPECT_EQ(Read(Read_UCS_2_BE, Write(Write_UCS_2_BE, text).value()), text);
  EXPECT_EQ(Read(Read_UCS_2_LE, Write(Write_UCS_2_LE, text).value()), text);
  EXPECT_EQ(Read(Read_UCS_4_BE, Write(Write_UCS_4_BE, text).value()), text);
  EXPECT_EQ(Read(Read_UCS_4_LE, Write(Write_UCS_4_LE, text).value()), text);
}

TEST(ReadUtf32, WhatIsNoUnitIsReplaced) {
  EXPECT_EQ(Read(Read_UTF_32_BE, "\0\0\x01\x58\0\x01\xF6\0\0\0\xD8\0\0\0\0z"s), u"Ř\uFFFD\uFFFDz");
  EXPECT_EQ(Read(Read_UTF_32_LE, "\x58\x01\0\0\0\xF6\x01\0\0\xDF\0\0z\0\0\0"s), u"Ř\uFFFD\uFFFDz");
  EXPECT_EQ(Read(Read_UCS_4_BE, "\xFF\xFF\xFF\xFF\0\0\xDF\xFF"s), u"\uFFFD\xDFFF");
  EXPECT_EQ(Read(Read_UTF_32_BE, "\0\0\0a\0\0\0"s), u"a");
}

TEST(ReadGb18030, TwoAndFourBytes) {
  EXPECT_EQ(Read(Read_GB_18030, "a\xB0\xA1\x81\x30\x81\x30\x84\x31\xA4\x39z"), u"a啊\x80\xFFFFz");
  EXPECT_EQ(Read(Read_GB_18030, "\xA8\xBC\x81\x35\xF4\x37"), u"\u1E3F\uE7C7");
  EXPECT_EQ(Read(Read_GB_18030, "\x90\x30\x81\x30z\x84\x31\xA5\x30z\x80\xFFz"),
            u"\uFFFDz\uFFFDz\uFFFD\uFFFDz");
}

}  // namespace
}  // namespace ravo::DIUnicode
