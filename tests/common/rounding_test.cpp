#include "support/effort.h"
#include "support/float_environment.h"
#include "support/plain_rounding.h"
#include "support/tried.h"
#include <ravo/common/rounding.h>
#include <ravo/common/rounding_steps.h>

#include <bit>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

TEST(RoundValue, Rows) {
  struct Row {
    std::int64_t raw;
    TRoundType type;
    int decimals;
    std::int64_t result;
  };
  constexpr Row rows[] = {
      {12340, rtUp, 2, 12400},
      {-12340, rtUp, 2, -12400},
      {-12390, rtDown, 2, -12300},
      {12390, rtDown, 2, 12300},
      {12000, rtUp, 2, 12000},
      {0, rtUp, 2, 0},
      {1, rtUp, 0, 10000},
      {-1, rtUp, 0, -10000},
      {1, rtDown, 0, 0},
      {10050, rtMath, 2, 10100},
      {-10050, rtMath, 2, -10100},
      {10049, rtMath, 2, 10000},
      {25000, rtMath, 0, 30000},
      {-25000, rtMath, 0, -30000},
      {24999, rtMath, 0, 20000},
      {1, rtMath, 4, 1},
      {-7, rtUp, 4, -7},
      {12345678, rtMath, -1, 12300000},
      {12500000, rtMath, -2, 13000000},
      {10000, rtUp, -3, 10000000},
      {123456789, rtMath, -4, 100000000},
      {12345, rtMath, 6, 12345},
      {15, rtUp, 3, 20},
      {kLeast, rtMath, 4, kLeast},
      {21474836460000, rtUp, 0, 21474836460000},
      {21474836480000, rtUp, 0, -21474836480000},  // 2^31 wraps
      {21474836490000, rtDown, 0, -21474836470000},
      {42949672960000, rtUp, 0, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(RoundValue({row.raw}, row.type, static_cast<std::int8_t>(row.decimals)).raw, row.result)
        << row.raw << " type " << int{static_cast<std::uint8_t>(row.type)} << " decimals " << row.decimals;
  }
}

TEST(RoundValue, CeilingAndFloorWrapAt32Bits) {
  EXPECT_EQ(RoundValue({21474836470001}, rtUp, 0).raw, -21474836480000);
  EXPECT_EQ(RoundValue({-21474836470001}, rtUp, 0).raw, 21474836480000);
}

TEST(RoundValue, UnknownTypeReturnsTheValue) {
  for (const int type : {3, 4, 255}) {
    EXPECT_EQ(RoundValue({12345}, static_cast<TRoundType>(type), 0).raw, 12345);
    EXPECT_EQ(RoundValue({12345}, static_cast<TRoundType>(type), -128).raw, 12345);
    EXPECT_EQ(RoundValueFloat(1.2345, static_cast<TRoundType>(type), 0), 1.2345);
  }
}

TEST(RoundValue, DecimalsThatGiveNoScaleRaise) {
  for (const int decimals : {-128, -6, -5, 15, 127}) {
    for (const TRoundType type : {rtUp, rtDown, rtMath}) {
      EXPECT_THROW(static_cast<void>(RoundValue({10000}, type, static_cast<std::int8_t>(decimals))),
                   FloatError);
    }
  }
}

TEST(RoundValueFloat, Rows) {
  struct Row {
    double value;
    TRoundType type;
    int decimals;
    double result;
  };
  constexpr Row rows[] = {
      {1.234, rtUp, 2, 1.24},       {3.0, rtDown, 0, 2.0},        {2.0, rtDown, 0, 2.0},
      {-1.234, rtDown, 2, -1.24},   {1.25, rtDown, 2, 1.24},      {1.23, rtDown, 2, 1.22},
      {1.005, rtMath, 2, 1.0},      {2.5, rtMath, 0, 3.0},        {-2.5, rtMath, 0, -3.0},
      {252.85, rtMath, 1, 252.8},   {0.0, rtMath, 2, 0.0},        {1e15, rtMath, 2, 1e15},
      {1234.0, rtMath, -2, 1200.0}, {4294967296.5, rtUp, 0, 1.0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(RoundValueFloat(row.value, row.type, static_cast<std::int8_t>(row.decimals)), row.result)
        << row.value << " decimals " << row.decimals;
  }
}

TEST(RoundValueFloat, CeilingOfANegativeValueFlipsItsSign) {
  EXPECT_EQ(RoundValueFloat(-1.234, rtUp, 2), 1.23);
  EXPECT_TRUE(std::signbit(RoundValueFloat(-0.4, rtUp, 0)));
}

TEST(RoundValueFloat, FloorLowersWhatIsExactAlready) {
  EXPECT_EQ(RoundValueFloat(3.0, rtDown, 0), 2.0);
  EXPECT_EQ(RoundValueFloat(2.0, rtDown, 0), 2.0);
}

TEST(RoundValueFloat, WhatDoesNotFitRaises) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double value : {kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN(), 1e300, -1e19}) {
    for (const TRoundType type : {rtUp, rtDown, rtMath}) {
      EXPECT_THROW(static_cast<void>(RoundValueFloat(value, type, 0)), FloatError) << value;
    }
  }
}

