#include <ravo/runtime/number_parse.h>
#include <ravo/utils/strings/numbers.h>

#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kMin64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMax64 = std::numeric_limits<std::int64_t>::max();

struct NumberRow {
  const char* text;
  std::int32_t value;
  std::size_t error;
};

constexpr NumberRow kNumberRows[] = {
    {"0", 0, 0},
    {"  42", 42, 0},
    {"-7", -7, 0},
    {"+7", 7, 0},
    {"007", 7, 0},
    {"2147483647", kMax, 0},
    {"-2147483648", kMin, 0},
    {"2147483648", 0, 10},
    {"-2147483649", 0, 11},
    {"99999999999", 0, 10},
    {"", 0, 1},
    {"  ", 0, 3},
    {"-", 0, 2},
    {"+-1", 0, 2},
    {"12a", 0, 3},
    {"12 ", 0, 3},
    {"$1F", 31, 0},
    {"0x1f", 31, 0},
    {"X1f", 31, 0},
    {"-$10", -16, 0},
    {"$FFFFFFFF", -1, 0},
    {"$100000000", 0, 10},
    {"$", 0, 2},
    {"0x", 0, 3},
    {"$G", 0, 2},
    {"0$1", 0, 2},
    {"A", 0, 1},
};

std::u16string Wide(std::string_view text) { return {text.begin(), text.end()}; }

TEST(ValIntW, Rows) {
  for (const NumberRow& row : kNumberRows) {
    const std::u16string text = Wide(row.text);
    std::size_t error = 99;
    EXPECT_EQ(ValIntW(text, error), row.value) << row.text;
    EXPECT_EQ(error, row.error) << row.text;
    EXPECT_EQ(ValIntW(text.data(), text.size(), error), row.value) << row.text;
    EXPECT_EQ(TryParseInteger(text).has_value(), row.error == 0) << row.text;
    EXPECT_EQ(TryParseInteger(text).value_or(0), row.value) << row.text;
  }
}
TEST(ValIntW, NullAndForeignDigits) {
  std::size_t error = 0;
  EXPECT_EQ(ValIntW(nullptr, 0, error), 0);
  EXPECT_EQ(error, 1u);
  EXPECT_EQ(ValIntW(u"1\u0661", error), 0);
  EXPECT_EQ(error, 2u);
}
TEST(ValIntA, Rows) {
  for (const NumberRow& row : kNumberRows) {
    std::size_t error = 99;
    EXPECT_EQ(ValIntA(row.text, error), row.value) << row.text;
    EXPECT_EQ(error, row.error) << row.text;
  }
  std::size_t error = 99;
  EXPECT_EQ(ValIntA("123", 2, error), 12);
  EXPECT_EQ(ValIntA("1\xB2", error), 0);
  EXPECT_EQ(error, 2u);
}
TEST(ValInt, IsTheWideMember) {
  std::size_t error = 99;
  EXPECT_EQ(ValInt(u"-5", error), -5);
  EXPECT_EQ(ValInt(u"123", 2, error), 12);
  EXPECT_EQ(error, 0u);
}
TEST(ValInt64A, Rows) {
  std::size_t error = 99;
  EXPECT_EQ(ValInt64A("9223372036854775807", error), kMax64);
  EXPECT_EQ(ValInt64A("-9223372036854775808", error), kMin64);
  EXPECT_EQ(error, 0u);
  EXPECT_EQ(ValInt64A("9223372036854775808", error), 0);
  EXPECT_EQ(error, 19u);
  EXPECT_EQ(ValInt64A("123", 2, error), 12);
}
TEST(ValInt64W, Rows) {
  std::size_t error = 99;
  EXPECT_EQ(ValInt64W(u"$FFFFFFFFFFFFFFFF", error), -1);
  EXPECT_EQ(error, 0u);
  EXPECT_EQ(ValInt64W(u"$FFFFFFFF", error), 0xFFFFFFFF);
  EXPECT_EQ(ValInt64W(u"18446744073709551616", error), 0);
  EXPECT_EQ(error, 20u);
  EXPECT_EQ(ValInt64W(u"123", 3, error), 123);
}

