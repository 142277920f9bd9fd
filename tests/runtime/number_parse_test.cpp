#include "support/float_environment.h"
#include <ravo/runtime/error.h>
#include <ravo/runtime/float_text.h>
#include <ravo/runtime/number_parse.h>
#include <ravo/runtime/text.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using Integers = std::numeric_limits<std::int32_t>;
using Floats = std::numeric_limits<Extended>;

TEST(NumberParse, IntegerTexts) {
  struct Row {
    std::u16string_view text;
    std::int32_t value;
  };
  constexpr Row rows[] = {
      {u"0", 0},
      {u"125", 125},
      {u"+125", 125},
      {u"-125", -125},
      {u"   -125", -125},
      {u"000000000000000125", 125},
      {u"2147483647", Integers::max()},
      {u"-2147483648", Integers::min()},
      {u"$7D", 125},
      {u"$7d", 125},
      {u"x7D", 125},
      {u"X7D", 125},
      {u"0x7D", 125},
      {u"0X7d", 125},
      {u" -$7D", -125},
      {u"+0x7D", 125},
      {u"$80000000", Integers::min()},
      {u"$FFFFFFFF", -1},
      {u"$00000000FFFFFFFF", -1},
      {u"-$FFFFFFFF", 1},
      {u"-$80000000", Integers::min()},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(TryParseInteger(row.text), row.value) << ToUtf8(row.text);
    EXPECT_EQ(ParseInteger(row.text), row.value) << ToUtf8(row.text);
  }
}

TEST(NumberParse, TextsThatAreNoIntegers) {
  constexpr std::u16string_view texts[] = {u"",
                                           u" ",
                                           u"-",
                                           u"+",
                                           u"$",
                                           u"x",
                                           u"0x",
                                           u"-$",
                                           u"$-1",
                                           u"--1",
                                           u"+-1",
                                           u"1 ",
                                           u"1a",
                                           u"1.0",
                                           u"1e1",
                                           u"$12G",
                                           u"7D",
                                           u"- 1",
                                           u"$ 1",
                                           u"\t1",
                                           u"2147483648",
                                           u"\xA0 1",
                                           u"٣",
                                           u"１",
                                           u"xx1",
                                           u"0$1",
                                           u"x$",
                                           u"00x1",
                                           u"$0x1D",
                                           u"-2147483649",
                                           u"$100000000",
                                           u"99999999999999999999999999999999",
                                           u"$FFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"};
  for (const std::u16string_view text : texts) {
    EXPECT_EQ(TryParseInteger(text), std::nullopt) << ToUtf8(text);
    EXPECT_THROW((void)ParseInteger(text), ConvertError) << ToUtf8(text);
  }
  EXPECT_EQ(TryParseInteger(std::u16string_view(u"1\0", 2)), std::nullopt);
}

TEST(NumberParse, IntegersComeBackFromTheirText) {
  for (std::int64_t value = Integers::min(); value <= Integers::max(); value += 65'537) {
    ASSERT_EQ(TryParseInteger(ToText(value)), value);
  }
}

TEST(NumberParse, FloatTexts) {
  struct Row {
    std::u16string_view text;
    Extended value;
  };
  const Row rows[] = {
      {u"0", 0},
      {u"1", 1},
      {u"+1", 1},
      {u"-1,5", -1.5},
      {u"  -1,5  ", -1.5},
      {u",5", 0.5},
      {u"5,", 5},
      {u"5,e1", 50},
      {u",5E1", 5},
      {u"1e3", 1000},
      {u"1E+3", 1000},
      {u"125E-3", 0.125},
      {u"1e000000000000000000000000000003", 1000},
      {u"000000,000000125e6", 0.125},
      {u"0e999999999999999999999", 0},
      {u"0,1", Extended{1} / 10},
      {u"18446744073709551616", 18446744073709551616.0},
      {u"1234567,89", Extended{123456789} / 100},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(TryParseFloat(row.text, u','), row.value) << ToUtf8(row.text);
    EXPECT_EQ(ParseFloat(row.text, u','), row.value) << ToUtf8(row.text);
  }
  EXPECT_TRUE(std::signbit(ParseFloat(u"-0", u',')));
}

