#include <ravo/runtime/checked.h>

#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace ravo {
namespace {

constexpr auto kMin8 = std::numeric_limits<std::int8_t>::min();
constexpr auto kMax8 = std::numeric_limits<std::int8_t>::max();

// Runs `operation` over all pairs of bytes and compares with the result in a wider type.
template <class Operation, class Wide>
void ExpectExactOverAllBytes(Operation operation, Wide wide) {
  for (int left = kMin8; left <= kMax8; ++left) {
    for (int right = kMin8; right <= kMax8; ++right) {
      const auto call = [&] {
        return operation(static_cast<std::int8_t>(left), static_cast<std::int8_t>(right));
      };
      const int expected = wide(left, right);
      if (expected < kMin8 || expected > kMax8) {
        EXPECT_THROW((void)call(), OverflowError) << left << ' ' << right;
      } else {
        EXPECT_EQ(call(), expected) << left << ' ' << right;
      }
    }
  }
}

TEST(Checked, AddIsExactOrRaises) {
  ExpectExactOverAllBytes(CheckedAdd<std::int8_t>, [](int left, int right) { return left + right; });
}

TEST(Checked, SubtractIsExactOrRaises) {
  ExpectExactOverAllBytes(CheckedSubtract<std::int8_t>, [](int left, int right) { return left - right; });
}

TEST(Checked, MultiplyIsExactOrRaises) {
  ExpectExactOverAllBytes(CheckedMultiply<std::int8_t>, [](int left, int right) { return left * right; });
}

TEST(Checked, DivideTruncatesOrRaises) {
  for (int left = kMin8; left <= kMax8; ++left) {
    for (int right = kMin8; right <= kMax8; ++right) {
      const auto call = [&] {
        return CheckedDivide(static_cast<std::int8_t>(left), static_cast<std::int8_t>(right));
      };
      if (right == 0) {
        EXPECT_THROW((void)call(), DivisionByZero);
      } else if (left == kMin8 && right == -1) {
        EXPECT_THROW((void)call(), OverflowError);
      } else {
        EXPECT_EQ(call(), left / right) << left << ' ' << right;
      }
    }
  }
}

TEST(Checked, LimitsOf64Bits) {
  constexpr auto kMin = std::numeric_limits<std::int64_t>::min();
  constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(CheckedAdd(kMax, kMin), -1);
  EXPECT_THROW((void)CheckedAdd(kMax, std::int64_t{1}), OverflowError);
  EXPECT_THROW((void)CheckedSubtract(kMin, std::int64_t{1}), OverflowError);
  EXPECT_THROW((void)CheckedMultiply(kMin, std::int64_t{-1}), OverflowError);
  EXPECT_THROW((void)CheckedDivide(kMin, std::int64_t{-1}), OverflowError);
  EXPECT_THROW((void)CheckedSubtract(0U, 1U), OverflowError);
}

TEST(Checked, CastKeepsTheValueOrRaises) {
  EXPECT_EQ(CheckedCast<std::uint8_t>(255), 255);
  EXPECT_THROW((void)CheckedCast<std::uint8_t>(256), RangeError);
  EXPECT_THROW((void)CheckedCast<std::uint8_t>(-1), RangeError);
  EXPECT_EQ(CheckedCast<std::int32_t>(std::int64_t{-2147483648}), std::numeric_limits<std::int32_t>::min());
  EXPECT_THROW((void)CheckedCast<std::int32_t>(std::int64_t{2147483648}), RangeError);
  EXPECT_THROW((void)CheckedCast<std::int64_t>(std::numeric_limits<std::uint64_t>::max()), RangeError);
}

}  // namespace
}  // namespace ravo
