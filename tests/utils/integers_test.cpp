#include <ravo/utils/integers.h>

#include <bitset>
#include <limits>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

constexpr std::uint32_t kTop = 0x80000000;

TEST(CountBitsSet, CountsThemInEveryByte) {
  EXPECT_EQ(CountBitsSet(0), 0u);
  EXPECT_EQ(CountBitsSet(0xFFFFFFFF), 32u);
  EXPECT_EQ(CountBitsSet(0x80000001), 2u);
  for (std::uint32_t value = 0; value < 70'000; ++value) {
    ASSERT_EQ(CountBitsSet(value), std::bitset<32>(value).count());
    ASSERT_EQ(CountBitsSet(value << 15), std::bitset<32>(value << 15).count());
  }
}

TEST(LeftMostBit, IsTheHighestAndRightMostTheLowest) {
  EXPECT_EQ(LeftMostBit(0), 0xFFFFFFFFu);
  EXPECT_EQ(RightMostBit(0), 0xFFFFFFFFu);
  EXPECT_EQ(LeftMostBit(1), 0u);
  EXPECT_EQ(RightMostBit(1), 0u);
  EXPECT_EQ(LeftMostBit(kTop), 31u);
  for (std::uint32_t high = 0; high < 32; ++high) {
    for (std::uint32_t low = 0; low <= high; ++low) {
      const std::uint32_t value = std::uint32_t{1} << high | std::uint32_t{1} << low;
      EXPECT_EQ(LeftMostBit(value), high);
      EXPECT_EQ(RightMostBit(value), low);
    }
  }
}

TEST(BitSet, TakesTheIndexModulo32) {
  EXPECT_EQ(BitSet(0, 0), 1u);
  EXPECT_EQ(BitSet(0, 31), kTop);
  EXPECT_EQ(BitSet(0, 32), 1u);
  EXPECT_EQ(BitSet(5, 33), 7u);
  EXPECT_EQ(BitClear(7, 1), 5u);
  EXPECT_EQ(BitClear(7, 33), 5u);
  EXPECT_EQ(BitClear(5, 1), 5u);
  EXPECT_EQ(BitSetTo(0, 4, true), 16u);
  EXPECT_EQ(BitSetTo(16, 4, false), 0u);
  EXPECT_EQ(BitSetTo(16, 36, false), 0u);
  EXPECT_TRUE(BitTest(kTop, 31));
  EXPECT_TRUE(BitTest(kTop, 63));
  EXPECT_FALSE(BitTest(kTop, 30));
}

TEST(GCD, OfZeroIsTheOther) {
  EXPECT_EQ(GCD(12, 18), 6u);
  EXPECT_EQ(GCD(18, 12), 6u);
  EXPECT_EQ(GCD(7, 0), 7u);
  EXPECT_EQ(GCD(0, 7), 7u);
  EXPECT_EQ(GCD(0, 0), 0u);
  EXPECT_EQ(GCD(0xFFFFFFFF, 0xFFFFFFFA), 5u);
  EXPECT_EQ(GCD(1, 0xFFFFFFFF), 1u);
}

TEST(Min, OfEachWidth) {
  constexpr std::int32_t kSmall = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kHuge = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(Min(kSmall, 1), kSmall);
  EXPECT_EQ(Max(kSmall, 1), 1);
  EXPECT_EQ(Min(kTop, 1u), 1u);
  EXPECT_EQ(Max(kTop, 1u), kTop);
  EXPECT_EQ(Min(kHuge, std::int64_t{-1}), -1);
  EXPECT_EQ(Max(kHuge, std::int64_t{-1}), kHuge);
}

TEST(Min3, FindsItAtEveryPlace) {
  const std::int32_t orders[][3] = {{-1, 2, 3}, {2, -1, 3}, {2, 3, -1}, {3, -1, 2}};
  for (const auto& [a, b, c] : orders) {
    EXPECT_EQ(Min3(a, b, c), -1);
    EXPECT_EQ(Max3(a, b, c), 3);
    EXPECT_EQ(Min(std::int64_t{a}, std::int64_t{b}, std::int64_t{c}), -1);
    EXPECT_EQ(Max(std::int64_t{a}, std::int64_t{b}, std::int64_t{c}), 3);
    const auto unsigned_of = [](std::int32_t value) { return static_cast<std::uint32_t>(value); };
    EXPECT_EQ(Min(unsigned_of(a), unsigned_of(b), unsigned_of(c)), 2u);
    EXPECT_EQ(Max(unsigned_of(a), unsigned_of(b), unsigned_of(c)), 0xFFFFFFFFu);
  }
}

}  // namespace
}  // namespace ravo::DIUtils