TEST(NumberParse, TextsThatAreNoFloats) {
  constexpr std::u16string_view texts[] = {u"",
                                           u" ",
                                           u",",
                                           u"-",
                                           u"-,",
                                           u"e1",
                                           u",e1",
                                           u"1e",
                                           u"1e+",
                                           u"1e 1",
                                           u"1 e1",
                                           u"1,2,3",
                                           u"1.5",
                                           u"--1",
                                           u"- 1",
                                           u"1a",
                                           u"1e1a",
                                           u"1e1,5",
                                           u"INF",
                                           u"NAN",
                                           u"$7D",
                                           u"0x7D",
                                           u"\t1",
                                           u"1\t",
                                           u"1 000",
                                           u"1\u00A0000,5",
                                           u"1e5000",
                                           u"-1e999999999",
                                           u"1e99999999999999999999999"};
  for (const std::u16string_view text : texts) {
    EXPECT_EQ(TryParseFloat(text, u','), std::nullopt) << ToUtf8(text);
    EXPECT_THROW((void)ParseFloat(text, u','), ConvertError) << ToUtf8(text);
  }
}

TEST(NumberParse, AbsurdFloatTextsAreReadInBoundedTime) {
  const auto start = std::chrono::steady_clock::now();
  const std::u16string zeros(1'000'000, u'0');
  EXPECT_EQ(TryParseFloat(u"1e-999999999", u'.'), Extended{0});
  EXPECT_EQ(TryParseFloat(u"0." + zeros + u"1", u'.'), Extended{0});
  EXPECT_EQ(TryParseFloat(u"0." + zeros + u"1e1000001", u'.'), Extended{1});
  EXPECT_EQ(TryParseFloat(u"25" + zeros + u"e-1000001", u'.'), Extended{2.5});
  EXPECT_EQ(TryParseFloat(u"1" + zeros, u'.'), std::nullopt);
  EXPECT_EQ(TryParseFloat(u"1." + zeros + u"1", u'.'), Extended{1});
  EXPECT_EQ(TryParseFloat(u"1e" + zeros + u"1", u'.'), Extended{10});
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(NumberParse, FloatsAtTheEndsOfTheFormat) {
  if (Floats::digits != 64) GTEST_SKIP() << "extended floats are doubles here";
  EXPECT_EQ(TryParseFloat(u"1.18973149535723176502e4932", u'.'), Floats::max());
  EXPECT_EQ(TryParseFloat(u"1.18973149535723176509e4932", u'.'), std::nullopt);
  EXPECT_EQ(TryParseFloat(u"3.6451995318824746025e-4951", u'.'), Floats::denorm_min());
  EXPECT_EQ(TryParseFloat(u"1.8225997659412373012e-4951", u'.'), Extended{0});
  EXPECT_EQ(TryParseFloat(u"1.8225997659412373013e-4951", u'.'), Floats::denorm_min());
}

// A separator that is a digit, a sign or the exponent letter comes from a broken locale; parsing must still
// terminate.
TEST(NumberParse, OddSeparators) {
  EXPECT_EQ(TryParseFloat(u"1e5", u'e'), Extended{1.5});
  EXPECT_EQ(TryParseFloat(u"1-5", u'-'), Extended{1.5});
  EXPECT_EQ(TryParseFloat(u"151", u'5'), Extended{151});
  EXPECT_EQ(TryParseFloat(u"1 5", u' '), Extended{1.5});
  EXPECT_EQ(TryParseFloat(u"15", u'\0'), Extended{15});
}

TEST(NumberParse, SameInEveryFloatState) {
  test::ExpectSameInEveryFloatState([] {
    std::vector<std::u16string> results;
    for (const char16_t* const text :
         {u"0.1", u"-0.3", u"1e22", u"123456789.123456789", u"9007199254740993", u"1e-300", u"1e300"}) {
      for (const char digit : ToDecimal(ParseFloat(text, u'.')).digits) {
        results.emplace_back(1, static_cast<char16_t>(digit));
      }
    }
    return results;
  });
}

}  // namespace
}  // namespace ravo
