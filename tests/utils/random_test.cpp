#include <ravo/runtime/error.h>
#include <ravo/utils/random.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using Keys = std::vector<std::uint32_t>;

constexpr int kDraws = 5000;

// A text whose bytes are the keys.
std::string TextOf(std::size_t length) {
  std::string text;
  for (std::size_t i = 0; i < length; ++i) text += static_cast<char>(i * 37 + 1);
  return text;
}

Keys KeysOf(const std::string& text) {
  Keys keys;
  for (const char byte : text) keys.push_back(static_cast<unsigned char>(byte));
  return keys;
}

// Seeding by keys by definition, over words of 64 bits, with the number of steps as a parameter.
class PlainTwister {
 public:
  explicit PlainTwister(const Keys& keys, std::size_t steps) {
    Seed(19650218);
    std::size_t i = 1;
    std::size_t j = 0;
    for (std::size_t k = 0; k < steps; ++k) {
      mt_[i] = ((mt_[i] ^ (Before(i) * 1664525)) + keys[j] + j) & 0xFFFFFFFF;
      if (++i == 624) mt_[0] = mt_[623], i = 1;
      if (++j == keys.size()) j = 0;
    }
    for (int k = 0; k < 623; ++k) {
      mt_[i] = ((mt_[i] ^ (Before(i) * 1566083941)) - i) & 0xFFFFFFFF;
      if (++i == 624) mt_[0] = mt_[623], i = 1;
    }
    mt_[0] = 0x80000000;
  }

  // Returns the standard library's generator in this state: it reads and writes its words as text.
  [[nodiscard]] std::mt19937 Generator() const {
    std::string state;
    for (const std::uint64_t word : mt_) state += std::to_string(word) + " ";
    std::istringstream in(state + "624");
    std::mt19937 generator;
    in >> generator;
    return generator;
  }

 private:
  void Seed(std::uint64_t seed) {
    mt_.assign(624, seed);
    for (std::size_t i = 1; i < 624; ++i) mt_[i] = (Before(i) * 1812433253 + i) & 0xFFFFFFFF;
  }
  [[nodiscard]] std::uint64_t Before(std::size_t i) const { return mt_[i - 1] ^ (mt_[i - 1] >> 30); }

  std::vector<std::uint64_t> mt_;
};

void ExpectSame(TMT19937& ours, std::mt19937 theirs) {
  for (int i = 0; i < kDraws; ++i) ASSERT_EQ(ours.genrand_int32(), theirs()) << i;
}

