#include <ravo/runtime/big_natural.h>

#include <string>

#include <gtest/gtest.h>

namespace ravo {
namespace {

TEST(BigNatural, BitLength) {
  EXPECT_EQ(BigNatural(0).BitLength(), 0);
  EXPECT_TRUE(BigNatural(0).IsZero());
  EXPECT_EQ(BigNatural(1).BitLength(), 1);
  EXPECT_EQ(BigNatural(0xFFFFFFFF).BitLength(), 32);
  EXPECT_EQ(BigNatural(0x100000000).BitLength(), 33);
  EXPECT_EQ(BigNatural(~std::uint64_t{0}).BitLength(), 64);
}

TEST(BigNatural, DigitsReadTheNumber) {
  EXPECT_EQ(BigNatural("0"), BigNatural(0));
  EXPECT_EQ(BigNatural("000000000000000000001"), BigNatural(1));
  EXPECT_EQ(BigNatural("18446744073709551615"), BigNatural(~std::uint64_t{0}));
  EXPECT_EQ(BigNatural("1000000000"), BigNatural(1000000000));
}

TEST(BigNatural, ShiftMultipliesByPowersOfTwo) {
  BigNatural number(3);
  number.ShiftLeft(100);
  EXPECT_EQ(number, BigNatural("3802951800684688204490109616128"));
  BigNatural zero(0);
  zero.ShiftLeft(100);
  EXPECT_TRUE(zero.IsZero());
}

TEST(BigNatural, PowersOfFive) {
  BigNatural number(1);
  number.MultiplyByPowerOf5(30);
  EXPECT_EQ(number, BigNatural("931322574615478515625"));
  number.ShiftLeft(30);
  EXPECT_EQ(number, BigNatural("1" + std::string(30, '0')));
}

TEST(BigNatural, SumsAndDifferencesCarryThroughAllLimbs) {
  BigNatural power(1);
  power.ShiftLeft(128);
  BigNatural below = power;
  below.Subtract(BigNatural(1));
  EXPECT_EQ(below.BitLength(), 128);
  EXPECT_LT(below, power);
  below.Add(BigNatural(1));
  EXPECT_EQ(below, power);
  below.Subtract(power);
  EXPECT_TRUE(below.IsZero());
}

TEST(BigNatural, OrderLooksAtTheHighestLimbFirst) {
  EXPECT_LT(BigNatural(0x1FFFFFFFF), BigNatural(0x200000000));
  EXPECT_GT(BigNatural(0x100000000), BigNatural(0xFFFFFFFF));
  EXPECT_EQ(BigNatural(7) <=> BigNatural(7), std::strong_ordering::equal);
}

TEST(BigDecimalNatural, DigitsHaveNoLeadingZeros) {
  EXPECT_EQ(BigDecimalNatural(0).Digits(), "");
  EXPECT_EQ(BigDecimalNatural(7).Digits(), "7");
  EXPECT_EQ(BigDecimalNatural(1000000000).Digits(), "1000000000");
  EXPECT_EQ(BigDecimalNatural(~std::uint64_t{0}).Digits(), "18446744073709551615");
}

TEST(BigDecimalNatural, PowersOfTwoAndFive) {
  BigDecimalNatural number(1);
  number.MultiplyByPowerOf2(100);
  EXPECT_EQ(number.Digits(), "1267650600228229401496703205376");
  number.MultiplyByPowerOf5(100);
  EXPECT_EQ(number.Digits(), "1" + std::string(100, '0'));
}

}  // namespace
}  // namespace ravo
