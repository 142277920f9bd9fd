// Texts whose size in bytes needs more than 31 bits. Pages that are only read use no memory.
#include "support/effort.h"
#include <ravo/utils/strings/char_search.h>
#include <ravo/utils/strings/compare.h>
#include <ravo/utils/strings/natural_order.h>
#include <ravo/utils/strings/search.h>
#include <ravo/utils/strings/utf8.h>
#include <ravo/utils/strings/wildcards.h>

#include <cstdlib>
#include <memory>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

constexpr std::uint64_t kUnits = (std::uint64_t{1} << 30) + 5;

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};

// U+0000 throughout, except for the last unit.
class LargeTexts : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    if constexpr (sizeof(void*) > 4) memory_.reset(std::calloc(kUnits, sizeof(char16_t)));
    if (memory_) static_cast<char16_t*>(memory_.get())[kUnits - 1] = u'x';
  }
  static void TearDownTestSuite() { memory_.reset(); }

  void SetUp() override {
    if (sizeof(void*) <= 4) GTEST_SKIP() << "no process of 32 bits holds such a text beside its libraries";
    if (!memory_) GTEST_SKIP() << "this machine does not give so much memory";
  }

  static std::u16string_view Units() {
    return {static_cast<const char16_t*>(memory_.get()), static_cast<std::size_t>(kUnits)};
  }
  static std::string_view Bytes() {
    return {static_cast<const char*>(memory_.get()), static_cast<std::size_t>(2 * kUnits)};
  }

  inline static std::unique_ptr<void, Free> memory_;
};

TEST_F(LargeTexts, AreSearchedToTheEnd) {
  EXPECT_EQ(StrPosW(u"x", Units()), kUnits);
  EXPECT_EQ(StrPosIW(u"X", Units()), kUnits);
  EXPECT_EQ(StrPosA("x", Bytes()), 2 * kUnits - 1);
  EXPECT_EQ(StrPosW(u"x", Units(), static_cast<std::size_t>(kUnits + 1)), 0u);
}
TEST_F(LargeTexts, CharactersAreFoundAndCounted) {
  if (test::kSanitized) GTEST_SKIP() << "byte by byte through two gigabytes: the other builds do";
  EXPECT_EQ(StrPosCharW(u'x', Units()), kUnits);
  EXPECT_EQ(StrPosCharBackA('x', Bytes()), 2 * kUnits - 1);
  EXPECT_EQ(StrCountCharW(u'\0', Units()), kUnits - 1);
}
TEST_F(LargeTexts, LengthsAreCompared) {
  const std::u16string_view shorter = Units().substr(0, static_cast<std::size_t>(kUnits - 3));
  EXPECT_EQ(StrCompA(Bytes(), ""), static_cast<std::int64_t>(2 * kUnits));
  EXPECT_EQ(StrCompNumW(u"", Units()), -static_cast<std::int64_t>(kUnits));
  EXPECT_EQ(StrCompIW(Units(), shorter), 3);
  EXPECT_FALSE(StrSameW(Units(), shorter));
}
TEST_F(LargeTexts, MatchMasks) {
  EXPECT_TRUE(StrMatchWildW(Units(), u"*x"));
  EXPECT_FALSE(StrMatchWildW(Units(), u"*y*"));
}
TEST_F(LargeTexts, OfUtf8AreCounted) { EXPECT_EQ(StrCountUtf8Chars(Bytes()), 2 * kUnits); }

}  // namespace
}  // namespace ravo::DIUtils
