#include "support/tried.h"
#include <ravo/czech/vat.h>

#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

constexpr Day VatDay(int year, int month, int day) { return DayOf({year, month, day}); }
constexpr Currency Heller(std::int64_t count) { return {count * 100}; }
constexpr Currency kLargest{std::numeric_limits<std::int64_t>::max()};
constexpr Currency kSmallest{std::numeric_limits<std::int64_t>::min()};

struct RateRow {
  Day day;
  VatRateKind kind;
  int percent;  // -1 for none
};
// As the tax administration's tables have them, on the last and the first day of each.
const RateRow kExpectedRates[] = {
    {VatDay(1992, 12, 31), VatRateKind::Standard, -1},
    {VatDay(1993, 1, 1), VatRateKind::Standard, 23},
    {VatDay(1994, 12, 31), VatRateKind::Standard, 23},
    {VatDay(1995, 1, 1), VatRateKind::Standard, 22},
    {VatDay(2004, 4, 30), VatRateKind::Standard, 22},
    {VatDay(2004, 5, 1), VatRateKind::Standard, 19},
    {VatDay(2009, 12, 31), VatRateKind::Standard, 19},
    {VatDay(2010, 1, 1), VatRateKind::Standard, 20},
    {VatDay(2012, 12, 31), VatRateKind::Standard, 20},
    {VatDay(2013, 1, 1), VatRateKind::Standard, 21},
    {VatDay(2026, 11, 21), VatRateKind::Standard, 21},
    {VatDay(1993, 1, 1), VatRateKind::Reduced, 5},
    {VatDay(2007, 12, 31), VatRateKind::Reduced, 5},
    {VatDay(2008, 1, 1), VatRateKind::Reduced, 9},
    {VatDay(2010, 1, 1), VatRateKind::Reduced, 10},
    {VatDay(2011, 12, 31), VatRateKind::Reduced, 10},
    {VatDay(2012, 1, 1), VatRateKind::Reduced, 14},
    {VatDay(2013, 1, 1), VatRateKind::Reduced, 15},
    {VatDay(2023, 12, 31), VatRateKind::Reduced, 15},
    {VatDay(2024, 1, 1), VatRateKind::Reduced, 12},
    {VatDay(2014, 12, 31), VatRateKind::SecondReduced, -1},
    {VatDay(2015, 1, 1), VatRateKind::SecondReduced, 10},
    {VatDay(2023, 12, 31), VatRateKind::SecondReduced, 10},
    {VatDay(2024, 1, 1), VatRateKind::SecondReduced, -1},
    {VatDay(1900, 1, 1), VatRateKind::Zero, 0},
    {VatDay(2026, 1, 1), static_cast<VatRateKind>(9), -1},
};

TEST(VatRates, AreThoseInForceOnTheDay) {
  for (const RateRow& row : kExpectedRates) {
    const auto percent = VatPercentOn(row.day, row.kind);
    EXPECT_EQ(percent ? percent.value : -1, row.percent) << row.day.number;
    EXPECT_EQ(percent.code == Code::VatRateUnknown, row.percent < 0);
    EXPECT_TRUE(row.percent <= 0 || VatRateKindOn(row.day, row.percent) == row.kind);
  }
  EXPECT_FALSE(VatRateKindOn(VatDay(2024, 1, 1), 15));
  EXPECT_EQ(VatRateKindOn(VatDay(2024, 1, 1), 0), VatRateKind::Zero);
}

TEST(VatRates, OneOfAKindIsInForceOnEachDaySince1993) {
  for (Day day = VatDay(1993, 1, 1); day <= VatDay(2030, 12, 31); ++day.number) {
    int standard = 0;
    int reduced = 0;
    for (const VatRate& rate : VatRates()) {
      const bool in_force = day >= rate.first && day <= rate.last;
      standard += in_force && rate.kind == VatRateKind::Standard ? 1 : 0;
      reduced += in_force && rate.kind == VatRateKind::Reduced ? 1 : 0;
    }
    ASSERT_EQ(standard, 1) << day.number;
    ASSERT_EQ(reduced, 1) << day.number;
  }
  for (const VatRate& rate : VatRates()) EXPECT_TRUE(rate.law.find('/') != std::string_view::npos);
}

