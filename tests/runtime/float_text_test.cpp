#include "support/decimal_parts.h"
#include "support/float_environment.h"
#include <ravo/runtime/float_text.h>

#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using test::Decimal;
using Limits = std::numeric_limits<Extended>;

TEST(FloatText, GeneralTextOfFloats) {
  struct Row {
    Extended value;
    std::u16string_view text;
  };
  constexpr Row rows[] = {
      {0, u"0"},
      {-0.0, u"0"},
      {1, u"1"},
      {-1.5, u"-1.5"},
      {0.1, u"0.1"},
      {-0.25, u"-0.25"},
      {1234567.89, u"1234567.89"},
      {100, u"100"},
      {Extended{2} / 3, u"0.666666666666667"},
      {Extended{200} / 3, u"66.6666666666667"},
      {123456789012345, u"123456789012345"},
      {999999999999999, u"999999999999999"},
      {999999999999999.5, u"1E15"},
      {1e14, u"100000000000000"},
      {1e15, u"1E15"},
      {1234567890123456, u"1.23456789012346E15"},
      {1e20, u"1E20"},
      {-1.5e300, u"-1.5E300"},
      {0.001, u"0.001"},
      {0.0001, u"0.0001"},
      {0.00001, u"0.00001"},
      {0.000012345, u"0.000012345"},
      {0.000001, u"1E-6"},
      {0.0000015, u"1.5E-6"},
      {-0.0000099999999999999999, u"-0.00001"},
      {1e-100, u"1E-100"},
      {Limits::infinity(), u"INF"},
      {-Limits::infinity(), u"-INF"},
      {Limits::quiet_NaN(), u"NAN"},
  };
  for (const Row& row : rows) EXPECT_EQ(GeneralText(row.value, u'.'), row.text);
}

TEST(FloatText, GeneralTextOfTheEndsOfTheFormat) {
  if (Limits::digits != 64) GTEST_SKIP() << "extended floats are doubles here";
  EXPECT_EQ(GeneralText(Limits::max(), u'.'), u"1.18973149535723E4932");
  EXPECT_EQ(GeneralText(Limits::min(), u'.'), u"3.36210314311209E-4932");
  EXPECT_EQ(GeneralText(Limits::denorm_min(), u'.'), u"3.64519953188247E-4951");
}

// 2^-k ends in a 5: with 16 significant digits it is an exact half at the 15th.
TEST(FloatText, GeneralTextRoundsExactHalvesAwayFromZero) {
  EXPECT_EQ(GeneralText(Extended{1} + Extended{1} / 32768, u'.'), u"1.00003051757813");
  EXPECT_EQ(GeneralText(Extended{-1} - Extended{1} / 32768, u'.'), u"-1.00003051757813");
  EXPECT_EQ(GeneralText({false, "1000000000000005", 1}, u'.'), u"1.00000000000001");
  EXPECT_EQ(GeneralText({false, "10000000000000049", 1}, u'.'), u"1");
}

TEST(FloatText, GeneralTextUsesTheSeparator) {
  EXPECT_EQ(GeneralText(1.5, u','), u"1,5");
  EXPECT_EQ(GeneralText(1.5e30, u','), u"1,5E30");
  EXPECT_EQ(GeneralText({true, "5", -100}, u','), u"-5E-101");
  EXPECT_EQ(GeneralText({true, "5", std::numeric_limits<int>::min()}, u','), u"-5E-2147483649");
}

TEST(FloatText, GeneralTextOfFewerDigits) {
  EXPECT_EQ(GeneralText({false, "123456", 6}, u'.', 3), u"1.23E5");
  EXPECT_EQ(GeneralText({true, "123456", 2}, u'.', 3), u"-12.3");
  EXPECT_EQ(GeneralText({false, "9996", 3}, u'.', 3), u"1E3");
}

