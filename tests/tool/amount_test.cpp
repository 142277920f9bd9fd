#include "amount.h"

#include <limits>

#include <gtest/gtest.h>

namespace tool {
namespace {

TEST(ParseAmount, Rows) {
  struct Row {
    std::string_view text;
    std::optional<std::int64_t> raw;
  };
  constexpr Row rows[] = {
      {"0", 0},
      {"1.234", 12340},
      {"-1,2345", -12345},
      {"+5", 50000},
      {"007.50", 75000},
      {"", {}},
      {"-", {}},
      {".5", {}},
      {"5.", {}},
      {"1.23456", {}},
      {"1.2.3", {}},
      {"1e5", {}},
      {" 1", {}},
      {"1 ", {}},
      {"--1", {}},
      {"922337203685477.5807", std::numeric_limits<std::int64_t>::max()},
      {"-922337203685477.5808", std::numeric_limits<std::int64_t>::min()},
      {"922337203685477.5808", {}},
      {"99999999999999999999999", {}},
  };
  for (const Row& row : rows) {
    const auto amount = ParseAmount(row.text);
    ASSERT_EQ(amount.has_value(), row.raw.has_value()) << row.text;
    EXPECT_EQ(amount.value_or(ravo::Currency{}).raw, row.raw.value_or(0)) << row.text;
  }
}

TEST(AmountText, Rows) {
  EXPECT_EQ(AmountText({0}), "0.00");
  EXPECT_EQ(AmountText({5}), "0.0005");
  EXPECT_EQ(AmountText({-12340}), "-1.234");
  EXPECT_EQ(AmountText({123000}), "12.30");
  EXPECT_EQ(AmountText({std::numeric_limits<std::int64_t>::min()}), "-922337203685477.5808");
}

}  // namespace
}  // namespace tool
