#include <ravo/utils/strings/narrow.h>
#include <ravo/utils/strings/url.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(StrEncodeUrlA, Rows) {
  EXPECT_EQ(StrEncodeUrlA("a b&c"), "a+b%26c");
  EXPECT_EQ(StrEncodeUrlA("09AZaz@*-._"), "09AZaz@*-._");
  EXPECT_EQ(StrEncodeUrlA("+%~/"), "%2B%25%7E%2F");
  EXPECT_EQ(StrEncodeUrlA("\xE8\xFF"), "%E8%FF");
  EXPECT_EQ(StrEncodeUrlA(std::string_view("\0\n", 2)), "%00%0A");
  EXPECT_EQ(StrEncodeUrlA(""), "");
}
TEST(StrDecodeUrlA, Rows) {
  EXPECT_EQ(StrDecodeUrlA("a+b%26c"), "a b&c");
  EXPECT_EQ(StrDecodeUrlA("%4"), "%4");
  EXPECT_EQ(StrDecodeUrlA("%zz"), "%zz");
  EXPECT_EQ(StrDecodeUrlA("%"), "%");
  EXPECT_EQ(StrDecodeUrlA("%4z%41"), "%4zA");
  EXPECT_EQ(StrDecodeUrlA("%%41"), "%A");
  EXPECT_EQ(StrDecodeUrlA("%e8%E8"), "\xE8\xE8");
  EXPECT_EQ(StrDecodeUrlA("%00"), std::string(1, '\0'));
  EXPECT_EQ(StrDecodeUrlA(""), "");
}
TEST(StrDecodeUrlA, EveryByteComesBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  EXPECT_EQ(StrDecodeUrlA(StrEncodeUrlA(bytes)), bytes);
}

TEST(StrTimUriFragmentA, Rows) {
  EXPECT_EQ(StrTimUriFragmentA("http://x/y#z#w"), "http://x/y");
  EXPECT_EQ(StrTimUriFragmentA("http://x/y"), "http://x/y");
  EXPECT_EQ(StrTimUriFragmentA("#"), "");
}
TEST(StrTrimUriFragmentW, Rows) {
  EXPECT_EQ(StrTrimUriFragmentW(u"x#č"), u"x");
  EXPECT_EQ(StrTrimUriFragmentW(u""), u"");
}
TEST(StrExtractUriFragmentW, Rows) {
  EXPECT_EQ(StrExtractUriFragmentW(u"x#č#d"), u"č#d");
  EXPECT_EQ(StrExtractUriFragmentW(u"x#"), u"");
  EXPECT_EQ(StrExtractUriFragmentW(u"x"), u"");
}

TEST(WStrToAStr, UsesTheCodePageOfTheSystem) {
  EXPECT_EQ(WStrToAStr(u"K\u010D"), "K\xE8");
  EXPECT_EQ(WStrToAStr(u"\u4E00"), "?");
  EXPECT_EQ(WStrToAStr(u""), "");
}
TEST(WBufToAStr, TakesAPointerAndALength) {
  EXPECT_EQ(WBufToAStr(u"Kčs", 2), "K\xE8");
  EXPECT_EQ(WBufToAStr(nullptr, 0), "");
}

}  // namespace
}  // namespace ravo::DIUtils