TEST(VatMethods, AreLawfulBetweenTheirDays) {
  EXPECT_TRUE(IsLawful(VatMethod::FromBase, VatDay(1993, 1, 1)));
  EXPECT_TRUE(IsLawful(VatMethod::FromBase, VatDay(2026, 11, 21)));
  EXPECT_FALSE(IsLawful(VatMethod::FromTotalByCoefficient, VatDay(2004, 4, 30)));
  EXPECT_TRUE(IsLawful(VatMethod::FromTotalByCoefficient, VatDay(2004, 5, 1)));
  EXPECT_TRUE(IsLawful(VatMethod::FromTotalByCoefficient, VatDay(2019, 9, 30)));
  EXPECT_FALSE(IsLawful(VatMethod::FromTotalByCoefficient, VatDay(2019, 10, 1)));
  EXPECT_FALSE(IsLawful(VatMethod::FromTotal, VatDay(2019, 3, 31)));
  EXPECT_TRUE(IsLawful(VatMethod::FromTotal, VatDay(2019, 4, 1)));
  EXPECT_TRUE(IsLawful(VatMethod::FromBase, VatDay(2004, 4, 30)));
  EXPECT_TRUE(IsLawful(VatMethod::FromBase, VatDay(2004, 5, 1)));
  EXPECT_FALSE(IsLawful(VatMethod::FromBase, VatDay(1992, 12, 31)));
}

// The first law of VAT ended on 30 April 2004: nothing later may name it.
TEST(VatMethods, EachRowNamesALawOfItsDays) {
  const Day second = VatDay(2004, 5, 1);
  for (const VatRate& rate : VatRates()) EXPECT_EQ(rate.last >= second && rate.law == "588/1992", false);
  for (const VatMethodRow& row : VatMethods()) EXPECT_EQ(row.last >= second && row.law == "588/1992", false);
}

// The quotients that the tax administration published.
TEST(Vat, CoefficientsAreThoseOfTheLaw) {
  EXPECT_EQ(VatCoefficient(21), 1736);
  EXPECT_EQ(VatCoefficient(20), 1667);
  EXPECT_EQ(VatCoefficient(19), 1597);
  EXPECT_EQ(VatCoefficient(15), 1304);
  EXPECT_EQ(VatCoefficient(14), 1228);
  EXPECT_EQ(VatCoefficient(10), 909);
  EXPECT_EQ(VatCoefficient(9), 826);
  EXPECT_EQ(VatCoefficient(5), 476);
  EXPECT_EQ(VatCoefficient(0), 0);
}

struct AmountRow {
  Currency amount;
  int percent;
  VatMethod method;
  Currency base;
  Currency tax;
  Currency total;
  bool half;
};
const AmountRow kAmounts[] = {
    {Heller(10000), 21, VatMethod::FromBase, Heller(10000), Heller(2100), Heller(12100), false},
    {Heller(12100), 21, VatMethod::FromTotal, Heller(10000), Heller(2100), Heller(12100), false},
    {Heller(100000), 15, VatMethod::FromTotal, Heller(86957), Heller(13043), Heller(100000), false},
    {Heller(100000), 15, VatMethod::FromTotalByCoefficient, Heller(86960), Heller(13040), Heller(100000),
     false},
    // At 12 % base and tax of 0.14 both end on half a haléř.
    {Heller(14), 12, VatMethod::FromTotal, Heller(12), Heller(2), Heller(14), true},
    {Heller(-14), 12, VatMethod::FromTotal, Heller(-12), Heller(-2), Heller(-14), true},
    {Heller(50), 21, VatMethod::FromBase, Heller(50), Heller(11), Heller(61), true},
    {Heller(-50), 21, VatMethod::FromBase, Heller(-50), Heller(-11), Heller(-61), true},
    {Heller(0), 21, VatMethod::FromTotal, Heller(0), Heller(0), Heller(0), false},
    {Heller(777), 0, VatMethod::FromTotal, Heller(777), Heller(0), Heller(777), false},
    // Amounts finer than haléře stay as they are; the tax does not.
    {{12345}, 21, VatMethod::FromBase, {12345}, Heller(26), {14945}, false},
    {kLargest, 0, VatMethod::FromBase, kLargest, Heller(0), kLargest, false},
    {kSmallest, 0, VatMethod::FromTotal, kSmallest, Heller(0), kSmallest, false},
    // The nearest haléř by fractions without limits.
    {kLargest, 21, VatMethod::FromTotal, {7622621518061798207}, {1600750518792977600}, kLargest, false},
};