TEST(TryStrToIntW, LeavesTheValueWhereThereIsNone) {
  std::int32_t value = 5;
  EXPECT_TRUE(TryStrToIntW(u"12", value));
  EXPECT_EQ(value, 12);
  EXPECT_FALSE(TryStrToIntW(u"12x", value));
  EXPECT_EQ(value, 12);
}
TEST(TryStrToInt64W, Rows) {
  std::int64_t value = 5;
  EXPECT_TRUE(TryStrToInt64W(u"-9223372036854775808", value));
  EXPECT_EQ(value, kMin64);
  EXPECT_FALSE(TryStrToInt64W(u"", value));
}
TEST(StrToIntDefW, Rows) {
  EXPECT_EQ(StrToIntDefW(u"12", -1), 12);
  EXPECT_EQ(StrToIntDefW(u"2147483648", -1), -1);
}
TEST(StrToInt64DefW, Rows) {
  EXPECT_EQ(StrToInt64DefW(u"2147483648", -1), 2147483648);
  EXPECT_EQ(StrToInt64DefW(u"x", 7), 7);
}

TEST(HexToIntA, Rows) {
  EXPECT_EQ(HexToIntA("1f"), 31);
  EXPECT_EQ(HexToIntA("0000000000FF"), 255);
  EXPECT_EQ(HexToIntA("FFFFFFFF", 0), -1);
  EXPECT_EQ(HexToIntA("100000000", 7), 7);
  EXPECT_EQ(HexToIntA("", 7), 7);
  EXPECT_EQ(HexToIntA("$1", 7), 7);
  EXPECT_EQ(HexToIntA("1G"), -1);
}
TEST(HexToIntW, Rows) {
  EXPECT_EQ(HexToIntW(u"20AC"), 0x20AC);
  EXPECT_EQ(HexToIntW(u"č", 7), 7);
}
TEST(BufHexToIntA, Rows) {
  EXPECT_EQ(BufHexToIntA("20x", 2), 0x20);
  EXPECT_EQ(BufHexToIntA(nullptr, 0, 7), 7);
}
TEST(BufHexToIntW, Rows) {
  EXPECT_EQ(BufHexToIntW(u"20x", 2), 0x20);
  EXPECT_EQ(BufHexToIntW(nullptr, 0, 7), 7);
}
TEST(HexCodePointToInt, EveryUnit) {
  const std::string digits = "0123456789abcdef";
  for (char32_t c = 0; c < 0x11000; ++c) {
    const char32_t lower = c >= U'A' && c <= U'F' ? c + 32 : c;
    const std::size_t wanted = lower < 0x80 ? digits.find(static_cast<char>(lower)) : std::string::npos;
    ASSERT_EQ(HexCodePointToInt(c), wanted == std::string::npos ? -1 : static_cast<int>(wanted))
        << static_cast<unsigned>(c);
  }
}

TEST(IntToStrA, Rows) {
  EXPECT_EQ(IntToStrA(std::int32_t{0}), "0");
  EXPECT_EQ(IntToStrA(kMin), "-2147483648");
  EXPECT_EQ(IntToStrA(kMin64), "-9223372036854775808");
}
TEST(IntToStrW, Rows) {
  EXPECT_EQ(IntToStrW(kMax), u"2147483647");
  EXPECT_EQ(IntToStrW(kMax64), u"9223372036854775807");
}
TEST(IntToHexA, Rows) {
  EXPECT_EQ(IntToHexA(std::int32_t{255}, 4), "00FF");
  EXPECT_EQ(IntToHexA(std::int32_t{-1}), "FFFFFFFF");
  EXPECT_EQ(IntToHexA(std::int64_t{-1}), "FFFFFFFFFFFFFFFF");
  EXPECT_EQ(IntToHexA(std::int32_t{0}, 0), "0");
}
TEST(IntToHexW, Rows) {
  EXPECT_EQ(IntToHexW(std::int32_t{0x20AC}, 2), u"20AC");
  EXPECT_EQ(IntToHexW(std::int64_t{10}, 20), u"0000000000000000000A");
}

TEST(IntToStrW, ComesBackAsTheSameValue) {
  std::mt19937_64 random(5);
  for (int round = 0; round < 10000; ++round) {
    const auto value = static_cast<std::int64_t>(random()) >> random() % 64;
    std::int64_t back = 0;
    ASSERT_TRUE(TryStrToInt64W(IntToStrW(value), back));
    ASSERT_EQ(back, value);
    ASSERT_TRUE(TryStrToInt64W(u"$" + IntToHexW(value), back));
    ASSERT_EQ(back, value);
  }
}

}  // namespace
}  // namespace ravo::DIUtils
