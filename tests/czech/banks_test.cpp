#include <ravo/czech/banks.h>

#include <array>
#include <string_view>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

TEST(Banks, TheBuiltInListKnowsTheLargeOnesAndNamesItsDay) {
  const BankList list = BuiltInBanks();
  EXPECT_EQ(PartsOf(list.date), (DateParts{2022, 11, 13}));
  const BankAnswer answer = FindBank(list, 800, DayOf({2026, 11, 21}));
  ASSERT_TRUE(answer.bank);
  EXPECT_EQ(answer.code, Code::Correct);
  EXPECT_EQ(answer.bank->name, "Česká spořitelna, a.s.");
  EXPECT_EQ(answer.bank->bic, "GIBACZPX");
  EXPECT_TRUE(answer.bank->clears);
  EXPECT_EQ(answer.list_date, list.date);
  EXPECT_EQ(answer.days_after, 1469);
}

TEST(Banks, UnknownIsAnAnswerOfItsOwn) {
  const BankAnswer answer = FindBank(BuiltInBanks(), 9999, DayOf({2022, 11, 12}));
  EXPECT_EQ(answer.bank, nullptr);
  EXPECT_EQ(answer.code, Code::BankUnknown);
  EXPECT_EQ(answer.days_after, -1);
  EXPECT_EQ(FindBank({}, 800, {}).code, Code::BankEmpty);
}

constexpr std::string_view kNewer =
    "\xEF\xBB\xBFKód platebního styku;Poskytovatel platebních služeb;BIC kód (SWIFT);Systém CERTIS\r\n"
    "0800;Česká spořitelna, a.s.;GIBACZPX;A\r\n"
    "\r\n"
    "0100; \"Komerční banka, a.s.\" ;KOMBCZPP;A\r\n"
    "2275;Podnikatelská družstevní záložna;;";

TEST(Banks, ANewerListIsReadAndSorted) {
  std::array<Bank, 8> room;
  const auto count = ReadBankList(kNewer, room);
  ASSERT_TRUE(count);
  ASSERT_EQ(count.value, 3U);
  const BankList list{std::span(room).first(3), DayOf({2026, 1, 1})};
  EXPECT_EQ(FindBank(list, 100, list.date).bank->name, "Komerční banka, a.s.");
  EXPECT_EQ(FindBank(list, 800, list.date).bank->bic, "GIBACZPX");
  EXPECT_FALSE(FindBank(list, 2275, list.date).bank->clears);
  EXPECT_EQ(FindBank(list, 2275, list.date).bank->bic, "");
  EXPECT_EQ(FindBank(list, 300, list.date).code, Code::BankUnknown);
}

struct BrokenRow {
  std::string_view text;
  Code code;
  std::size_t position;
};
const BrokenRow kBroken[] = {
    {"", Code::BankEmpty, 0},
    {"code;name;BIC;CERTIS\n", Code::BankEmpty, 21},
    {"code\n0100;A;B", Code::BankLine, 5},
    {"code\n0100;A;B;A;C\n", Code::BankLine, 5},
    {"code\n0100;A;B;A\n100;A;B;A\n", Code::BankCode, 16},
    {"code\n01OO;A;B;A\n", Code::BankCode, 5},
    {"code\n0100;A;B;A\n0300;A;B;A\n0100;C;B;A\n", Code::BankTwice, 32},
    {"code\n0100;A;B;A\n0300;A;B;A\n0400;A;B;A\n0500;A;B;A\n", Code::BankRoom, 38},
};

TEST(Banks, ABrokenListIsRefusedWithItsLine) {
  for (const BrokenRow& row : kBroken) {
    std::array<Bank, 3> room;
    const auto count = ReadBankList(row.text, room);
    EXPECT_EQ(count.code, row.code) << row.text;
    EXPECT_EQ(count.position, row.position) << row.text;
  }
}

}  // namespace
}  // namespace ravo::czech
