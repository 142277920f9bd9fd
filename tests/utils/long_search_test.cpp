#include <ravo/DIUtils.h>

#include <string>

#include <gtest/gtest.h>

// Case-insensitive search in and for unusually long texts.
namespace ravo::DIUtils {
namespace {

TEST(StrPosI, FindsFarBehind) {
  std::u16string text(100'000, u'a');
  for (const char16_t c : {u'ž', u'e', u'n', u'a'}) text.push_back(c);
  EXPECT_EQ(StrPosI(u"ŽENA", text), 100'001U);
  EXPECT_EQ(StrPosI(u"ŽENY", text), 0U);
  std::string bytes(100'000, 'a');
  for (const char c : {'x', 'e', 'n', 'a'}) bytes.push_back(c);
  EXPECT_EQ(StrPosIA("XENA", bytes), 100'001U);
  EXPECT_EQ(StrPosIA("XENY", bytes), 0U);
}

TEST(StrPosI, FindsLongTexts) {
  for (const std::size_t length : {100U, 1'000U, 10'000U, 100'000U}) {
    const std::u16string search(length, u'Č');
    std::u16string text(7, u'a');
    text.resize(7 + length, u'č');
    EXPECT_EQ(StrPosI(search, text), 8U) << length;
    EXPECT_EQ(StrPosI(search, std::u16string_view(text).substr(0, text.size() - 1)), 0U) << length;
  }
}

// A long text that almost matches everywhere, and then matches.
TEST(StrPos, FindsLongTexts) {
  for (const std::size_t length : {2U, 17U, 18U, 19U, 20U, 100U, 1'000U}) {
    for (const std::size_t differing : {std::size_t{1}, length / 2, length - 2}) {
      const std::u16string search = u"<" + std::u16string(length, u'-').append(1, u'>');
      std::u16string near = search;
      near[differing] = u'+';
      std::u16string text = near;
      text.append(near).append(search).append(near);
      EXPECT_EQ(StrPosW(search, text), 2 * near.size() + 1) << length << ", " << differing;
      EXPECT_EQ(StrPosW(search, std::u16string_view(text).substr(0, 3 * near.size() - 1)), 0U);
      const std::string bytes(text.begin(), text.end());
      EXPECT_EQ(StrPosA(std::string(search.begin(), search.end()), bytes), 2 * near.size() + 1);
    }
  }
}

// The reference: compares folded texts, position by position.
std::size_t PlainPosI(std::u16string_view search, std::u16string_view text) {
  const auto folded = [](std::u16string_view units) {
    std::u16string result(units);
    for (char16_t& c : result) c = DIUnicode::CharToCaseFoldW(c);
    return result;
  };
  return folded(text).find(folded(search)) + 1;
}

// Letters with many variants are searched in overlapping blocks of the text.
TEST(StrPosI, FindsLettersOfManyVariantsAnywhere) {
  std::u16string text;
  for (std::size_t i = 0; text.size() < 2'000; ++i) text += i % 7 == 0 ? u"Σφάλμα " : u"Счёт ";
  for (const std::u16string_view word : {u"ΪΧΝΟΣ", u"ίχνος", u"Ёж", u"žЁ", u"Ёž"}) {
    for (std::size_t place = 0; place < text.size(); place += 3) {
      std::u16string with = text;
      with.replace(place, word.size(), word);
      EXPECT_EQ(StrPosI(word, with), PlainPosI(word, with)) << place;
    }
    EXPECT_EQ(StrPosI(word, text), PlainPosI(word, text));
    EXPECT_EQ(StrPosI(word, word.substr(1)), 0U);
  }
  for (const std::size_t length : {2U, 127U, 128U, 129U, 500U, 600U}) {
    const std::u16string search = std::u16string(length - 1, u'\u0439') + u'\u0401';
    const std::u16string found = std::u16string(1'000, u'\u0419') + u'\u0451';
    EXPECT_EQ(StrPosI(search, found), PlainPosI(search, found)) << length;
    EXPECT_EQ(StrPosI(search, found.substr(0, 1'000)), 0U) << length;
  }
}

}  // namespace
}  // namespace ravo::DIUtils
