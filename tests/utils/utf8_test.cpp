#include "support/guarded_buffer.h"
#include <ravo/runtime/error.h>
#include <ravo/runtime/text.h>
#include <ravo/utils/strings/utf8.h>

#include <random>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

struct Utf8Row {
  std::string_view bytes;
  std::u16string_view text;
};

constexpr Utf8Row kUtf8Rows[] = {
    {"", u""},
    {"K\xC4\x8D \xE2\x82\xAC", u"Kč €"},
    {"\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF", u"\x7F\u0080\u07FF\u0800\uFFFF"},
    {"\x80\xBFz", u"\uFFFD\uFFFDz"},
    {"\xC0\x80\xC1\xBF", u"\uFFFD\uFFFD"},
    {"\xE0\x80\x80\xE0\x9F\xBF", u"\uFFFD\uFFFD"},
    {"\xED\xA0\x80\xED\xBF\xBF", u"\xD800\xDFFF"},
    {"\xC4", u"\uFFFD"},
    {"\xC4z", u"\uFFFDz"},
    {"\xC4\xC4\x8D", u"\uFFFDč"},
    {"\xE2\x82", u"\uFFFD"},
    {"\xE2\x82z", u"\uFFFDz"},
    {"\xE2z\x82", u"\uFFFDz\uFFFD"},
    {"\xE2\xE2\x82\xAC", u"\uFFFD€"},
    {"\xF7\xBF\xBF\xBFz", u"\uFFFDz"},
    {"\xFB\xBF\xBF\xBF\xBFz", u"\uFFFDz"},
    {"\xFC\x80\x80\x80\x80\x80z", u"\uFFFDz"},
    {"\xFE\x80\x80\x80\x80\x80\xFF\x80\x80\x80\x80\x80", u"\uFFFD\uFFFD"},
    {"\xF0\x9F\x98z", u"\uFFFDz"},
    {"\xFF\x80\x80\x80\x80\xC4\x8D", u"\uFFFDč"},
    {"\xF8\x80\x80\x80", u"\uFFFD"},
};

TEST(StrDecodeUtf8, Rows) {
  for (const Utf8Row& row : kUtf8Rows) EXPECT_EQ(StrDecodeUtf8(row.bytes), row.text) << row.bytes;
}
TEST(StrDecodeUtf8, FourBytesAndMoreGiveOneReplacement) {
  EXPECT_EQ(StrDecodeUtf8("a\xF0\x9F\x98\x80z"), u"a\uFFFDz");
  EXPECT_EQ(StrDecodeUtf8("\xF0\x80\x80\x80"), u"\uFFFD");
}
TEST(StrDecodeUtf8, SurrogatesAreTakenAsTheyAre) {
  EXPECT_EQ(StrDecodeUtf8("\xED\xA0\x80z"), u"\xD800z");
  EXPECT_EQ(StrDecodeUtf8("\xED\xA0\xBD\xED\xB8\x80"), u"\xD83D\xDE00");
}
TEST(BufDecodeUtf8, TakesAPointerAndALength) {
  EXPECT_EQ(BufDecodeUtf8("\xC4\x8Dx", 2), u"č");
  EXPECT_EQ(BufDecodeUtf8("\xC4\x8Dx", 1), u"\uFFFD");
  EXPECT_EQ(BufDecodeUtf8(nullptr, 0), u"");
  EXPECT_EQ(BufDecodeUtf8("a\0b", 3), std::u16string_view(u"a\0b", 3));
}
TEST(StrCountUtf8Chars, CountsWhatDecodingGives) {
  for (const Utf8Row& row : kUtf8Rows) EXPECT_EQ(StrCountUtf8Chars(row.bytes), row.text.size()) << row.bytes;
}
TEST(BufCountUtf8Chars, TakesAPointerAndALength) {
  EXPECT_EQ(BufCountUtf8Chars("\xC4\x8Dx", 3), 2u);
  EXPECT_EQ(BufCountUtf8Chars(nullptr, 0), 0u);
}
TEST(StrEncodeUtf8, Rows) {
  EXPECT_EQ(StrEncodeUtf8(u"Kč €"), "K\xC4\x8D \xE2\x82\xAC");
  EXPECT_EQ(StrEncodeUtf8(u"\x7F\u0080\u07FF\u0800\uFFFF"), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
  EXPECT_EQ(StrEncodeUtf8(u"\xD83D\xDE00"), "\xED\xA0\xBD\xED\xB8\x80");
  EXPECT_EQ(StrEncodeUtf8(u""), "");
}
TEST(StrEncodeUtf8, LongerThanOnePiece) {
  for (const std::size_t size : {1023u, 1024u, 1025u, 5000u}) {
    const std::u16string text = std::u16string(size, u'€').append(u"č");
    const std::string bytes = StrEncodeUtf8(text);
    ASSERT_EQ(bytes.size(), 3 * size + 2) << size;
    ASSERT_EQ(bytes, ToUtf8(text)) << size;
  }
}
TEST(StrEncodeUtf8, RaisesWhereTheWorstCaseCannotBeCounted) {
  // The text is never read, so no memory is needed.
  const std::u16string_view text(u"", std::numeric_limits<std::size_t>::max() / 3 + 1);
  EXPECT_THROW(static_cast<void>(StrEncodeUtf8(text)), OverflowError);
}
TEST(BufEncodeUtf8, TakesAPointerAndALength) {
  EXPECT_EQ(BufEncodeUtf8(u"čx", 1), "\xC4\x8D");
  EXPECT_EQ(BufEncodeUtf8(nullptr, 0), "");
}

TEST(StrEncodeUtf8, EveryUnitComesBack) {
  for (unsigned code = 0; code < 0x10000; ++code) {
    const std::u16string text(3, static_cast<char16_t>(code));
    const std::string bytes = StrEncodeUtf8(text);
    ASSERT_EQ(StrDecodeUtf8(bytes), text) << code;
    ASSERT_EQ(StrCountUtf8Chars(bytes), 3u) << code;
    const bool is_surrogate = code >= 0xD800 && code <= 0xDFFF;
    ASSERT_EQ(bytes == ToUtf8(text), !is_surrogate) << code;
  }
}

// Random bytes with a guard page, at every length that a kernel might treat separately: decoding the whole
// equals decoding the parts, if the split is not before a trailing byte.
TEST(StrDecodeUtf8, CutsBeforeLeadsChangeNothing) {
  std::mt19937 random(13);
  const char pieces[] = "aaaaaaaaaaaaaaaa\xC4\x8D\xC5\xBE\xE2\x82\xAC\xF0\x9F\x98\x80\xED\xA0\xFF";
  for (int round = 0; round < 20000; ++round) {
    std::string bytes;
    while (bytes.size() < random() % 80)
      bytes += std::string_view(pieces).substr(random() % 30, 1 + random() % 20);
    const test::GuardedBuffer buffer(std::as_bytes(std::span(bytes)));
    const std::string_view whole(reinterpret_cast<const char*>(buffer.Bytes().data()), bytes.size());
    std::u16string wanted;
    for (std::size_t at = 0; at < whole.size();) {
      std::size_t end = at + 1;
      while (end < whole.size() && (static_cast<unsigned char>(whole[end]) & 0xC0) == 0x80) ++end;
      wanted += StrDecodeUtf8(whole.substr(at, end - at));
      at = end;
    }
    ASSERT_EQ(StrDecodeUtf8(whole), wanted);
    ASSERT_EQ(StrCountUtf8Chars(whole), wanted.size());
  }
}

}  // namespace
}  // namespace ravo::DIUtils
