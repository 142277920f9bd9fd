#include "support/guarded_buffer.h"
#include <ravo/runtime/error.h>
#include <ravo/utils/strings/narrow.h>
#include <ravo/utils/strings/url.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <limits>
#include <random>

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

// The reference for the vectors: the rules byte by byte.
std::string EncodedPlainly(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == ' ') {
      result += '+';
    } else if (byte < 0x80 &&
               (std::isalnum(byte) != 0 || std::string_view("@*-._").find(c) != std::string_view::npos)) {
      result += c;
    } else {
      result += {'%', "0123456789ABCDEF"[byte >> 4], "0123456789ABCDEF"[byte & 15]};
    }
  }
  return result;
}

std::string DecodedPlainly(std::string_view text) {
  std::string result;
  for (; !text.empty(); text.remove_prefix(1)) {
    unsigned value = 0;
    const char* const end = text.data() + std::min<std::size_t>(text.size(), 3);
    const bool is_escape = text[0] == '%' && text.size() > 2 && text[1] != '-' &&
                           std::from_chars(text.data() + 1, end, value, 16).ptr == end;
    result += is_escape ? static_cast<char>(value) : text[0] == '+' ? ' ' : text[0];
    if (is_escape) text.remove_prefix(2);
  }
  return result;
}

TEST(StrDecodeUrlA, VectorsGiveWhatTheRulesGive) {
  constexpr std::string_view kPieces[] = {"a",  "Plain text_", "+",   "%C4%8D", "%",
                                          "%4", "%zz",         "%e9", "\xE8",   "/,"};
  std::mt19937 random(41);
  for (int round = 0; round < 5000; ++round) {
    std::string bytes;
    const std::size_t kinds = 1 + random() % std::size(kPieces);
    for (std::size_t count = random() % 60; count > 0; --count) bytes += kPieces[random() % kinds];
    const test::GuardedBuffer buffer(std::as_bytes(std::span(bytes)));
    const std::string_view text(reinterpret_cast<const char*>(buffer.Bytes().data()), bytes.size());
    ASSERT_EQ(StrDecodeUrlA(text), DecodedPlainly(text)) << bytes;
    ASSERT_EQ(StrEncodeUrlA(text), EncodedPlainly(text)) << bytes;
  }
}
TEST(StrEncodeUrlA, EveryByteAtEveryPlaceOfAVector) {
  for (unsigned byte = 0; byte < 256; ++byte) {
    for (std::size_t at = 0; at < 17; ++at) {
      std::string text(33, 'a');
      text[at] = static_cast<char>(byte);
      ASSERT_EQ(StrEncodeUrlA(text), EncodedPlainly(text)) << byte << ' ' << at;
      ASSERT_EQ(StrDecodeUrlA(text), DecodedPlainly(text)) << byte << ' ' << at;
    }
  }
}
TEST(StrEncodeUrlA, LongerThanOnePiece) {
  for (const std::size_t size : {1023u, 1024u, 1025u, 5000u}) {
    const std::string text = std::string(size, '/') + "a";
    ASSERT_EQ(StrEncodeUrlA(text), EncodedPlainly(text)) << size;
    ASSERT_EQ(StrDecodeUrlA(StrEncodeUrlA(text)), text) << size;
  }
}
TEST(StrEncodeUrlA, RaisesWhereTheWorstCaseCannotBeCounted) {
  // The text is never read, so no memory is needed.
  const std::string_view text("", std::numeric_limits<std::size_t>::max() / 3 + 1);
  EXPECT_THROW(static_cast<void>(StrEncodeUrlA(text)), OverflowError);
}

TEST(StrTimUriFragmentA, KeepsItsName) { EXPECT_EQ(StrTimUriFragmentA("a#b"), "a"); }
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
