// The Data of a reader.
#include "support/error_text.h"
#include "support/fake_machine.h"
#include "support/scratch_folder.h"
#include <ravo/DIUnicode.h>

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::ErrorText;
using namespace std::string_view_literals;

bool IsX(char16_t c) { return c == u'x'; }
bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

TEST(ReaderData, GrowsByAQuarterAndFour) {
  TDIUnicodeReader reader;
  std::uint32_t capacity = 0;
  for (std::uint32_t size = 0; size < 5000; ++size) {
    ASSERT_EQ(reader.DataSize(), size);
    reader.AddChar(static_cast<char16_t>(size));
    if (size == capacity) capacity = (size + size / 4 + 4) / 4 * 4;
    ASSERT_EQ(reader.DataCapacity(), capacity) << size;
  }
  for (std::uint32_t i = 0; i < 5000; ++i) ASSERT_EQ(reader.Data()[i], i);
}

TEST(ReaderData, GrowsAlikeByWholeTexts) {
  for (const std::size_t length : {1U, 2U, 3U, 4U, 5U, 7U, 8U, 12U, 100U, 999U}) {
    const std::u16string text(length, u'a');
    TDIUnicodeReader whole;
    TDIUnicodeReader single;
    for (int i = 0; i < 10; ++i) {
      whole.AddStrW(text);
      for (const char16_t c : text) single.AddChar(c);
      ASSERT_EQ(whole.DataCapacity(), single.DataCapacity()) << length;
      ASSERT_EQ(whole.Data(), single.Data());
    }
  }
}

TEST(ReaderData, TakesCharactersAndTexts) {
  TDIUnicodeReader reader;
  reader.SetSourceBufferAsStrA("ab");
  reader.ReadChar();
  reader.AddChar();
  EXPECT_TRUE(reader.AddCharReadChar());
  EXPECT_FALSE(reader.AddCharReadChar());
  reader.AddChar(u'\x10D');
  reader.AddSpace();
  reader.AddSpace();
  reader.AddCrLf();
  reader.AddStrW(u"xyz");
  reader.AddStrW(u"");
  EXPECT_EQ(reader.Data(), u"aab\x10D  \r\nxyz");
  EXPECT_TRUE(reader.DataIsNotEmpty());
  reader.ZeroDataSize();
  EXPECT_TRUE(reader.DataIsEmpty());
  EXPECT_NE(reader.DataCapacity(), 0u);
  reader.ClearData();
  EXPECT_EQ(reader.DataCapacity(), 0u);
}

TEST(AddCharCompact, AddsOneBlankForWhiteSpace) {
  TDIUnicodeReader reader;
  reader.AddCharCompact(u'\t');
  EXPECT_EQ(reader.Data(), u" ");
  reader.AddCharCompact(u'\t');
  EXPECT_EQ(reader.Data(), u" ") << "a tab after a space adds nothing";
  reader.AddSpaceCompact();
  reader.AddCharCompact(u'a');
  reader.AddCharCompact(0x3000);
  reader.AddCharCompact(0x2028);
  reader.AddSpaceCompact();
  EXPECT_EQ(reader.Data(), u" a ");
  reader.AddChar(u'\t');
  reader.AddSpaceCompact();
  EXPECT_EQ(reader.Data(), u" a \t ") << "only a blank holds another one back";
  reader.ZeroDataSize();
  reader.AddStrCompactW(u"  b \r\n\t c\xA0\xA0");
  EXPECT_EQ(reader.Data(), u" b c ");
}

TEST(SetDataSize, OnlyShortens) {
  TDIUnicodeReader reader;
  EXPECT_EQ(ErrorText([&] { reader.SetDataSize(0); }), u"Class TDIUnicodeReader: Data is not assigned");
  reader.AddStrW(u"abc");
  EXPECT_EQ(ErrorText([&] { reader.SetDataSize(17); }),
            u"Class TDIUnicodeReader: DataSize out of bounds (17)");
  EXPECT_EQ(ErrorText([&] { reader.SetDataSize(4); }), u"Class TDIUnicodeReader: DataSize out of bounds (4)");
  EXPECT_EQ(ErrorText([&] { reader.SetDataSize(0xFFFFFFFF); }),
            u"Class TDIUnicodeReader: DataSize out of bounds (4294967295)");
  reader.SetDataSize(3);
  reader.SetDataSize(1);
  EXPECT_EQ(reader.Data(), u"a");
  reader.SetDataSize(0);
  reader.SetDataSize(0);
  EXPECT_EQ(ErrorText([&] { reader.SetDataSize(1); }), u"Class TDIUnicodeReader: DataSize out of bounds (1)");
}

TEST(DeleteFromDataStart, MovesTheRestToTheFront) {
  TDIUnicodeReader reader;
  reader.DeleteFromDataStart(3);
  reader.AddStrW(u"abcdef");
  reader.DeleteFromDataStart(0);
  reader.DeleteFromDataStart(2);
  EXPECT_EQ(reader.Data(), u"cdef");
  reader.DeleteFromDataStart(3);
  EXPECT_EQ(reader.Data(), u"f");
  reader.DeleteFromDataStart(1);
  EXPECT_EQ(reader.Data(), u"");
  reader.AddStrW(u"ab");
  reader.DeleteFromDataStart(0xFFFFFFFF);
  EXPECT_EQ(reader.Data(), u"");
}

struct TrimRow {
  std::u16string_view data;
  CharPredicate validate;
  std::u16string_view trimmed;
  std::u16string_view left;
  std::u16string_view right;
};

