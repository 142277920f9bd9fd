#include "amount.h"

#include <limits>
#include <optional>

#include <gtest/gtest.h>

namespace tool {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

TEST(ReadAmount, Rows) {
  struct Row {
    std::string_view text;
    std::int64_t raw;
    std::string_view again;  // as AmountText writes it
  };
  constexpr Row rows[] = {
      {"0", 0, "0.00"},
      {"1.234", 12340, "1.234"},
      {"-1,2345", -12345, "-1,2345"},
      {"+5", 50000, "5.00"},
      {"007.50", 75000, "7.50"},
      {".5", 5000, "0.50"},
      {"-,5", -5000, "-0,50"},
      {" 1 ", 10000, " 1.00 "},
      {"1.2300000", 12300, "1.23"},
      {"1 234,56", 12345600, "1 234,56"},
      {"1\u00A0234\u00A0567", 12345670000, "1\u00A0234\u00A0567,00"},
      {"1\u202F234,5", 12345000, "1\u202F234,50"},
      {"12\u2009345.6", 123456000, "12\u2009345.60"},
      {"1.234,56", 12345600, "1.234,56"},
      {"1,234.56", 12345600, "1,234.56"},
      {"1.234.567", 12345670000, "1.234.567,00"},
      {"1,234,567", 12345670000, "1,234,567.00"},
      {"1,234", 12340, "1,234"},
      {"12 Kč", 120000, "12,00 Kč"},
      {"-1 234,5 Kč", -12345000, "-1 234,50 Kč"},
      {"\u22121,50", -15000, "\u22121,50"},
      {"12,- Kč", 120000, "12,00 Kč"},
      {"12,--", 120000, "12,00"},
      {"12,–", 120000, "12,00"},
      {"1 234,-", 12340000, "1 234,00"},
      {"1 234,--", 12340000, "1 234,00"},
      {"12.500,-", 125000000, "12.500,00"},
      {"1.234.567,- Kč", 12345670000, "1.234.567,00 Kč"},
      {"-1\u00A0234,– Kč", -12340000, "-1\u00A0234,00 Kč"},
      {"12,50 Kč", 125000, "12,50 Kč"},
      {"1.234,5 EUR", 12345000, "1.234,50 EUR"},
      {"1234.567 EUR", 12345670, "1234.567 EUR"},
      {"12.5 EUR", 125000, "12.50 EUR"},
      {"CZK 12", 120000, "CZK 12,00"},
      {"€12.5", 125000, "€12.50"},
      {"0.500 Kč", 5000, "0.50 Kč"},
      {"12,500 Kč", 125000, "12,50 Kč"},
      {"922337203685477.5807", kMost, "922337203685477.5807"},
      {"-922 337 203 685 477,5808", kLeast, "-922 337 203 685 477,5808"},
  };
  for (const Row& row : rows) {
    const auto read = ReadAmount(row.text);
    ASSERT_TRUE(std::holds_alternative<Amount>(read)) << row.text;
    EXPECT_EQ(std::get<Amount>(read).value.raw, row.raw) << row.text;
    EXPECT_EQ(AmountText(std::get<Amount>(read).value, std::get<Amount>(read).notation), row.again);
  }
}

TEST(ReadAmount, Faults) {
  struct Row {
    std::string_view text;
    AmountFault fault;
  };
  constexpr Row rows[] = {
      {"", AmountFault::NotAnAmount},
      {"-", AmountFault::NotAnAmount},
      {".", AmountFault::NotAnAmount},
      {"5.", AmountFault::NotAnAmount},
      {"5,", AmountFault::NotAnAmount},
      {"1e5", AmountFault::NotAnAmount},
      {"--1", AmountFault::NotAnAmount},
      {"1-", AmountFault::NotAnAmount},
      {"x1", AmountFault::NotAnAmount},
      {"12 Kčs", AmountFault::NotAnAmount},
      {"12 eur", AmountFault::NotAnAmount},
      {"12,-5", AmountFault::NotAnAmount},
      {"1\t234", AmountFault::NotAnAmount},
      {"\xA0"
       "12",
       AmountFault::NotAnAmount},
      {"12 34", AmountFault::Groups},
      {"1234 567", AmountFault::Groups},
      {"1 234 56", AmountFault::Groups},
      {"1 234.567,8", AmountFault::Groups},
      {"1 234\u00A0567", AmountFault::Groups},
      {"1.2.3", AmountFault::Groups},
      {"1.23,4", AmountFault::Groups},
      {",123.5", AmountFault::Groups},
      {"12.5,-", AmountFault::Groups},
      {"12.50,-", AmountFault::Groups},
      {"12,500,-", AmountFault::Groups},
      {"12,5,-", AmountFault::Groups},
      {"0.500,-", AmountFault::Groups},
      {"0 500,00", AmountFault::Groups},
      {"1 234.567,-", AmountFault::Groups},
      {"1.23456", AmountFault::Decimals},
      {"1.234 Kč", AmountFault::Ambiguous},
      {"12.500 CZK", AmountFault::Ambiguous},
      {"12.500 EUR", AmountFault::Ambiguous},
      {"12,500 €", AmountFault::Ambiguous},
      {"$1,234", AmountFault::Ambiguous},
      {"922337203685477.5808", AmountFault::Range},
      {"-922337203685477.5809", AmountFault::Range},
      {"99999999999999999999999", AmountFault::Range},
  };
  for (const Row& row : rows) {
    const auto read = ReadAmount(row.text);
    ASSERT_TRUE(std::holds_alternative<AmountFault>(read)) << row.text;
    EXPECT_EQ(std::get<AmountFault>(read), row.fault) << row.text;
  }
}

TEST(AmountText, Rows) {
  EXPECT_EQ(AmountText({0}), "0.00");
  EXPECT_EQ(AmountText({5}), "0.0005");
  EXPECT_EQ(AmountText({-12340}), "-1.234");
  EXPECT_EQ(AmountText({123000}), "12.30");
  EXPECT_EQ(AmountText({kLeast}), "-922337203685477.5808");
  EXPECT_EQ(AmountText({kLeast}, {"", "", "-", " ", ','}), "-922 337 203 685 477,5808");
  EXPECT_EQ(AmountText({9'990'000}, {"", "", "-", " ", '.'}), "999.00");
  EXPECT_EQ(AmountText({9'999'999}, {"", "", "-", " ", '.'}), "999.9999");
  EXPECT_EQ(AmountText({10'000'000}, {"", "", "-", " ", '.'}), "1 000.00");
}

}  // namespace
}  // namespace tool