TEST(Vat, IsExactAndTheThirdAmountIsTheRest) {
  for (const AmountRow& row : kAmounts) {
    const auto vat = ComputeVat(row.amount, row.percent, row.method);
    ASSERT_TRUE(vat);
    EXPECT_EQ(vat.value.base.raw, row.base.raw);
    EXPECT_EQ(vat.value.tax.raw, row.tax.raw);
    EXPECT_EQ(vat.value.total.raw, row.total.raw);
    EXPECT_EQ(vat.value.half, row.half) << row.amount.raw;
  }
}

TEST(Vat, WhatLeavesTheRangeIsRefused) {
  EXPECT_EQ(ComputeVat(kLargest, 21, VatMethod::FromBase).code, Code::MoneyRange);
  EXPECT_EQ(ComputeVat(kSmallest, 1, VatMethod::FromBase).code, Code::MoneyRange);
  EXPECT_EQ(ComputeVat(Heller(1), -1, VatMethod::FromBase).code, Code::VatRateUnknown);
  EXPECT_EQ(ComputeVat(Heller(1), 101, VatMethod::FromBase).code, Code::VatRateUnknown);
  EXPECT_TRUE(ComputeVat(Heller(1), 100, VatMethod::FromTotal));
}

// The tax is the haléř nearest to the exact one: by its definition, without a division.
TEST(Vat, TaxIsNearestForEveryTotalUpToAThousandCrowns) {
  std::int64_t tried = 0;
  for (const int percent : {5, 9, 10, 12, 14, 15, 19, 20, 21, 22, 23}) {
    for (std::int64_t total = -100000; total <= 100000; ++total, ++tried) {
      const VatAmounts amounts = ComputeVat(Heller(total), percent, VatMethod::FromTotal).value;
      const std::int64_t tax = amounts.tax.raw / 100;
      const std::int64_t off = 2 * (tax * (100 + percent) - total * percent);
      ASSERT_LE(off < 0 ? -off : off, 100 + percent) << total;
      const bool half = off == 100 + percent || off == -(100 + percent);
      ASSERT_EQ(amounts.half, half) << total;
      // Away from zero: the rounded tax is the larger one.
      ASSERT_TRUE(!half || (off > 0) == (total > 0)) << total;
      ASSERT_EQ(amounts.base.raw + amounts.tax.raw, amounts.total.raw);
      ASSERT_EQ(amounts.total, Heller(total));
    }
  }
  test::Tried("totals", tried);
}

struct CrownRow {
  std::int64_t total;
  CrownRounding rounding;
  std::int64_t rounded;
};
const CrownRow kCrowns[] = {
    {12150, CrownRounding::Nearest, 12200},      {12149, CrownRounding::Nearest, 12100},
    {-12150, CrownRounding::Nearest, -12200},    {-12149, CrownRounding::Nearest, -12100},
    {12101, CrownRounding::AwayFromZero, 12200}, {-12101, CrownRounding::AwayFromZero, -12200},
    {12199, CrownRounding::TowardZero, 12100},   {-12199, CrownRounding::TowardZero, -12100},
    {12100, CrownRounding::AwayFromZero, 12100}, {0, CrownRounding::Nearest, 0},
};

TEST(Vat, TotalsAreRoundedToCrowns) {
  for (const CrownRow& row : kCrowns) {
    const auto rounded = RoundToCrowns(Heller(row.total), row.rounding);
    EXPECT_EQ(rounded.value.rounded, Heller(row.rounded)) << row.total;
    EXPECT_EQ(rounded.value.difference, Heller(row.rounded - row.total)) << row.total;
  }
  EXPECT_EQ(RoundToCrowns(kLargest, CrownRounding::AwayFromZero).code, Code::MoneyRange);
  EXPECT_EQ(RoundToCrowns(kSmallest, CrownRounding::AwayFromZero).code, Code::MoneyRange);
  EXPECT_TRUE(RoundToCrowns(kLargest, CrownRounding::TowardZero));
}