TEST(TrimmedData, LosesWhatPassesTheTest) {
  constexpr TrimRow rows[] = {
      {u" a b\t\r\n", nullptr, u"a b", u"a b\t\r\n", u" a b"},
      {u"abc", nullptr, u"abc", u"abc", u"abc"},
      {u" \t", nullptr, u"", u"", u""},
      {u"", nullptr, u"", u"", u""},
      {u"xxaxbxx", IsX, u"axb", u"axbxx", u"xxaxb"},
      {u" x ", IsX, u" x ", u" x ", u" x "},
      {u"\x2003\x3000z\x85", nullptr, u"z", u"z\x85", u"\x2003\x3000z"},
  };
  for (const TrimRow& row : rows) {
    TDIUnicodeReader reader;
    reader.AddStrW(row.data);
    EXPECT_EQ(reader.TrimmedDataLength(row.validate), row.trimmed.size());
    EXPECT_EQ(reader.TrimmedDataStartAndLength(row.validate), row.trimmed);
    EXPECT_EQ(reader.TrimmedLeftDataStartAndLength(row.validate), row.left);
    EXPECT_EQ(reader.TrimmedRightDataLength(row.validate), row.right.size());
    EXPECT_EQ(reader.DataAsStrTrimW(row.validate), row.trimmed);
    EXPECT_EQ(reader.DataAsStrTrimLeftW(row.validate), row.left);
    EXPECT_EQ(reader.Data(), row.data);
    reader.TrimDataRight(row.validate);
    EXPECT_EQ(reader.Data(), row.right);
  }
}

TEST(DataAsStr, CopiesTheData) {
  test::FakeMachine machine;
  const platform::ScopedMachine in_force(machine);
  TDIUnicodeReader reader;
  reader.AddStrW(u" \x10Dx\x20AC ");
  EXPECT_EQ(reader.DataAsStr(), u" \x10Dx\x20AC ");
  EXPECT_EQ(reader.DataAsStrW(), u" \x10Dx\x20AC ");
  EXPECT_EQ(reader.DataAsStr8(), " \xC4\x8Dx\xE2\x82\xAC ");
  EXPECT_EQ(reader.DataAsStrA(), " \xE8x\x80 ");
  EXPECT_EQ(reader.DataAsStrA(0), " \xE8x\x80 ");
  EXPECT_EQ(reader.DataAsStrA(1250), " \xE8x\x80 ");
  EXPECT_EQ(reader.DataToStrA(), " \xE8x\x80 ");
  EXPECT_EQ(reader.DataAsStrTrimA(1250), "\xE8x\x80");
  EXPECT_EQ(reader.DataToStrTrimA(), "\xE8x\x80");
  EXPECT_EQ(reader.DataAsStrA(4711), "") << "nobody knows this code page";
}

TEST(DataAsStr8, JoinsSurrogates) {
  TDIUnicodeReader reader;
  reader.AddStrW(u"\xD83D\xDE00");
  reader.AddChar(0xD800);
  EXPECT_EQ(reader.DataAsStr8(), "\xF0\x9F\x98\x80\xEF\xBF\xBD");
}

TEST(DataIs, AsksAboutTheCharacters) {
  TDIUnicodeReader reader;
  EXPECT_TRUE(reader.DataIsChars(IsDigit)) << "all of none";
  EXPECT_FALSE(reader.DataHasChars(IsDigit));
  EXPECT_TRUE(reader.DataIsStrW(u""));
  reader.AddStrW(u"12");
  EXPECT_TRUE(reader.DataIsChars(IsDigit));
  reader.AddChar(u'\x10D');
  EXPECT_FALSE(reader.DataIsChars(IsDigit));
  EXPECT_TRUE(reader.DataHasChars(IsDigit));
  EXPECT_FALSE(reader.DataHasChars(IsX));
  EXPECT_TRUE(reader.DataIsStrW(u"12\x10D"));
  EXPECT_FALSE(reader.DataIsStrW(u"12\x10C"));
  EXPECT_TRUE(reader.DataIsStrIW(u"12\x10C"));
  EXPECT_FALSE(reader.DataIsStrIW(u"12\x10C "));
  EXPECT_FALSE(reader.DataIsStrIW(u"12"));
  EXPECT_FALSE(reader.DataIsChars(nullptr));
}

TEST(SaveDataToStream, WritesUtf16LowByteFirst) {
  TDIUnicodeReader reader;
  MemoryStream stream;
  reader.SaveDataToStream(&stream, false);
  EXPECT_EQ(stream.Size(), 0);
  reader.AddStrW(u"a\x10D");
  reader.SaveDataToStream(&stream, true);
  reader.SaveDataToStream(&stream, false);
  const auto expected =
      "\xFF\xFE"
      "a\0\x0D\x01"
      "a\0\x0D\x01"sv;
  const std::string_view written(reinterpret_cast<const char*>(stream.Bytes().data()), stream.Bytes().size());
  EXPECT_EQ(written, expected);
}

TEST(SaveDataToStream, WantsAStream) {
  const TDIUnicodeReader reader;
  EXPECT_EQ(ErrorText([&] { reader.SaveDataToStream(nullptr, true); }),
            u"Class TDIUnicodeReader: Stream is nil");
}

TEST(SaveDataToFile, MakesTheFile) {
  const test::ScratchFolder folder;
  folder.Write("data.txt", "longer than what is saved");
  TDIUnicodeReader reader;
  reader.AddStrW(u"ab");
  reader.SaveDataToFile(folder.File(u"data.txt"), true);
  std::ifstream file(folder.Path() / "data.txt", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(bytes,
            "\xFF\xFE"
            "a\0b\0"sv);
}

}  // namespace
}  // namespace ravo::DIUnicode
