#include <ravo/DIUtils.h>

#include <string>

#include <gtest/gtest.h>

// Search without case in texts and for texts beyond what is common.
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

}  // namespace
}  // namespace ravo::DIUtils