TEST(TMT19937, UnseededIsSeed5489) {
  TMT19937 fresh;
  EXPECT_EQ(fresh.genrand_int32(), 3499211612u);
  TMT19937 again;
  ExpectSame(again, std::mt19937());
  TMT19937 many;
  for (int i = 1; i < 10'000; ++i) static_cast<void>(many.genrand_int32());
  EXPECT_EQ(many.genrand_int32(), 4123659995u);
}

TEST(TMT19937, SeedsAsTheStandardLibraryDoes) {
  for (const std::uint32_t seed : {0u, 1u, 5489u, 0x80000000u, 0xFFFFFFFFu}) {
    TMT19937 ours(seed);
    ExpectSame(ours, std::mt19937(seed));
  }
}

TEST(TMT19937, SeedingAgainStartsOver) {
  TMT19937 ours(7);
  static_cast<void>(ours.genrand_int32());
  ours.init_genrand(5489);
  ExpectSame(ours, std::mt19937());
  ours.init_by_StrA("abc");
  TMT19937 other("abc");
  EXPECT_EQ(ours.genrand_int32(), other.genrand_int32());
}

// The first numbers of the authors' own example.
TEST(InitByArray, KnownValues) {
  TMT19937 ours(Keys{0x123, 0x234, 0x345, 0x456});
  for (const std::uint32_t expected : {1067595299u, 955945823u, 477289528u, 4107218783u, 4228976476u})
    EXPECT_EQ(ours.genrand_int32(), expected);
}

TEST(InitByArray, TakesTheLargerOf624AndTheKeys) {
  for (const std::size_t count : {1u, 4u, 623u, 624u, 625u, 1000u}) {
    Keys keys(count);
    std::iota(keys.begin(), keys.end(), 0xFFFFFFF0u);
    TMT19937 ours(keys);
    ExpectSame(ours, PlainTwister(keys, std::max<std::size_t>(624, count)).Generator());
  }
}

TEST(InitByArray, RaisesWithoutKeys) {
  TMT19937 ours(1);
  EXPECT_THROW(ours.init_by_array({}), RangeError);
  ExpectSame(ours, std::mt19937(1));
  EXPECT_THROW(TMT19937(Keys{}), RangeError);
}

TEST(InitByStrA, ShortTextsSeedAsTheirBytes) {
  for (const std::size_t length : {1u, 2u, 255u, 622u, 623u}) {
    TMT19937 ours(TextOf(length));
    TMT19937 other(KeysOf(TextOf(length)));
    for (int i = 0; i < kDraws; ++i) ASSERT_EQ(ours.genrand_int32(), other.genrand_int32()) << length;
  }
}

TEST(InitByStrA, GetsOneStepMoreFrom624BytesOn) {
  for (const std::size_t length : {624u, 625u, 1000u}) {
    TMT19937 ours(TextOf(length));
    ExpectSame(ours, PlainTwister(KeysOf(TextOf(length)), length + 1).Generator());
    TMT19937 again(TextOf(length));
    TMT19937 other(KeysOf(TextOf(length)));
    EXPECT_NE(again.genrand_int32(), other.genrand_int32());
  }
}

TEST(InitByStrA, RaisesForAnEmptyText) {
  TMT19937 ours(1);
  EXPECT_THROW(ours.init_by_StrA(""), RangeError);
  ExpectSame(ours, std::mt19937(1));
  EXPECT_THROW(TMT19937(std::string_view{}), RangeError);
}

TEST(GenrandInt31, IsTheDrawWithoutItsLowestBit) {
  TMT19937 ours(3);
  std::mt19937 theirs(3);
  for (int i = 0; i < kDraws; ++i) ASSERT_EQ(ours.genrand_int31(), theirs() >> 1);
}

TEST(GenrandInt63, RaisesWhereTheFirstDrawHasBit31) {
  TMT19937 ours(3);
  std::mt19937 theirs(3);
  int raised = 0;
  for (int i = 0; i < kDraws; ++i) {
    const std::uint64_t low = theirs();
    if (low >= 0x80000000) {
      ++raised;
      ASSERT_THROW(static_cast<void>(ours.genrand_int63()), RangeError);
      continue;
    }
    const std::uint64_t high = theirs();
    ASSERT_EQ(static_cast<std::uint64_t>(ours.genrand_int63()), low | (high >> 1) << 32);
  }
  EXPECT_GT(raised, kDraws / 3);
  EXPECT_LT(raised, kDraws / 3 * 2);
}

TEST(GenrandInt64, RaisesWhereEitherDrawHasBit31) {
  TMT19937 ours(3);
  std::mt19937 theirs(3);
  int given = 0;
  for (int i = 0; i < kDraws; ++i) {
    const std::uint64_t low = theirs();
    const std::uint64_t high = low < 0x80000000 ? theirs() : 0x80000000;
    if (high >= 0x80000000) {
      ASSERT_THROW(static_cast<void>(ours.genrand_int64()), RangeError);
      continue;
    }
    ++given;
    ASSERT_EQ(static_cast<std::uint64_t>(ours.genrand_int64()), low | high << 32);
  }
  EXPECT_GT(given, kDraws / 6);
}

TEST(GenrandReal, DividesTheDraws) {
  TMT19937 ours(4);
  std::mt19937 theirs(4);
  for (int i = 0; i < kDraws; ++i) {
    ASSERT_EQ(ours.genrand_real1(), static_cast<double>(theirs()) / 4294967295.0);
    ASSERT_EQ(ours.genrand_real2(), static_cast<double>(theirs()) / 4294967296.0);
    ASSERT_EQ(ours.genrand_real3(), (static_cast<double>(theirs()) + 0.5) / 4294967296.0);
    const std::uint64_t a = theirs() >> 5;
    const std::uint64_t b = theirs() >> 6;
    ASSERT_EQ(ours.genrand_res53(), static_cast<double>(a * 67108864 + b) / 9007199254740992.0);
  }
}

TEST(StrRandomA, TakesEachDrawModuloTheAlphabet) {
  const std::string text = StrRandomA("seed", "abcdefg", 1000);
  std::mt19937 theirs = PlainTwister(KeysOf("seed"), 624).Generator();
  ASSERT_EQ(text.size(), 1000u);
  for (const char ch : text) ASSERT_EQ(ch, static_cast<char>('a' + theirs() % 7));
}

TEST(StrRandomW, IsAPureFunctionOfItsArguments) {
  const std::u16string text = StrRandomW("seed", u"áčďéěíň", 1000);
  EXPECT_EQ(text, StrRandomW("seed", u"áčďéěíň", 1000));
  EXPECT_EQ(text, StrRandom("seed", u"áčďéěíň", 1000));
  EXPECT_NE(text, StrRandomW("seed2", u"áčďéěíň", 1000));
  EXPECT_EQ(StrRandomW("seed", u"áčďéěíň", 10), text.substr(0, 10));
  const std::string narrow = StrRandomA("seed", "0123456", 1000);
  for (std::size_t i = 0; i < text.size(); ++i) ASSERT_EQ(text[i], u"áčďéěíň"[narrow[i] - '0']);
}

TEST(StrRandomA, RaisesForACountThatNoTextHas) {
  constexpr auto kMost = std::numeric_limits<std::ptrdiff_t>::max();
  for (const std::ptrdiff_t count : {std::ptrdiff_t{-1}, std::numeric_limits<std::ptrdiff_t>::min()}) {
    EXPECT_THROW(static_cast<void>(StrRandomA("seed", "abc", count)), RangeError);
    EXPECT_THROW(static_cast<void>(StrRandomW("seed", u"abc", count)), RangeError);
    EXPECT_THROW(static_cast<void>(StrRandom("seed", u"abc", count)), RangeError);
    EXPECT_THROW(static_cast<void>(StrRandomA("seed", "", count)), RangeError);
  }
  EXPECT_THROW(static_cast<void>(StrRandomW("seed", u"abc", kMost)), RangeError);
  EXPECT_THROW(static_cast<void>(StrRandom("seed", u"abc", kMost)), RangeError);
  if (std::cmp_greater(kMost, std::string().max_size())) {
    EXPECT_THROW(static_cast<void>(StrRandomA("seed", "abc", kMost)), RangeError);
  }
}

TEST(StrRandomA, RaisesOnlyWhereItDraws) {
  EXPECT_EQ(StrRandomA("", "", 0), "");
  EXPECT_EQ(StrRandomW("", u"", 0), u"");
  EXPECT_THROW(static_cast<void>(StrRandomA("", "abc", 1)), RangeError);
  EXPECT_THROW(static_cast<void>(StrRandomA("seed", "", 1)), DivisionByZero);
  EXPECT_THROW(static_cast<void>(StrRandomW("", u"abc", 1)), RangeError);
  EXPECT_THROW(static_cast<void>(StrRandomW("seed", u"", 1)), DivisionByZero);
  EXPECT_THROW(static_cast<void>(StrRandomA("", "", 1)), RangeError);
}

}  // namespace
}  // namespace ravo::DIUtils
