#include "support/float_environment.h"
#include <ravo/runtime/error.h>
#include <ravo/runtime/variant.h>

#include <bit>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using Doubles = std::numeric_limits<double>;
constexpr auto kMost32 = std::numeric_limits<std::int32_t>::max();
constexpr auto kLeast32 = std::numeric_limits<std::int32_t>::min();
constexpr auto kMost64 = std::numeric_limits<std::int64_t>::max();

FormatSettings CommaSettings() {
  FormatSettings settings;
  settings.decimal_separator = u',';
  settings.short_date = u"d. m. yyyy";
  return settings;
}

Variant Sum(const Variant& left, const Variant& right) { return VariantSum(left, right, CommaSettings()); }

TEST(Variant, KnowsWhetherItHoldsAnything) {
  EXPECT_TRUE(Variant().IsEmpty());
  EXPECT_FALSE(Variant().IsNull());
  EXPECT_TRUE(Variant(NullValue{}).IsNull());
  EXPECT_FALSE(Variant(NullValue{}).IsEmpty());
  EXPECT_TRUE(Variant().IsEmptyOrNull());
  EXPECT_TRUE(Variant(NullValue{}).IsEmptyOrNull());
  for (const Variant& value : {Variant(0), Variant(u""), Variant(false), Variant(ByteArray{})}) {
    EXPECT_FALSE(value.IsEmptyOrNull());
  }
}

TEST(Variant, KindsAreToldApart) {
  EXPECT_TRUE(std::holds_alternative<std::u16string>(Variant(u"x").Get()));
  EXPECT_TRUE(std::holds_alternative<std::u16string>(Variant(std::u16string_view(u"x")).Get()));
  EXPECT_TRUE(std::holds_alternative<bool>(Variant(true).Get()));
  EXPECT_NE(Variant(1), Variant(std::int64_t{1}));
  EXPECT_NE(Variant(1.0), Variant(DateValue{1.0}));
  EXPECT_NE(Variant(), Variant(NullValue{}));
  EXPECT_EQ(Variant(u"x"), Variant(std::u16string(u"x")));
}

TEST(Variant, VariantToText) {
  struct Row {
    Variant value;
    std::u16string text;
  };
  const std::vector<Row> rows{
      {Variant(), u""},
      {NullValue{}, u""},
      {-125, u"-125"},
      {kMost64, u"9223372036854775807"},
      {1.5, u"1,5"},
      {1e20, u"1E20"},
      {Doubles::infinity(), u"INF"},
      {Currency{12345600}, u"1234,56"},
      {Currency{-1}, u"-0,0001"},
      {Currency{0}, u"0"},
      {Currency{10'000'000}, u"1000"},
      {Currency{kMost64}, u"922337203685477,5807"},
      {Currency{std::numeric_limits<std::int64_t>::min()}, u"-922337203685477,5808"},
      {Currency{9'223'372'036'854'770'000}, u"922337203685477"},
      {DateValue{45351.5}, u"29. 2. 2024 12:00:00"},
      {DateValue{45351}, u"29. 2. 2024"},
      {u"as it is ", u"as it is "},
      {true, u"True"},
      {false, u"False"},
  };
  for (const Row& row : rows) EXPECT_EQ(VariantToText(row.value, CommaSettings()), row.text);
  EXPECT_THROW((void)VariantToText(ByteArray{1}, {}), VariantError);
  EXPECT_THROW((void)VariantToText(ByteArray{}, {}), VariantError);
  EXPECT_THROW((void)VariantToText(DateValue{1e9}, {}), ConvertError);
}

TEST(Variant, SumsOfEveryKind) {
  struct Row {
    Variant left;
    Variant right;
    Variant sum;
  };
  const std::vector<Row> rows{
      {1, 2, 3},
      {kMost32, std::int64_t{1}, std::int64_t{2147483648}},
      {std::int64_t{1}, -2, std::int64_t{-1}},
      {true, 5, 4},
      {true, true, -2},
      {false, std::int64_t{7}, std::int64_t{7}},
      {1, 0.5, 1.5},
      {true, 0.5, -0.5},
      {0.1, 0.2, 0.30000000000000004},
      {u"2,5", 1, 3.5},
      {u" 2,5 ", 1.0, 3.5},
      {u"1", true, 0.0},
      {u"1e3", std::int64_t{1}, 1001.0},
      {Currency{15000}, 1, Currency{25000}},
      {Currency{15000}, std::int64_t{-1}, Currency{5000}},
      {Currency{15000}, true, Currency{5000}},
      {Currency{15000}, 0.25, Currency{17500}},
      {Currency{15000}, u"0,1", Currency{16000}},
      {Currency{15000}, Currency{1}, Currency{15001}},
      {DateValue{10}, 1, DateValue{11}},
      {DateValue{10}, 0.5, DateValue{10.5}},
      {DateValue{10}, Currency{5000}, DateValue{10.5}},
      {DateValue{10}, u"0,5", DateValue{10.5}},
      {DateValue{10}, DateValue{20}, DateValue{30}},
      {DateValue{10}, true, DateValue{9}},
      {u"a", u"b", u"ab"},
      {u"1", u"2", u"12"},
      {u"", u"", u""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Sum(row.left, row.right), row.sum) << &row - rows.data();
    if (!std::holds_alternative<std::u16string>(row.sum.Get())) {
      EXPECT_EQ(Sum(row.right, row.left), row.sum) << &row - rows.data();
    }
  }
}

