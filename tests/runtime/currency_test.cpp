#include "support/tried.h"
#include <ravo/runtime/currency.h>
#include <ravo/runtime/error.h>

#include <fstream>
#include <limits>
#include <map>
#include <optional>
#include <string>
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

TEST(Currency, MultiplesAreExactOrRaise) {
  EXPECT_EQ(Currency{12345} * 3, Currency{37035});
  EXPECT_EQ(Currency{-1} * kMost, Currency{-kMost});
  EXPECT_THROW((void)(Currency{2} * kMost), OverflowError);
  EXPECT_THROW((void)(Currency{kLeast} * -1), OverflowError);
}

TEST(RoundedTo, Rows) {
  struct Row {
    std::int64_t raw;
    std::int64_t step;
    std::int64_t half;
    std::int64_t away;
    std::int64_t toward;
  };
  constexpr Row rows[] = {
      {0, 100, 0, 0, 0},
      {10050, 100, 10100, 10100, 10000},
      {-10050, 100, -10100, -10100, -10000},
      {10049, 100, 10000, 10100, 10000},
      {-10049, 100, -10000, -10100, -10000},
      {12300, 100, 12300, 12300, 12300},
      {122500, 5000, 125000, 125000, 120000},
      {122499, 5000, 120000, 125000, 120000},
      {1, 100'000'000, 0, 100'000'000, 0},
      {10, 3, 9, 12, 9},
      {kMost, 1, kMost, kMost, kMost},
      {kLeast, 1, kLeast, kLeast, kLeast},
      {kLeast, 8, kLeast, kLeast, kLeast},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(RoundedTo({row.raw}, {row.step}).raw, row.half) << row.raw << " to " << row.step;
    EXPECT_EQ(RoundedTo({row.raw}, {row.step}, Rounding::AwayFromZero).raw, row.away) << row.raw;
    EXPECT_EQ(RoundedTo({row.raw}, {row.step}, Rounding::TowardZero).raw, row.toward) << row.raw;
  }
}

TEST(RoundedTo, RangeAndStepsRaise) {
  EXPECT_EQ(RoundedTo({kMost}, {10}, Rounding::TowardZero).raw, 9223372036854775800);
  EXPECT_THROW((void)RoundedTo({kMost}, {10}), OverflowError);
  EXPECT_THROW((void)RoundedTo({kLeast}, {10}), OverflowError);
  EXPECT_THROW((void)RoundedTo({kLeast}, {100}, Rounding::AwayFromZero), OverflowError);
  EXPECT_THROW((void)RoundedTo({1}, {0}), RangeError);
  EXPECT_THROW((void)RoundedTo({1}, {-100}), RangeError);
}

