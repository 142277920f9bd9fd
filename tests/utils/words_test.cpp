#include <ravo/utils/strings/char_tests.h>
#include <ravo/utils/strings/words.h>

#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(ExtractWordA, AtThePositionOrBehindIt) {
  EXPECT_EQ(ExtractWordA("ab, cd", ", "), "ab");
  EXPECT_EQ(ExtractWordA("ab, cd", ", ", 2), "b");
  EXPECT_EQ(ExtractWordA("ab, cd", ", ", 3), "cd");
  EXPECT_EQ(ExtractWordA("ab, cd", ", ", 7), "");
  EXPECT_EQ(ExtractWordA("ab, cd", ", ", 0), "ab");
  EXPECT_EQ(ExtractWordA("ab", ""), "ab");
  EXPECT_EQ(ExtractWordA("", ","), "");
}

TEST(ExtractNextWordA, GivesWordAfterWord) {
  std::size_t position = 1;
  EXPECT_EQ(ExtractNextWordA(",ab,,cd,", ",", position), "ab");
  EXPECT_EQ(position, 4u);
  EXPECT_EQ(ExtractNextWordA(",ab,,cd,", ",", position), "cd");
  EXPECT_EQ(position, 8u);
  EXPECT_EQ(ExtractNextWordA(",ab,,cd,", ",", position), "");
  EXPECT_EQ(position, 9u);
  position = 100;
  EXPECT_EQ(ExtractNextWordA("ab", ",", position), "");
  EXPECT_EQ(position, 3u);
}
TEST(ExtractNextWordA, WithATest) {
  std::size_t position = 0;
  EXPECT_EQ(ExtractNextWordA("ab1cd", CharIsDigitA, position), "ab");
  EXPECT_EQ(ExtractNextWordA("ab1cd", CharIsDigitA, position), "cd");
}
TEST(ExtractNextWordW, GivesWordAfterWord) {
  std::size_t position = 1;
  std::vector<std::u16string> words;
  do {
    words.push_back(ExtractNextWordW(u"má;dáti;dal", u";", position));
  } while (!words.back().empty());
  EXPECT_EQ(words, (std::vector<std::u16string>{u"má", u"dáti", u"dal", u""}));
}
TEST(ExtractNextWordW, WithATest) {
  std::size_t position = 1;
  EXPECT_EQ(ExtractNextWordW(u"\u00A0má dáti", CharIsWhiteSpaceW, position), u"má");
  EXPECT_EQ(ExtractNextWordW(u"\u00A0má dáti", CharIsWhiteSpaceW, position), u"dáti");
}
TEST(ExtractNextWord, IsTheWideMember) {
  std::size_t position = 1;
  EXPECT_EQ(ExtractNextWord(u"a b", u" ", position), u"a");
  EXPECT_EQ(ExtractNextWord(u"a b", CharIsWhiteSpaceW, position), u"b");
}

TEST(ExtractWordStartsA, Rows) {
  EXPECT_EQ(ExtractWordStartsA("Jan Amos-K"), "JAK");
  EXPECT_EQ(ExtractWordStartsA("Jan Amos K", 2), "JA");
  EXPECT_EQ(ExtractWordStartsA("a b", 0), "");
  EXPECT_EQ(ExtractWordStartsA(" .,"), "");
}
// Letters, digits and "_" form words; other ASCII characters do not, and bytes past ASCII do.
TEST(ExtractWordStartsA, EveryByteBelongsOrSeparates) {
  constexpr std::string_view kWordCharacters =
      "_0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  for (int byte = 1; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    const bool belongs = byte >= 0x80 || kWordCharacters.find(c) != std::string_view::npos;
    EXPECT_EQ(ExtractWordStartsA(std::string("x") + c + "b"), belongs ? "x" : "xb") << byte;
  }
}

TEST(ExtractWordStartsW, Rows) {
  EXPECT_EQ(ExtractWordStartsW(u"Jan Amos Komenský"), u"JAK");
  EXPECT_EQ(ExtractWordStartsW(u"Řehoř\u00A0Čapek (ml.)"), u"ŘČm");
  EXPECT_EQ(ExtractWordStartsW(u""), u"");
}

}  // namespace
}  // namespace ravo::DIUtils
