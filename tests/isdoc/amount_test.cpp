#include <ravo/isdoc/amount.h>

#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace ravo::isdoc {
namespace {

std::string Told(std::string_view text) {
  const auto amount = Amount::Read(text);
  return amount ? amount->Text() : "none";
}

Amount Of(std::string_view text) { return Amount::Read(text).value(); }

TEST(Amounts, AreWhatADecimalOfASchemaIs) {
  struct Row {
    std::string_view text;
    std::string_view told;
  };
  const Row rows[] = {
      {"0", "0.00"},
      {"-0", "0.00"},
      {"+1.5", "1.50"},
      {" \t\r\n1.50 \n", "1.50"},
      {".5", "0.50"},
      {"5.", "5.00"},
      {"-0.005", "-0.005"},
      {"1.2345600", "1.23456"},
      {"0001", "1.00"},
      {"999999999999999999.999999999999999999", "999999999999999999.999999999999999999"},
      {"0000000000000000000001", "1.00"},
      {"1.00000000000000000000", "1.00"},
      {"1000000000000000000", "none"},
      {"0.0000000000000000001", "none"},
      {"", "none"},
      {".", "none"},
      {"-", "none"},
      {"1e5", "none"},
      {"1,5", "none"},
      {"1 000", "none"},
      {"--1", "none"},
      {"1.2.3", "none"},
      {"NaN", "none"},
  };
  for (const Row& row : rows) EXPECT_EQ(Told(row.text), row.told) << row.text;
}

TEST(Amounts, RoundHalvesAwayFromZero) {
  EXPECT_EQ(Of("0.125").Rounded(2).Text(), "0.13");
  EXPECT_EQ(Of("-0.125").Rounded(2).Text(), "-0.13");
  EXPECT_EQ(Of("0.1249999").Rounded(2).Text(), "0.12");
  EXPECT_EQ(Of("0.5").Rounded(0).Text(), "1.00");
  EXPECT_EQ(Of("1").Rounded(2).Text(), "1.00");
}

TEST(Amounts, AreExact) {
  EXPECT_EQ((Of("0.1") + Of("0.2")).Text(), "0.30");
  EXPECT_EQ((Of("0.3") - Of("0.30")).Text(), "0.00");
  EXPECT_EQ((Of("1") - Of("2.5")).Text(), "-1.50");
  EXPECT_EQ((Of("-1.5") + Of("-1.5")).Text(), "-3.00");
  EXPECT_EQ((Of("-3.58") * Of("0.4")).Text(), "-1.432");
  EXPECT_EQ(
      (Of("999999999999999999.999999999999999999") * Of("999999999999999999.999999999999999999")).Text(),
      "999999999999999999999999999999999998.000000000000000000000000000000000001");
  EXPECT_EQ(Amount(-5, 3).Text(), "-0.005");
  EXPECT_EQ(Of("12.3").Hundredth().Text(), "0.123");
  EXPECT_EQ(Of("1.500").HalfUnit().Text(), "0.0005");
  EXPECT_EQ(Of("49").HalfUnit().Text(), "0.005");
}

TEST(Amounts, CompareByValue) {
  EXPECT_EQ(Of("1.50"), Of("1.5"));
  EXPECT_EQ(Of("-0"), Of("0"));
  EXPECT_LT(Of("-2"), Of("-1.99"));
  EXPECT_LT(Of("-0.01"), Of("0"));
  EXPECT_GT(Of("10"), Of("9.999999999"));
}

TEST(Amounts, AreDividedWithOneRounding) {
  const auto quotient = [](std::string_view left, std::string_view right, int decimals) {
    const auto result = Of(left).DividedBy(Of(right), decimals);
    return result ? result->Text() : "none";
  };
  EXPECT_EQ(quotient("1", "3", 4), "0.3333");
  EXPECT_EQ(quotient("2", "3", 4), "0.6667");
  EXPECT_EQ(quotient("-1", "8", 2), "-0.13");
  EXPECT_EQ(quotient("0.00375", "0.5", 2), "0.01");
  EXPECT_EQ(quotient("147", "1.21", 4), "121.4876");
  EXPECT_EQ(quotient("0.0449999", "0.5", 1), "0.10");
  EXPECT_EQ(quotient("1", "0", 2), "none");
  EXPECT_EQ(quotient("1", "10000000000", 2), "none");
}

}  // namespace
}  // namespace ravo::isdoc
