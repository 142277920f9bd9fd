#include "support/decimal_parts.h"
#include "support/float_environment.h"
#include <ravo/runtime/decimal.h>
#include <ravo/runtime/error.h>

#include <chrono>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using Limits = std::numeric_limits<Extended>;
using test::Decimal;

constexpr bool kIs80Bits = Limits::digits == 64;

// The bytes of a float without the padding of its type.
std::string BytesOf(Extended value) {
  return {reinterpret_cast<const char*>(&value), kIs80Bits ? std::size_t{10} : sizeof value};
}

// Half of a number has five times its digits, one place further after the point.
DecimalNumber Halved(const DecimalNumber& number) {
  DecimalNumber half{number.negative, number.digits, number.point};
  int carry = 0;
  for (auto digit = half.digits.rbegin(); digit != half.digits.rend(); ++digit) {
    carry += (*digit - '0') * 5;
    *digit = static_cast<char>('0' + carry % 10);
    carry /= 10;
  }
  half.digits.insert(0, 1, static_cast<char>('0' + carry));
  return half.digits.front() != '0' ? half
                                    : DecimalNumber{half.negative, half.digits.substr(1), half.point - 1};
}

TEST(Decimal, ToDecimalOfFloatsIsExact) {
  struct Row {
    Extended value;
    Decimal expected;
  };
  constexpr Row rows[] = {
      {0, {false, "", 0}},
      {-0.0, {true, "", 0}},
      {1, {false, "1", 1}},
      {-1.5, {true, "15", 1}},
      {1024, {false, "1024", 4}},
      {1e15, {false, "1", 16}},
      {0.1, {false, "1000000000000000055511151231257827021181583404541015625", 0}},
      {0.0078125, {false, "78125", -2}},
      {1e22, {false, "1", 23}},
      {std::numeric_limits<double>::max(),
       {false,
        "1797693134862315708145274237317043567980705675258449965989174768031572607800285387605895586327668781"
        "7154045895351438246423432132688946418276846754670353751698604991057655128207624549009038932894407586"
        "8508455133942304583236903222948165808559332123348274797826204144723168738177180919299881250404026184"
        "124858368",
        309}},
  };
  for (const Row& row : rows) EXPECT_EQ(ToDecimal(row.value), row.expected);
}

TEST(Decimal, ToDecimalRefusesWhatIsNoFiniteNumber) {
  for (const Extended value : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    EXPECT_THROW((void)ToDecimal(value), FloatError);
  }
}

TEST(Decimal, ToDecimalRefusesBitPatternsThatAreNoOperands) {
  if (!kIs80Bits) GTEST_SKIP() << "the format has no such patterns";
  Extended unnormal = 1;
  const std::uint64_t mantissa = std::uint64_t{1} << 62;
  std::memcpy(&unnormal, &mantissa, sizeof mantissa);
  EXPECT_THROW((void)ToDecimal(unnormal), FloatError);
}

TEST(Decimal, ToDecimalOfTheSmallestExtended) {
  const DecimalNumber number = ToDecimal(Limits::denorm_min());
  EXPECT_EQ(number.digits.substr(0, 10), kIs80Bits ? "3645199531" : "4940656458");
  EXPECT_EQ(number.digits.back(), '5');
  EXPECT_EQ(number.digits.size(), kIs80Bits ? 11495U : 751U);
  EXPECT_EQ(number.point, kIs80Bits ? -4950 : -323);
}

TEST(Decimal, ToDecimalOfScaledIntegers) {
  struct Row {
    std::int64_t value;
    int decimals;
    Decimal expected;
  };
  constexpr Row rows[] = {
      {0, 4, {false, "", 0}},
      {12345600, 4, {false, "123456", 4}},
      {-1, 4, {true, "1", -3}},
      {5, -2, {false, "5", 3}},
      {std::numeric_limits<std::int64_t>::min(), 4, {true, "9223372036854775808", 15}},
      {std::numeric_limits<std::int64_t>::max(), 0, {false, "9223372036854775807", 19}},
  };
  for (const Row& row : rows) EXPECT_EQ(ToDecimal(row.value, row.decimals), row.expected);
}

TEST(Decimal, RoundedToDigits) {
  struct Row {
    Decimal number;
    int digits;
    Decimal expected;
  };
  constexpr Row rows[] = {
      {{false, "12345", 2}, 5, {false, "12345", 2}},
      {{false, "12345", 2}, 9, {false, "12345", 2}},
      {{false, "12345", 2}, 4, {false, "1235", 2}},
      {{true, "12345", 2}, 4, {true, "1235", 2}},
      {{false, "12344999", 2}, 4, {false, "1234", 2}},
      {{false, "1995", 1}, 3, {false, "2", 1}},
      {{false, "9996", 1}, 3, {false, "1", 2}},
      {{false, "1003", 1}, 3, {false, "1", 1}},
      {{false, "7", 0}, 0, {false, "", 0}},
      {{true, "7", 0}, -1, {true, "", 0}},
      {{false, "", 0}, 3, {false, "", 0}},
      {{false, "1200", 0}, 9, {false, "12", 0}},
  };
  for (const Row& row : rows) EXPECT_EQ(RoundedToDigits(row.number.Number(), row.digits), row.expected);
}

