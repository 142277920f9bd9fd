#include "support/decimal_parts.h"
#include "support/float_environment.h"
#include <ravo/runtime/nearest_float.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using Doubles = std::numeric_limits<double>;

std::uint64_t Bits(double value) { return std::bit_cast<std::uint64_t>(value); }

double RandomDouble(std::mt19937_64& random) {
  for (;;) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value)) return value;
  }
}

// Two doubles with exponents close enough for the smaller one to matter.
std::pair<double, double> RandomSummands(std::mt19937_64& random) {
  const double left = RandomDouble(random);
  const auto apart = static_cast<int>(random() % 120) - 60;
  const BinaryFloat parts = FloatBits<double>::Split(RandomDouble(random));
  const auto mantissa = static_cast<double>(parts.mantissa) * (parts.negative ? -1 : 1);
  const double right = std::ldexp(mantissa, FloatBits<double>::Split(left).exponent + apart);
  return {left, right};
}

TEST(NearestFloat, SplitAndJoinAreInverse) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 100'000; ++i) {
    const double value = RandomDouble(random);
    const BinaryFloat parts = FloatBits<double>::Split(value);
    EXPECT_EQ(Bits(FloatBits<double>::Join(parts)), Bits(value));
    const double magnitude = std::ldexp(static_cast<double>(parts.mantissa), parts.exponent);
    EXPECT_EQ(parts.negative ? -magnitude : magnitude, value);
  }
}

TEST(NearestFloat, KindOfDoubles) {
  EXPECT_EQ(FloatBits<double>::Kind(1), FloatKind::Finite);
  EXPECT_EQ(FloatBits<double>::Kind(Doubles::denorm_min()), FloatKind::Finite);
  EXPECT_EQ(FloatBits<double>::Kind(-Doubles::infinity()), FloatKind::Infinite);
  EXPECT_EQ(FloatBits<double>::Kind(Doubles::quiet_NaN()), FloatKind::NotANumber);
}

TEST(NearestFloat, SumIsThatOfTheProcessorInItsDefaultState) {
  std::mt19937_64 random(11);
  for (int i = 0; i < 50'000; ++i) {
    const auto [left, right] = RandomSummands(random);
    if (!std::isfinite(right)) continue;
    const double sum = left + right;
    const auto actual = NearestSum(left, right);
    ASSERT_EQ(actual.has_value(), std::isfinite(sum)) << left << ' ' << right;
    if (actual) {
      ASSERT_EQ(Bits(*actual), Bits(sum)) << left << ' ' << right;
    }
  }
}

TEST(NearestFloat, SumsAtTheEnds) {
  EXPECT_EQ(NearestSum(Doubles::max(), Doubles::max()), std::nullopt);
  EXPECT_EQ(NearestSum(Doubles::max(), 1.0), Doubles::max());
  EXPECT_EQ(NearestSum(Doubles::max(), -Doubles::max()), 0.0);
  EXPECT_EQ(NearestSum(Doubles::min(), -Doubles::denorm_min()), Doubles::min() - Doubles::denorm_min());
  EXPECT_EQ(Bits(NearestSum(-0.0, -0.0).value()), Bits(-0.0));
  EXPECT_EQ(Bits(NearestSum(-0.0, 0.0).value()), Bits(0.0));
  EXPECT_EQ(Bits(NearestSum(1.0, -1.0).value()), Bits(0.0));
}

TEST(NearestFloat, IntegersRoundTiesToEven) {
  struct Row {
    test::Decimal number;
    std::int64_t value;
  };
  constexpr Row rows[] = {
      {{false, "", 0}, 0},
      {{false, "5", 0}, 0},
      {{false, "15", 1}, 2},
      {{true, "25", 1}, -2},
      {{false, "2500000000000000000000000000000001", 1}, 3},
      {{true, "35", 1}, -4},
      {{false, "4", 0}, 0},
      {{false, "1", -5000}, 0},
      {{false, "9223372036854775807", 19}, std::numeric_limits<std::int64_t>::max()},
      {{false, "92233720368547758074", 19}, std::numeric_limits<std::int64_t>::max()},
      {{true, "9223372036854775808", 19}, std::numeric_limits<std::int64_t>::min()},
      {{true, "92233720368547758085", 19}, std::numeric_limits<std::int64_t>::min()},
  };
  for (const Row& row : rows) EXPECT_EQ(NearestInteger(row.number.Number()), row.value) << row.number;
}

TEST(NearestFloat, IntegersBeyond64BitsHaveNoValue) {
  constexpr test::Decimal numbers[] = {
      {false, "9223372036854775808", 19},
      {false, "92233720368547758075", 19},
      {true, "9223372036854775809", 19},
      {false, "18446744073709551615", 20},
      {false, "18446744073709551616", 20},
      {true, "1", 4000},
      {false, "1", 9999},
  };
  for (const test::Decimal& number : numbers)
    EXPECT_EQ(NearestInteger(number.Number()), std::nullopt) << number;
}

TEST(NearestFloat, QuotientIsThatOfTheProcessorInItsDefaultState) {
  std::mt19937_64 random(13);
  for (int i = 0; i < 50'000; ++i) {
    const std::uint64_t numerator = random() >> 11;
    const auto denominator = static_cast<std::uint32_t>(random() | 1);
    ASSERT_EQ(NearestQuotient(numerator, denominator), static_cast<double>(numerator) / denominator);
  }
}

TEST(NearestFloat, SameInEveryFloatState) {
  test::ExpectSameInEveryFloatState([] {
    std::vector<std::uint64_t> results;
    for (std::uint64_t i = 1; i < 100; ++i) {
      results.push_back(Bits(NearestQuotient(i, 86'400'000)));
      results.push_back(Bits(NearestSum(std::bit_cast<double>(0x3FB999999999999A + i),
                                        std::bit_cast<double>(0x4059000000000000 + 3 * i))
                                 .value()));
    }
    return results;
  });
}

}  // namespace
}  // namespace ravo