// The witness is "%.*e" of the C library, except for the minimum digits of the exponent.
TEST(FloatText, ScientificText) {
  EXPECT_EQ(ScientificText({false, "15", 1}, 4, u','), u"1,500E+000");
  EXPECT_EQ(ScientificText({true, "15", 1}, 1, u','), u"-2E+000");
  EXPECT_EQ(ScientificText({false, "99951", 5}, 4, u'.'), u"9.995E+004");
  EXPECT_EQ(ScientificText({false, "99996", 5}, 4, u'.'), u"1.000E+005");
  EXPECT_EQ(ScientificText({false, "125", -9}, 3, u'.'), u"1.25E-010");
  EXPECT_EQ(ScientificText({false, "1", 1234}, 2, u'.'), u"1.0E+1233");
  EXPECT_EQ(ScientificText({true, "", 0}, 3, u'.'), u"0.00E+000");
  EXPECT_EQ(ScientificText({false, "7", 1}, 0, u'.'), u"7E+000");
}

TEST(FloatText, ExactTextKeepsEveryDigit) {
  EXPECT_EQ(ExactText({false, "9223372036854775807", 15}, u','), u"922337203685477,5807");
  EXPECT_EQ(ExactText({true, "12", 20}, u','), u"-12000000000000000000");
  EXPECT_EQ(ExactText({false, "12", -6}, u','), u"0,00000012");
  EXPECT_EQ(ExactText({false, "", 0}, u','), u"0");
  EXPECT_EQ(ExactText({true, "", 0}, u','), u"0");
}

TEST(FloatText, FixedText) {
  struct Row {
    Decimal number;
    int decimals;
    std::u16string_view text;
  };
  constexpr Row rows[] = {
      {{false, "", 0}, 0, u"0"},
      {{false, "", 0}, 2, u"0,00"},
      {{true, "", 0}, 2, u"0,00"},
      {{false, "123456789", 7}, 2, u"1234567,89"},
      {{true, "123456789", 7}, 0, u"-1234568"},
      {{false, "123456789", 7}, 5, u"1234567,89000"},
      {{false, "5", 0}, 0, u"1"},
      {{true, "5", -2}, 2, u"-0,01"},
      {{true, "4", -2}, 2, u"0,00"},
      {{true, "4", -20}, 2, u"0,00"},
      {{false, "999", 1}, 1, u"10,0"},
      {{false, "25", 1}, -1, u"3"},
      {{false, "1", 21}, 0, u"100000000000000000000"},
      {{false, "12345678901234567", 17}, 2, u"12345678901234600,00"},
      {{false, "12345678901234567", 2}, 15, u"12,345678901234600"},
      // Rounded once: after rounding to 15 digits the second place would become 3.
      {{false, "12499999999999999", 0}, 2, u"0,12"},
  };
  for (const Row& row : rows) EXPECT_EQ(FixedText(row.number.Number(), row.decimals, u','), row.text);
}

TEST(FloatText, NumberText) {
  struct Row {
    Decimal number;
    int decimals;
    std::u16string_view separator;
    std::u16string_view text;
  };
  constexpr Row rows[] = {
      {{false, "123456789", 7}, 2, u"\u00A0", u"1\u00A0234\u00A0567,89"},
      {{true, "123456789", 7}, 2, u"\u00A0", u"-1\u00A0234\u00A0567,89"},
      {{true, "123", 3}, 2, u"\u00A0", u"-123,00"},
      {{false, "1", 4}, 0, u".", u"1.000"},
      {{false, "9999999", 3}, 2, u"\u00A0", u"1\u00A0000,00"},
      {{false, "123456", 6}, 0, u"", u"123456"},
      {{false, "123456", 6}, 0, u"<>", u"123<>456"},
      {{true, "1", -5}, 2, u".", u"0,00"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(NumberText(row.number.Number(), row.decimals, u',', row.separator), row.text);
  }
}

TEST(FloatText, SameInEveryFloatState) {
  test::ExpectSameInEveryFloatState([] {
    std::vector<std::u16string> results;
    for (const char* const digits : {"1", "33333333333333335", "99999999999999949", "66666666666666666666"}) {
      for (const int point : {-300, -5, 0, 1, 7, 15, 16, 300}) {
        const Extended value = ToExtended({false, digits, point});
        results.push_back(GeneralText(value, u'.'));
        results.push_back(NumberText(ToDecimal(value), 2, u'.', u" "));
      }
    }
    return results;
  });
}

}  // namespace
}  // namespace ravo