TEST(Decimal, RoundedToPlaces) {
  struct Row {
    Decimal number;
    int places;
    Decimal expected;
  };
  constexpr Row rows[] = {
      {{false, "12345", 2}, 3, {false, "12345", 2}},
      {{false, "12345", 2}, 2, {false, "1235", 2}},
      {{false, "12345", 2}, 0, {false, "12", 2}},
      {{false, "12345", 2}, -1, {false, "1", 2}},
      {{false, "12345", 2}, -2, {false, "", 0}},
      {{false, "5", 0}, 0, {false, "1", 1}},
      {{true, "5", 0}, 0, {true, "1", 1}},
      {{false, "4999", 0}, 0, {false, "", 0}},
      {{false, "5", -1}, 0, {false, "", 0}},
      {{false, "5", -1}, 1, {false, "1", 0}},
      {{false, "9999", 2}, 1, {false, "1", 3}},
      {{false, "9", std::numeric_limits<int>::min()}, -5, {false, "", 0}},
      {{false, "9", 1}, std::numeric_limits<int>::max(), {false, "9", 1}},
  };
  for (const Row& row : rows) EXPECT_EQ(RoundedToPlaces(row.number.Number(), row.places), row.expected);
}

TEST(Decimal, ToExtendedOfSimpleNumbers) {
  struct Row {
    Decimal number;
    Extended value;
  };
  constexpr Row rows[] = {
      {{false, "", 0}, 0},
      {{true, "", 0}, -0.0},
      {{false, "1", 1}, 1},
      {{true, "25", 0}, -0.25},
      {{false, "1024", 4}, 1024},
      {{false, "78125", -2}, 0.0078125},
      {{false, "1", 23}, 1e22L},
      {{false, "1", 0}, Extended{1} / 10},
      {{false, "3", 0}, Extended{3} / 10},
  };
  for (const Row& row : rows) EXPECT_EQ(BytesOf(ToExtended(row.number.Number())), BytesOf(row.value));
}

// 2^digits + 1 is halfway between 2^digits and its upper neighbour 2^digits + 2: the even mantissa wins.
TEST(Decimal, ToExtendedRoundsTiesToEven) {
  struct Row {
    std::string_view digits80;
    std::string_view digits64;
    Extended above;
  };
  const Extended power = Extended{1} / Limits::epsilon() * 2;
  const Row rows[] = {
      {"18446744073709551617", "9007199254740993", 0},
      {"184467440737095516170000000000000000000000000001", "90071992547409930000000000000000000001", 2},
      {"184467440737095516169999999999999999999999999999", "90071992547409929999999999999999999999", 0},
      {"18446744073709551619", "9007199254740995", 4},
  };
  for (const Row& row : rows) {
    const Decimal number{false, kIs80Bits ? row.digits80 : row.digits64, kIs80Bits ? 20 : 16};
    EXPECT_EQ(ToExtended(number.Number()) - power, row.above) << number;
  }
}

TEST(Decimal, ToExtendedAtTheUpperEnd) {
  EXPECT_EQ(BytesOf(ToExtended(ToDecimal(Limits::max()))), BytesOf(Limits::max()));
  DecimalNumber beyond = ToDecimal(Limits::max());
  beyond.digits += "9";  // still nearer to the largest value than to its hypothetical successor
  EXPECT_EQ(BytesOf(ToExtended(beyond)), BytesOf(Limits::max()));
  for (const int point : {Limits::max_exponent10 + 2, 5001, std::numeric_limits<int>::max()}) {
    EXPECT_THROW((void)ToExtended({false, "1", point}), ConvertError) << point;
  }
}

// Half of the smallest value is a tie with zero, which is even; anything above it is not.
TEST(Decimal, ToExtendedAtTheLowerEnd) {
  const DecimalNumber smallest = ToDecimal(Limits::denorm_min());
  EXPECT_EQ(BytesOf(ToExtended(smallest)), BytesOf(Limits::denorm_min()));
  DecimalNumber half = Halved(smallest);
  EXPECT_EQ(BytesOf(ToExtended(half)), BytesOf(0));
  half.digits.append(100'000, '0').append("1");
  EXPECT_EQ(BytesOf(ToExtended(half)), BytesOf(Limits::denorm_min()));
  for (const int point : {-5000, -5001, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(BytesOf(ToExtended({false, "1", point})), BytesOf(0)) << point;
    EXPECT_EQ(BytesOf(ToExtended({true, "1", point})), BytesOf(-0.0)) << point;
  }
}

TEST(Decimal, LongDigitStringsAreReadInBoundedTime) {
  const auto start = std::chrono::steady_clock::now();
  const DecimalNumber number{false, std::string(3'000'000, '7'), 1};
  EXPECT_EQ(BytesOf(ToExtended(number)), BytesOf(Extended{70} / 9));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(Decimal, SameInEveryFloatState) {
  test::ExpectSameInEveryFloatState([] {
    std::vector<std::string> results;
    for (const int point : {-4940, -300, -7, 0, 1, 9, 15, 300, 4930}) {
      if (point > Limits::max_exponent10) continue;
      const Extended value = ToExtended({point % 2 != 0, "1234567890123456789123456789", point});
      results.push_back(BytesOf(value));
      results.push_back(ToDecimal(value).digits);
    }
    return results;
  });
}

}  // namespace
}  // namespace ravo