// 0.00499995: the product rounded to ten-thousandths first would be half a hundredth.
TEST(TimesRatio, RoundsOnce) {
  EXPECT_EQ(TimesRatio({333330}, 15, 100'000), Currency{50});
  EXPECT_EQ(TimesRatio({333330}, 15, 100'000, {100}), Currency{0});
  EXPECT_EQ(TimesRatio({50}, 1, 1, {100}), Currency{100});
}

TEST(TimesRatio, Vat) {
  EXPECT_EQ(TimesRatio(Currency::FromUnits(100), 21, 100), Currency::FromUnits(21));
  EXPECT_EQ(TimesRatio({12'345'600}, 21, 100, {100}), Currency{2'592'600});  // 259.2576
  EXPECT_EQ(TimesRatio(Currency::FromUnits(1210), 21, 121, {100}), Currency::FromUnits(210));
  EXPECT_EQ(TimesRatio({-9'999'900}, 21, 121, {100}), Currency{-1'735'500});  // -173.552...
  EXPECT_EQ(TimesRate({12'345'600}, {2100}, {100}), Currency{2'592'600});
  EXPECT_EQ(TimesRate(Currency::FromUnits(1000), {253'455}), Currency{253'455'000});  // 25.3455 CZK a euro
}

TEST(TimesRatio, WhatDoesNotFitRaises) {
  EXPECT_THROW((void)TimesRatio({1}, 1, 0), DivisionByZero);
  EXPECT_THROW((void)TimesRatio({1}, 1, 1, {0}), RangeError);
  EXPECT_THROW((void)TimesRatio({kMost}, 2, 1), OverflowError);
  EXPECT_THROW((void)TimesRatio({kLeast}, kLeast, 1), OverflowError);
  EXPECT_THROW((void)TimesRatio({1}, 1, kMost, {3}), OverflowError);
  EXPECT_EQ(TimesRatio({kLeast}, kLeast, kLeast), Currency{kLeast});
  EXPECT_EQ(TimesRatio({kMost}, kMost, kMost), Currency{kMost});
  EXPECT_THROW((void)TimesRate({kMost}, {10001}), OverflowError);
}

struct Witnessed {
  std::int64_t value;
  std::int64_t numerator;
  std::int64_t denominator;
  std::int64_t step;
  std::string rounding;
  std::string result;
};

std::string ResultOf(const Witnessed& line) {
  static const std::map<std::string, Rounding> roundings{{"half", Rounding::HalfAwayFromZero},
                                                         {"away", Rounding::AwayFromZero},
                                                         {"toward", Rounding::TowardZero}};
  try {
    const Currency result =
        TimesRatio({line.value}, line.numerator, line.denominator, {line.step}, roundings.at(line.rounding));
    return std::to_string(result.raw);
  } catch (const OverflowError&) {
    return "overflow";
  }
}

TEST(TimesRatio, EqualsAnotherDecimalArithmetic) {
  std::ifstream file("currency_witnesses.txt");
  Witnessed line;
  std::size_t count = 0;
  std::size_t overflows = 0;
  while (file >> line.value >> line.numerator >> line.denominator >> line.step >> line.rounding >>
         line.result) {
    ++count;
    if (line.result == "overflow") ++overflows;
    ASSERT_EQ(ResultOf(line), line.result)
        << line.value << " x " << line.numerator << " / " << line.denominator << " step " << line.step << " "
        << line.rounding;
  }
  EXPECT_GT(count, 10000U);
  EXPECT_GT(overflows, 1000U);
  EXPECT_LT(overflows, count / 2);
  test::Tried("amounts", static_cast<std::int64_t>(count));
}

TEST(CurrencyText, Rows) {
  struct Row {
    std::int64_t raw;
    int places;
    std::u16string_view text;
  };
  constexpr Row rows[] = {
      {0, 2, u"0,00"},
      {0, 0, u"0"},
      {0, 4, u"0,0000"},
      {5, 2, u"0,0005"},
      {-12340, 2, u"-1,234"},
      {123000, 0, u"12,3"},
      {123000, 2, u"12,30"},
      {120000, 0, u"12"},
      {120000, 1, u"12,0"},
      {120000, -1, u"12"},
      {120000, 9, u"12,0000"},
      {-1, 0, u"-0,0001"},
      {kMost, 2, u"922337203685477,5807"},
      {kLeast, 2, u"-922337203685477,5808"},
  };
  for (const Row& row : rows) EXPECT_EQ(CurrencyText({row.raw}, u',', row.places), row.text) << row.raw;
}

TEST(TryParseCurrency, Rows) {
  struct Row {
    std::u16string_view text;
    std::optional<std::int64_t> raw;
  };
  constexpr Row rows[] = {
      {u"0", 0},
      {u"1.234", 12340},
      {u"-1.2345", -12345},
      {u"+5", 50000},
      {u"007.50", 75000},
      {u".5", 5000},
      {u"-.5", -5000},
      {u"5.", 50000},
      {u"1.23450000", 12345},
      {u"1.23456", {}},
      {u"", {}},
      {u"-", {}},
      {u".", {}},
      {u"-.", {}},
      {u"1,5", {}},
      {u"1.2.3", {}},
      {u"1e5", {}},
      {u"0x10", {}},
      {u"$10", {}},
      {u" 1", {}},
      {u"1 ", {}},
      {u"--1", {}},
      {u"1-", {}},
      {u"\u0661", {}},
      {u"922337203685477.5807", kMost},
      {u"-922337203685477.5808", kLeast},
      {u"922337203685477.5808", {}},
      {u"-922337203685477.5809", {}},
      {u"99999999999999999999999", {}},
  };
  for (const Row& row : rows) {
    const auto amount = TryParseCurrency(row.text, u'.');
    ASSERT_EQ(amount.has_value(), row.raw.has_value()) << std::string(row.text.begin(), row.text.end());
    EXPECT_EQ(amount.value_or(Currency{}).raw, row.raw.value_or(0));
  }
  EXPECT_EQ(ParseCurrency(u"12,5", u','), Currency{125000});
  EXPECT_THROW((void)ParseCurrency(u"12.5", u','), ConvertError);
}

// Every text of an amount reads back as the amount.
TEST(TryParseCurrency, ReadsWhatCurrencyTextWrites) {
  for (const std::int64_t raw :
       {std::int64_t{0}, std::int64_t{-1}, std::int64_t{10000}, kMost, kLeast, kMost / 3}) {
    for (int places = 0; places <= 4; ++places)
      EXPECT_EQ(TryParseCurrency(CurrencyText({raw}, u'.', places), u'.'), Currency{raw});
  }
}

TEST(Currency, HasNoSilentConversions) {
  EXPECT_FALSE((std::is_convertible_v<double, Currency>));
  EXPECT_FALSE((std::is_convertible_v<Currency, double>));
  EXPECT_FALSE((std::is_convertible_v<std::int64_t, Currency>));
}

}  // namespace
}  // namespace ravo