TEST(RoundDPH, Rows) {
  struct Row {
    std::int64_t raw;
    char16_t kind;
    std::int64_t result;
  };
  constexpr Row rows[] = {
      {122400, u'P', 120000},
      {122500, u'P', 125000},
      {127500, u'P', 130000},
      {-122500, u'P', -125000},
      {0, u'P', 0},
      {127499, u'P', 125000},
      {-127500, u'P', -130000},
      {2499, u'P', 0},
      {-2500, u'P', -5000},
      {123490, u'N', 124000},
      {123500, u'M', 120000},
      {125000, u'M', 130000},
      {123450, u'H', 123500},
      {123449, u'H', 123400},
      {123500, u'D', 124000},
      {-123500, u'D', -124000},
      {kMost, u'P', 9223372036854775000},
      {kLeast, u'P', -9223372036854775000},
  };
  for (const Row& row : rows) EXPECT_EQ(RoundDPH({row.raw}, row.kind).raw, row.result) << row.raw;
}

// A ceiling of 2147483648 tenths is -2147483648 in 32 bits.
TEST(RoundDPH, TenthsUpwardsWrapAt32Bits) {
  EXPECT_EQ(RoundDPH({2147483647000}, u'N').raw, 2147483647000);
  EXPECT_EQ(RoundDPH({2147483646001}, u'N').raw, 2147483647000);
  EXPECT_EQ(RoundDPH({2147483647001}, u'N').raw, -2147483648000);
  EXPECT_EQ(RoundDPH({-2147483647001}, u'N').raw, 2147483648000);
  EXPECT_EQ(RoundDPH({2147483647001}, u'D').raw, 2147483647000);
}

TEST(RoundDPH, AmountsThatLeave64BitsRaise) {
  for (const std::int64_t raw : {kMost, kLeast}) {
    for (const char16_t kind : {u'D', u'N', u'M'}) {
      EXPECT_THROW(static_cast<void>(RoundDPH({raw}, kind)), FloatError) << raw;
    }
  }
  EXPECT_EQ(RoundDPH({kMost}, u'H').raw, 9223372036854775800);
  EXPECT_EQ(RoundDPH({kLeast}, u'H').raw, -9223372036854775800);
  EXPECT_NO_THROW(static_cast<void>(RoundDPH({922337203685477580}, u'N')));
  EXPECT_THROW(static_cast<void>(RoundDPH({922337203685477581}, u'N')), FloatError);
}

TEST(RoundDPH, OnlyTheFiveUpperCaseLettersRound) {
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    const auto kind = static_cast<char16_t>(unit);
    if (std::u16string_view(u"HDPNM").find(kind) != std::u16string_view::npos) continue;
    ASSERT_EQ(RoundDPH({123456}, kind).raw, 123456) << unit;
  }
}

// Amounts of every magnitude, many of them at and next to halves.
class AmountSource {
 public:
  explicit AmountSource(std::uint64_t seed) : random_(seed) {}

  std::int64_t Amount() {
    auto raw = static_cast<std::int64_t>(random_()) >> random_() % 64;
    if (random_() % 4 == 0) raw = raw / 5000 * 5000;
    return random_() % 8 == 0 && raw < kMost && raw > kLeast ? raw + static_cast<int>(random_() % 3) - 1
                                                             : raw;
  }

  double Float() {
    constexpr double kPowers[] = {1, 10, 100, 1000, 1e4, 1e5, 1e6, 1e7};
    if (random_() % 2 == 0) return static_cast<double>(Amount()) / kPowers[random_() % 8];
    const auto value = std::bit_cast<double>(static_cast<std::uint64_t>(random_()));
    return random_() % 2 == 0 ? std::fmod(value, 1e12) : value;
  }

  TRoundType Type() { return static_cast<TRoundType>(random_() % 3); }
  int Decimals(int least, int most) {
    return least + static_cast<int>(random_() % static_cast<unsigned>(most - least + 1));
  }

 private:
  std::mt19937_64 random_;
};

