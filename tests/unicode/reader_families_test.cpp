// The characters that each reading or skipping operation passes, and where it stops.
#include <ravo/DIUnicode.h>

#include <functional>
#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using Reader = TDIUnicodeReader;

bool IsLower(char16_t c) { return c >= u'a' && c <= u'z'; }

struct Family {
  std::string_view name;
  std::function<void(Reader&)> read;
  std::function<void(Reader&)> skip;
  std::u16string_view text;    // in Latin-1
  std::u16string_view passed;  // the characters read or skipped
  std::u16string_view rest;    // from the current character on
};

#define RAVO_BOTH(name, ...)  \
#name "(" #__VA_ARGS__ ")", \
      [](Reader & r) { r.Read##name(__VA_ARGS__); }, [](Reader & r) { r.Skip##name(__VA_ARGS__); }
#define RAVO_READ(name, ...)  \
#name "(" #__VA_ARGS__ ")", \
      [](Reader & r) { r.Read##name(__VA_ARGS__); }, [](Reader & r) { r.Read##name(__VA_ARGS__); }

const Family kFamilies[] = {
    {RAVO_BOTH(Chars, u'a'), u"aaab", u"aaa", u"b"},
    {RAVO_BOTH(Chars, u'a'), u"baa", u"", u"baa"},
    {RAVO_BOTH(Chars, u'a'), u"aaa", u"aaa", u""},
    {RAVO_BOTH(Chars, u'a', u'b'), u"abbac", u"abba", u"c"},
    {RAVO_BOTH(Chars, u'a', u'b'), u"cab", u"", u"cab"},
    {RAVO_BOTH(Chars, IsLower), u"abcDe", u"abc", u"De"},
    {RAVO_BOTH(Chars, IsLower), u"Abc", u"", u"Abc"},
    {RAVO_BOTH(Chars, nullptr), u" \t\r\nx", u" \t\r\n", u"x"},
    {RAVO_BOTH(Chars, IsLower, u'x'), u"abxcD", u"ab", u"xcD"},
    {RAVO_BOTH(Chars, IsLower, u'x'), u"xabc", u"", u"xabc"},
    {RAVO_BOTH(Chars, IsLower, u'x'), u"abC", u"ab", u"C"},
    {RAVO_BOTH(Chars, IsLower, u'C'), u"abC", u"ab", u"C"},
    {RAVO_BOTH(CharsTill, u';'), u"ab\r\nc;d", u"ab\r\nc", u";d"},
    {RAVO_BOTH(CharsTill, u';'), u";a", u"", u";a"},
    {RAVO_BOTH(CharsTill, u';'), u"abc", u"abc", u""},
    {RAVO_BOTH(CharsTill, u';', u','), u"ab,c;", u"ab", u",c;"},
    {RAVO_BOTH(CharsTill, u';', u',', u'.'), u"ab.c,d;", u"ab", u".c,d;"},
    {RAVO_BOTH(CharsTill, IsLower), u"AB1c", u"AB1", u"c"},
    {RAVO_BOTH(CharsTill, nullptr), u"AB c", u"AB", u" c"},
    {RAVO_BOTH(Digits), u"0129a", u"0129", u"a"},
    {RAVO_BOTH(Digits), u"a1", u"", u"a1"},
    {RAVO_BOTH(HexDigits), u"09afAFg", u"09afAF", u"g"},
    {RAVO_BOTH(WhiteSpace), u" \t\x0B\x85\xA0\r\nx ", u" \t\x0B\x85\xA0\r\n", u"x "},
    {RAVO_BOTH(WhiteSpace), u"x ", u"", u"x "},
    {RAVO_READ(CharsTillWhiteSpace), u"ab\xE8\xA0x", u"ab\xE8", u"\xA0x"},
    {RAVO_READ(CharsTillWhiteSpace), u" ab", u"", u" ab"},
    {RAVO_BOTH(TillEndOfLine), u"ab\ncd", u"ab", u"cd"},
    {RAVO_BOTH(TillEndOfLine), u"ab\r\ncd", u"ab", u"cd"},
    {RAVO_BOTH(TillEndOfLine), u"ab\rcd", u"ab", u"cd"},
    {RAVO_BOTH(TillEndOfLine), u"ab\r\rcd", u"ab", u"\rcd"},
    {RAVO_BOTH(TillEndOfLine), u"\n\ncd", u"", u"\ncd"},
    {RAVO_BOTH(TillEndOfLine), u"\r\n\r\ncd", u"", u"\r\ncd"},
    {RAVO_BOTH(TillEndOfLine), u"ab\n", u"ab", u""},
    {RAVO_BOTH(TillEndOfLine), u"ab\r", u"ab", u""},
    {RAVO_BOTH(TillEndOfLine), u"ab", u"ab", u""},
};

std::string Latin1(std::u16string_view text) { return {text.begin(), text.end()}; }

std::u16string FromHere(Reader& reader) {
  std::u16string text;
  while (reader.CharOK()) {
    text.push_back(reader.Char());
    reader.ReadChar();
  }
  return text;
}

TEST(ReadFamilies, CollectWhatTheyPassOver) {
  for (const Family& family : kFamilies) {
    const std::string bytes = Latin1(family.text);
    Reader reader;
    reader.SetSourceBufferAsStrA(bytes);
    reader.ReadChar();
    reader.AddStrW(u"<");
    family.read(reader);
    EXPECT_EQ(reader.Data(), std::u16string(u"<").append(family.passed)) << family.name << " on " << bytes;
    EXPECT_EQ(FromHere(reader), family.rest) << family.name << " on " << bytes;
  }
}

TEST(SkipFamilies, PassOverTheSame) {
  for (const Family& family : kFamilies) {
    const std::string bytes = Latin1(family.text);
    Reader reader;
    Reader skipper;
    for (Reader* each : {&reader, &skipper}) {
      each->SetSourceBufferAsStrA(bytes);
      each->ReadChar();
    }
    family.read(reader);
    family.skip(skipper);
    const bool only_read = family.name.starts_with("CharsTillWhiteSpace");
    EXPECT_EQ(skipper.Data(), only_read ? family.passed : u"") << family.name << " on " << bytes;
    EXPECT_EQ(skipper.CharPos(), reader.CharPos());
    EXPECT_EQ(skipper.CharLine(), reader.CharLine());
    EXPECT_EQ(skipper.CharCol(), reader.CharCol());
    EXPECT_EQ(FromHere(skipper), family.rest) << family.name << " on " << bytes;
  }
}

TEST(ReadFamilies, ConsumePeekedCharactersFirst) {
  for (const Family& family : kFamilies) {
    const std::string bytes = Latin1(family.text);
    for (std::uint32_t peeked = 0; peeked <= bytes.size(); ++peeked) {
      Reader plain;
      Reader reader;
      for (Reader* each : {&plain, &reader}) {
        each->SetSourceBufferAsStrA(bytes);
        each->ReadChar();
      }
      reader.PeekChars(peeked);
      family.read(plain);
      family.read(reader);
      EXPECT_EQ(reader.Data(), plain.Data()) << family.name << ", " << peeked;
      EXPECT_EQ(reader.CharPos(), plain.CharPos());
      EXPECT_EQ(reader.CharLine(), plain.CharLine());
      EXPECT_EQ(reader.CharCol(), plain.CharCol());
      EXPECT_EQ(FromHere(reader), family.rest);
    }
  }
}

TEST(ReadFamilies, DoNothingWithoutACurrentCharacter) {
  Reader reader;
  reader.SetSourceBufferAsStrA("aaa");
  reader.ReadChars(u'a');
  reader.SkipCharsTill(u'x');
  reader.SkipEmptyLines();
  EXPECT_EQ(reader.CharPos(), 0u);
  EXPECT_EQ(reader.Data(), u"");
}

TEST(ReadTillEndOfLine, ReadsACharacterFirstWhereNoneIsCurrent) {
  Reader reader;
  reader.SetSourceBufferAsStrA("ab\ncd\n");
  reader.ReadTillEndOfLine();
  EXPECT_EQ(reader.Data(), u"ab");
  EXPECT_EQ(reader.Char(), u'c');
  reader.SkipTillEndOfLine();
  EXPECT_FALSE(reader.CharOK());
  EXPECT_EQ(reader.CharPos(), 6u);
  reader.ReadTillEndOfLine();
  EXPECT_EQ(reader.Data(), u"ab");
}

TEST(ReadLine, GivesOneLineAfterTheOther) {
  Reader reader;
  reader.SetSourceBufferAsStrA("first\r\n\r\nthird\rfourth\nlast");
  std::u16string lines;
  do {
    reader.ReadLine();
    lines += reader.DataAsStr() + u"|";
  } while (reader.CharOK());
  EXPECT_EQ(lines, u"first||third|fourth|last|");
  EXPECT_EQ(reader.CharLine(), 5u);
  reader.ReadLine();
  EXPECT_EQ(reader.Data(), u"") << "it empties the Data in any case";
}

TEST(SkipLine, KeepsTheData) {
  Reader reader;
  reader.SetSourceBufferAsStrA("first\nsecond\nthird");
  reader.ReadLine();
  reader.SkipLine();
  EXPECT_EQ(reader.Data(), u"first");
  reader.ReadLine();
  EXPECT_EQ(reader.Data(), u"third");
}

TEST(SkipEmptyLines, KeepsWhatStandsInFrontOfTheFirstFullLine) {
  struct Row {
    std::string_view text;
    CharPredicate validate;
    std::u16string_view data;
    std::u16string_view rest;
  };
  constexpr CharPredicate is_dot = [](char16_t c) { return c == u'.'; };
  const Row rows[] = {
      {" \n\t\r\n  x", nullptr, u"  ", u"x"},  {"x\n", nullptr, u"", u"x\n"},
      {"  \n ", nullptr, u" ", u""},           {"  \n", nullptr, u"", u""},
      {"..\r.\r\n.. a", is_dot, u"..", u" a"}, {"\n\n\nab", is_dot, u"", u"ab"},
      {"  x", nullptr, u"  ", u"x"},
  };
  for (const Row& row : rows) {
    Reader reader;
    reader.SetSourceBufferAsStrA(row.text);
    reader.ReadChar();
    reader.SkipEmptyLines(row.validate);
    EXPECT_EQ(reader.Data(), row.data) << row.text;
    EXPECT_EQ(FromHere(reader), row.rest) << row.text;
  }
}

}  // namespace
}  // namespace ravo::DIUnicode