const Day kToday = VatDay(2026, 11, 21);

TEST(Recapitulation, SumsByRates) {
  const std::vector<VatLine> lines = {
      {Heller(10000), VatRateKind::Standard}, {Heller(333), VatRateKind::Reduced},
      {Heller(333), VatRateKind::Reduced},    {Heller(333), VatRateKind::Reduced},
      {Heller(500), VatRateKind::Zero},
  };
  const auto by_document = Recapitulate(lines, VatMethod::FromBase, VatPer::Document, kToday).value;
  const auto by_line = Recapitulate(lines, VatMethod::FromBase, VatPer::Line, kToday).value;
  const auto& reduced = by_document.rows[static_cast<std::size_t>(VatRateKind::Reduced)];
  EXPECT_EQ(reduced.percent, 12);
  EXPECT_EQ(reduced.lines, 3U);
  // 9.99 by 12 % is 1.1988; 3.33 by 12 % is 0.3996, three times 0.40.
  EXPECT_EQ(reduced.amounts.tax, Heller(120));
  EXPECT_EQ(by_line.rows[static_cast<std::size_t>(VatRateKind::Reduced)].amounts.tax, Heller(120));
  EXPECT_EQ(by_document.sum.base, Heller(11499));
  EXPECT_EQ(by_document.sum.tax, Heller(2220));
  EXPECT_EQ(by_document.sum.total, Heller(13719));
  EXPECT_EQ(by_document.rows[0].amounts.total, Heller(500));
  EXPECT_EQ(by_document.rows[3].lines, 0U);
  EXPECT_EQ(by_document.rows[3].rate, VatRateKind::SecondReduced);
}

TEST(Recapitulation, LinesAndDocumentDiffer) {
  const std::vector<VatLine> lines(3, {Heller(10), VatRateKind::Reduced});
  const auto by_document = Recapitulate(lines, VatMethod::FromBase, VatPer::Document, kToday).value;
  const auto by_line = Recapitulate(lines, VatMethod::FromBase, VatPer::Line, kToday).value;
  EXPECT_EQ(by_document.sum.tax, Heller(4));  // 3.6
  EXPECT_EQ(by_line.sum.tax, Heller(3));      // 1.2 three times
  const auto from_total = Recapitulate(lines, VatMethod::FromTotal, VatPer::Document, kToday).value;
  EXPECT_EQ(from_total.sum.total, Heller(30));
  EXPECT_EQ(from_total.sum.base, Heller(27));
}

TEST(Recapitulation, RefusesWithTheLine) {
  const VatLine good{Heller(100), VatRateKind::Standard};
  const std::vector<VatLine> unknown = {good, {Heller(100), VatRateKind::SecondReduced}};
  const auto refused = Recapitulate(unknown, VatMethod::FromBase, VatPer::Document, kToday);
  EXPECT_EQ(refused.code, Code::VatRateUnknown);
  EXPECT_EQ(refused.position, 1U);
  const std::vector<VatLine> large = {{kLargest, VatRateKind::Zero}, {kLargest, VatRateKind::Zero}};
  const auto too_large = Recapitulate(large, VatMethod::FromBase, VatPer::Line, kToday);
  EXPECT_EQ(too_large.code, Code::MoneyRange);
  EXPECT_EQ(too_large.position, 1U);
  const std::vector<VatLine> two = {{kLargest, VatRateKind::Zero}, {kLargest, VatRateKind::Standard}};
  EXPECT_EQ(Recapitulate(two, VatMethod::FromTotal, VatPer::Document, kToday).position, 2U);
  const auto unlawful =
      Recapitulate(std::vector{good}, VatMethod::FromTotalByCoefficient, VatPer::Document, kToday);
  EXPECT_EQ(unlawful.code, Code::VatMethod);
  EXPECT_TRUE(Recapitulate({}, VatMethod::FromBase, VatPer::Line, kToday));
}

}  // namespace
}  // namespace ravo::czech