// Returns the result, or no value if the function throws.
template <class Routine>
auto Attempt(Routine routine) -> std::optional<decltype(routine())> {
  try {
    return routine();
  } catch (const FloatError&) {
    return std::nullopt;
  }
}

std::optional<std::uint64_t> Bits(std::optional<double> value) {
  return value ? std::optional(std::bit_cast<std::uint64_t>(*value)) : std::nullopt;
}

// RAVO_ROUNDING_ROWS sets the number of rows, RAVO_ROUNDING_SEED the seed.
std::uint64_t FromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* text = std::getenv(name);
  return text ? std::strtoull(text, nullptr, 10) : otherwise;
}

TEST(RoundValue, EqualsTheProcessorsExtendedArithmetic) {
  if constexpr (!test::plain::kHasExtended) GTEST_SKIP() << "no 80-bit type";
  AmountSource source(FromEnvironment("RAVO_ROUNDING_SEED", 3));
  const std::uint64_t all = FromEnvironment("RAVO_ROUNDING_ROWS", test::Rounds(1'000'000));
  for (std::uint64_t rows = all; rows > 0; --rows) {
    const Currency value{source.Amount()};
    const TRoundType type = source.Type();
    const int decimals = rows % 3 == 0 ? source.Decimals(-6, 15) : source.Decimals(0, 4);
    const auto small = static_cast<std::int8_t>(decimals);
    const auto expected = Attempt([&] { return test::plain::RoundValue(value, type, decimals); });
    const auto trace = [&] {
      return testing::Message() << value.raw << " type " << int(type) << " decimals " << decimals;
    };
    ASSERT_EQ(Attempt([&] { return RoundValue(value, type, small); }), expected) << trace();
    ASSERT_EQ(Attempt([&] { return common::RoundValueReference(value, type, small); }), expected) << trace();
  }
  test::Tried("amounts", static_cast<std::int64_t>(all));
}

TEST(RoundValueFloat, EqualsTheProcessorsExtendedArithmetic) {
  if constexpr (!test::plain::kHasExtended) GTEST_SKIP() << "no 80-bit type";
  AmountSource source(FromEnvironment("RAVO_ROUNDING_SEED", 4));
  const std::uint64_t all = FromEnvironment("RAVO_ROUNDING_ROWS", test::Rounds(1'000'000));
  for (std::uint64_t rows = all; rows > 0; --rows) {
    const double value = source.Float();
    const TRoundType type = source.Type();
    const int decimals = rows % 3 == 0 ? source.Decimals(-25, 27) : source.Decimals(-1, 6);
    const auto expected = Attempt([&] { return test::plain::RoundValueFloat(value, type, decimals); });
    const auto result =
        Attempt([&] { return RoundValueFloat(value, type, static_cast<std::int8_t>(decimals)); });
    ASSERT_EQ(Bits(result), Bits(expected)) << value << " type " << int(type) << " decimals " << decimals;
  }
  test::Tried("amounts", static_cast<std::int64_t>(all));
}

TEST(RoundDPH, EqualsTheProcessorsExtendedArithmetic) {
  if constexpr (!test::plain::kHasExtended) GTEST_SKIP() << "no 80-bit type";
  AmountSource source(5);
  constexpr int kRows = 300'000;
  test::Tried("amounts", kRows);
  for (int rows = 0; rows < kRows; ++rows) {
    const Currency value{source.Amount()};
    const char16_t kind = u"HDPNMh"[rows % 6];
    ASSERT_EQ(Attempt([&] { return RoundDPH(value, kind); }),
              Attempt([&] { return test::plain::RoundDPH(value, kind); }))
        << value.raw << ' ' << static_cast<char>(kind);
  }
}

TEST(RoundValue, DoesNotDependOnTheProcessorsState) {
  struct Sample {
    Currency amount;
    double value;
    TRoundType type;
    std::int8_t decimals;
  };
  AmountSource source(6);
  std::vector<Sample> samples;
  for (int i = 0; i < 20'000; ++i) {
    samples.push_back(
        {{source.Amount()}, source.Float(), source.Type(), static_cast<std::int8_t>(source.Decimals(-4, 6))});
  }
  test::ExpectSameInEveryFloatState([&] {
    std::vector<std::pair<std::optional<Currency>, std::optional<std::uint64_t>>> results;
    for (const Sample& sample : samples) {
      results.emplace_back(
          Attempt([&] { return RoundValue(sample.amount, sample.type, sample.decimals); }),
          Bits(Attempt([&] { return RoundValueFloat(sample.value, sample.type, sample.decimals); })));
    }
    return results;
  });
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
