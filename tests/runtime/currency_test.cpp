#include <ravo/runtime/currency.h>
#include <ravo/runtime/error.h>

#include <limits>
#include <type_traits>

#include <gtest/gtest.h>

namespace ravo {
namespace {

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();

TEST(Currency, FromUnits) {
  EXPECT_EQ(Currency::FromUnits(0).raw, 0);
  EXPECT_EQ(Currency::FromUnits(-12).raw, -120000);
  EXPECT_EQ(Currency::FromUnits(922337203685477).raw, 9223372036854770000);
  EXPECT_THROW((void)Currency::FromUnits(922337203685478), OverflowError);
  EXPECT_THROW((void)Currency::FromUnits(-922337203685478), OverflowError);
}

TEST(Currency, SumsAndDifferencesAreExactOrRaise) {
  EXPECT_EQ(Currency{1} + Currency{2}, Currency{3});
  EXPECT_EQ(Currency{1} - Currency{2}, Currency{-1});
  EXPECT_EQ(-Currency{5}, Currency{-5});
  EXPECT_EQ(Currency{kMost} + Currency{kLeast}, Currency{-1});
  EXPECT_THROW((void)(Currency{kMost} + Currency{1}), OverflowError);
  EXPECT_THROW((void)(Currency{kLeast} - Currency{1}), OverflowError);
  EXPECT_THROW((void)-Currency{kLeast}, OverflowError);
}

TEST(Currency, Order) {
  EXPECT_LT(Currency{-1}, Currency{0});
  EXPECT_GE(Currency{10000}, Currency::FromUnits(1));
  EXPECT_NE(Currency{1}, Currency{2});
}

TEST(Currency, HasNoSilentConversions) {
  EXPECT_FALSE((std::is_convertible_v<double, Currency>));
  EXPECT_FALSE((std::is_convertible_v<Currency, double>));
  EXPECT_FALSE((std::is_convertible_v<std::int64_t, Currency>));
}

}  // namespace
}  // namespace ravo