TEST(Variant, NullWithAnythingIsNullAndEmptyIsNothing) {
  const std::vector<Variant> values{Variant(),       NullValue{}, 1,    std::int64_t{1}, 1.5, Currency{1},
                                    DateValue{1.25}, u"x",        true, ByteArray{1}};
  for (const Variant& value : values) {
    EXPECT_EQ(Sum(value, NullValue{}), Variant(NullValue{}));
    EXPECT_EQ(Sum(NullValue{}, value), Variant(NullValue{}));
    if (std::holds_alternative<ByteArray>(value.Get())) continue;
    EXPECT_EQ(Sum(value, Variant()), value);
    EXPECT_EQ(Sum(Variant(), value), value);
  }
}

TEST(Variant, BytesHaveNoSum) {
  for (const Variant& other : {Variant(), Variant(1), Variant(u"x"), Variant(ByteArray{2})}) {
    EXPECT_THROW((void)Sum(ByteArray{1}, other), VariantError);
    EXPECT_THROW((void)Sum(other, ByteArray{1}), VariantError);
  }
}

TEST(Variant, ATextBesideANumberMustReadAsOne) {
  const std::vector<Variant> numbers{5, std::int64_t{5}, 5.0, Currency{5}, DateValue{5}, true};
  for (const Variant& number : numbers) {
    for (const char16_t* const text : {u"'", u"", u"x", u"1.5", u"1 2", u"$7D", u"True"}) {
      EXPECT_THROW((void)Sum(text, number), VariantError);
      EXPECT_THROW((void)Sum(number, text), VariantError);
    }
  }
}

TEST(Variant, SumsThatLeaveTheirTypeRaise) {
  EXPECT_THROW((void)Sum(kMost32, 1), OverflowError);
  EXPECT_THROW((void)Sum(kLeast32, true), OverflowError);
  EXPECT_THROW((void)Sum(kMost64, 1), OverflowError);
  EXPECT_THROW((void)Sum(Currency{kMost64}, Currency{1}), OverflowError);
  EXPECT_THROW((void)Sum(Currency{1}, std::int64_t{922337203685478}), OverflowError);
  EXPECT_THROW((void)Sum(Currency{1}, 1e15), OverflowError);
  EXPECT_THROW((void)Sum(Currency{1}, u"1e999999999"), OverflowError);
  EXPECT_THROW((void)Sum(Doubles::max(), Doubles::max()), FloatError);
  EXPECT_THROW((void)Sum(Doubles::infinity(), 1), FloatError);
  EXPECT_THROW((void)Sum(Currency{1}, Doubles::quiet_NaN()), FloatError);
  EXPECT_THROW((void)Sum(1, u"1e309"), VariantError);
  EXPECT_THROW((void)Sum(DateValue{1}, u"1e999999999"), VariantError);
}

// 2^-5 is 312.5 ten-thousandths, three times that 937.5: floats become amounts by rounding ties to even.
TEST(Variant, FloatsBecomeAmountsRoundedToEven) {
  EXPECT_EQ(Sum(Currency{0}, 0.03125), Variant(Currency{312}));
  EXPECT_EQ(Sum(Currency{0}, 0.09375), Variant(Currency{938}));
  EXPECT_EQ(Sum(Currency{0}, -0.03125), Variant(Currency{-312}));
  EXPECT_EQ(Sum(Currency{0}, u"0,00015"), Variant(Currency{2}));
}

TEST(Variant, SameInEveryFloatState) {
  test::ExpectSameInEveryFloatState([] {
    std::vector<std::uint64_t> results;
    const auto add = [&](const Variant& left, const Variant& right) {
      const Variant sum = Sum(left, right);
      if (const auto* value = std::get_if<double>(&sum.Get())) {
        results.push_back(std::bit_cast<std::uint64_t>(*value));
      } else {
        results.push_back(static_cast<std::uint64_t>(std::get<Currency>(sum.Get()).raw));
      }
    };
    add(0.1, 0.2);
    add(u"0,1", 0.7);
    add(-1e17, std::int64_t{9007199254740993});
    add(Currency{12345}, 0.33333333333333331);
    add(std::int64_t{9007199254740993}, 0.0);
    return results;
  });
}

}  // namespace
}  // namespace ravo
