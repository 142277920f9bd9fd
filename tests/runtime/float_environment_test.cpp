// The states that other tests run in must affect plain arithmetic, and must be restored afterwards.
#include "support/float_environment.h"

#include <cfenv>
#include <limits>

#include <gtest/gtest.h>

namespace ravo::test {
namespace {

// One third, computed at run time: the compiler knows neither operand and cannot move the division out of the
// state.
template <class Float>
Float Third() {
  const volatile Float one = 1;
  const volatile Float three = 3;
  const volatile Float third = one / three;
  return third;
}

TEST(FloatEnvironment, RoundingIsFeltAndPutBack) {
  const int before = std::fegetround();
  const double up = InFloatState({FE_UPWARD, 64}, Third<double>);
  const double down = InFloatState({FE_DOWNWARD, 64}, Third<double>);
  EXPECT_GT(up, down);
  EXPECT_EQ(std::fegetround(), before);
}

TEST(FloatEnvironment, X87PrecisionIsFeltAndPutBack) {
  if (std::numeric_limits<long double>::digits != 64) GTEST_SKIP() << "no x87 unit";
  const std::uint16_t before = ScopedX87Precision::ControlWord();
  const auto third24 = InFloatState({FE_TONEAREST, 24}, Third<long double>);
  const auto third53 = InFloatState({FE_TONEAREST, 53}, Third<long double>);
  const auto third64 = InFloatState({FE_TONEAREST, 64}, Third<long double>);
  EXPECT_EQ(third24, static_cast<long double>(1.0F / 3));
  EXPECT_EQ(third53, static_cast<long double>(1.0 / 3));
  EXPECT_EQ(third64, 1.0L / 3);
  EXPECT_NE(third53, third64);
  EXPECT_EQ(ScopedX87Precision::ControlWord(), before);
}

}  // namespace
}  // namespace ravo::test
