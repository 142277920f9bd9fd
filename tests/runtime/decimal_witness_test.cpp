// The C library's own conversions, which are exact here, as witnesses for random bit patterns.
#include "support/effort.h"
#include <ravo/runtime/decimal.h>
#include <ravo/runtime/nearest_float.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>

#include <gtest/gtest.h>

#if defined(__GLIBC__)

namespace ravo {
namespace {

using ExtendedBits = FloatBits<Extended>;

constexpr int kPatterns = test::Rounds(200'000);

// Random values, one in 200 with an arbitrary exponent; those at the ends have thousands of digits and are
// slow.
class RandomFloats {
 public:
  Extended Next() {
    const BinaryFormat format = ExtendedBits::kFormat;
    const std::uint64_t mantissa = random_() >> (64 - format.bits);
    const bool is_any = random_() % 200 == 0;
    const int exponent = is_any ? Between(format.lowest_exponent, format.highest_exponent)
                                : Between(-format.bits - 100, 100 - format.bits);
    // A mantissa without its highest bit needs the lowest exponent.
    const std::uint64_t highest_bit = std::uint64_t{1} << (format.bits - 1);
    const bool is_denormal = is_any && random_() % 4 == 0;
    return ExtendedBits::Join({random_() % 2 != 0, is_denormal ? mantissa : mantissa | highest_bit,
                               is_denormal ? format.lowest_exponent : exponent});
  }

 private:
  int Between(int low, int high) {
    return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
  }

  std::mt19937_64 random_{20240229};
};

std::string Printed(Extended value, int digits) {
  std::array<char, 100> text{};
  std::snprintf(text.data(), text.size(), "%.*Le", digits - 1, static_cast<long double>(value));
  return text.data();
}

// The C library rounds ties to even, ours away from zero, so all digits are compared instead of rounded ones:
// the first 40 digits, truncated, of 60 printed ones.
TEST(DecimalWitness, ToDecimalHasTheDigitsThatTheCLibraryPrints) {
  RandomFloats floats;
  for (int i = 0; i < kPatterns; ++i) {
    const Extended value = floats.Next();
    const DecimalNumber number = ToDecimal(value);
    const std::string printed = Printed(value, 60);
    std::string expected = number.negative ? "-" : "";
    std::string digits = number.digits + std::string(60, '0');
    expected += digits.substr(0, 1) + "." + digits.substr(1, 39);
    ASSERT_EQ(printed.substr(0, expected.size()), expected);
    ASSERT_EQ(std::atoi(printed.substr(printed.find('e') + 1).c_str()), number.point - 1);
  }
}

TEST(DecimalWitness, ToExtendedReadsAsTheCLibraryDoes) {
  RandomFloats floats;
  for (int i = 0; i < kPatterns; ++i) {
    const DecimalNumber number = RoundedToDigits(ToDecimal(floats.Next()), 1 + i % 40);
    const std::string text =
        (number.negative ? "-0." : "0.") + number.digits + "e" + std::to_string(number.point);
    const long double expected = std::strtold(text.c_str(), nullptr);
    const std::optional<Extended> actual = NearestFloat<Extended>(number);
    ASSERT_EQ(actual.has_value(), ExtendedBits::Kind(expected) == FloatKind::Finite) << text;
    ASSERT_EQ(actual.value_or(expected), expected) << text;
  }
}

TEST(DecimalWitness, NearestDoubleReadsAsTheCLibraryDoes) {
  RandomFloats floats;
  for (int i = 0; i < kPatterns; ++i) {
    const DecimalNumber number = RoundedToDigits(ToDecimal(floats.Next()), 1 + i % 40);
    const std::string text =
        (number.negative ? "-0." : "0.") + number.digits + "e" + std::to_string(number.point);
    const double expected = std::strtod(text.c_str(), nullptr);
    const std::optional<double> actual = NearestFloat<double>(number);
    ASSERT_EQ(actual.has_value(), FloatBits<double>::Kind(expected) == FloatKind::Finite) << text;
    ASSERT_EQ(actual.value_or(expected), expected) << text;
  }
}

TEST(DecimalWitness, FloatsComeBackFromTheirDigits) {
  RandomFloats floats;
  constexpr int kRoundTripDigits = 21;
  for (int i = 0; i < kPatterns; ++i) {
    const Extended value = floats.Next();
    const DecimalNumber number = ToDecimal(value);
    // Rounding the largest values up overflows the format.
    const auto back = NearestFloat<Extended>(RoundedToDigits(number, kRoundTripDigits));
    if (back) {
      ASSERT_EQ(*back, value);
    }
  }
}

}  // namespace
}  // namespace ravo

#endif
