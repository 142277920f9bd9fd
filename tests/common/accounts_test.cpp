#include <ravo/common/accounts.h>
#include <ravo/runtime/error.h>

#include <random>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

TEST(IsNumbers, TakesAsciiDigitsAlone) {
  EXPECT_TRUE(IsNumbers(u"0123456789"));
  for (const std::u16string_view text :
       {u"", u" 1", u"1 ", u"-1", u"+1", u"1.0", u"1a", u"１", u"٣", u"/", u":"}) {
    EXPECT_FALSE(IsNumbers(text));
  }
  EXPECT_FALSE(IsNumbers(std::u16string_view(u"1\0", 2)));
}

TEST(IsNumbers, EveryCodeUnit) {
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    const auto ch = static_cast<char16_t>(unit);
    EXPECT_EQ(IsNumbers(std::u16string_view(&ch, 1)), unit >= 0x30 && unit <= 0x39) << unit;
  }
}

TEST(ValidSU, IsExactlyThreeDigits) {
  EXPECT_TRUE(ValidSU(u"604"));
  for (const std::u16string_view text : {u"", u"60", u"6040", u"60a", u" 60"}) EXPECT_FALSE(ValidSU(text));
}

TEST(ValidAU, IsUpToThreeDigitsAndMayBeEmpty) {
  for (const std::u16string_view text : {u"", u"0", u"12", u"999"}) EXPECT_TRUE(ValidAU(text));
  for (const std::u16string_view text : {u"1234", u"1a", u" "}) EXPECT_FALSE(ValidAU(text));
}

TEST(ValidUcet, IsThreeToSixDigits) {
  for (const std::u16string_view text : {u"123", u"1234", u"12345", u"123456"}) EXPECT_TRUE(ValidUcet(text));
  for (const std::u16string_view text : {u"", u"12", u"1234567", u"12a", u"123 "})
    EXPECT_FALSE(ValidUcet(text));
}

TEST(UcetNaSUAU, SplitsWithoutChecking) {
  struct Row {
    std::u16string_view ucet, su, au;
  };
  constexpr Row rows[] = {
      {u"604100", u"604", u"100"},   {u"604 1 ", u"604", u"1"},
      {u"60", u"60", u""},           {u"", u"", u""},
      {u"604", u"604", u""},         {u" 60 4", u" 60", u"4"},
      {u"abcdefgh", u"abc", u"def"}, {u"604\t\x01 9", u"604", u""},
  };
  for (const Row& row : rows) {
    std::u16string su = u"old", au = u"old";
    UcetNaSUAU(row.ucet, su, au);
    EXPECT_EQ(su, row.su);
    EXPECT_EQ(au, row.au);
  }
}

TEST(UcetNaSUAU, TakesAnArgumentThatIsAlsoAResult) {
  std::u16string ucet = u"604100", au;
  UcetNaSUAU(ucet, ucet, au);
  EXPECT_EQ(ucet, u"604");
  EXPECT_EQ(au, u"100");
}

TEST(ValidVS, ChecksTheLuhnDigit) {
  EXPECT_TRUE(ValidVS(u"79927398713"));
  for (char16_t last = u'0'; last <= u'9'; ++last) {
    EXPECT_EQ(ValidVS(std::u16string(u"7992739871") + last), last == u'3');
  }
  for (const std::u16string_view text : {u"0", u"00", u"0000000000000000"}) EXPECT_TRUE(ValidVS(text));
  for (const std::u16string_view text : {u"", u" 0", u"0 ", u"7992739871x"}) EXPECT_FALSE(ValidVS(text));
}

// Luhn's rule in its usual form, with an unbounded sum.
bool PlainLuhn(std::u16string_view digits) {
  unsigned long long sum = 0;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    const unsigned digit = digits[digits.size() - 1 - i] - u'0';
    const unsigned value = i % 2 == 0 ? digit : 2 * digit;
    sum += value / 10 + value % 10;
  }
  return sum % 10 == 0;
}

TEST(ValidVS, EqualsThePlainRule) {
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i) {
    std::u16string digits;
    for (auto n = 1 + random() % 30; n > 0; --n) digits += static_cast<char16_t>(u'0' + random() % 10);
    EXPECT_EQ(ValidVS(digits), PlainLuhn(digits));
  }
}

#ifndef RAVO_SANITIZED
TEST(ValidVS, RaisesWhenTheSumLeaves32Bits) {
  // A 9 in every position: 2^31 / 9 digits are enough. The text of 480 MB needs a 64-bit machine.
  if constexpr (sizeof(void*) < 8) GTEST_SKIP() << "the text does not fit into 32-bit memory";
  EXPECT_THROW(static_cast<void>(ValidVS(std::u16string(238'609'300, u'9'))), OverflowError);
}
#endif

TEST(UcetMod11, ChecksBankAccounts) {
  for (const std::u16string_view text :
       {u"19-2000145399/0800", u"19-2000145399", u"192000145399", u"192000145399/0800",
        u" 19-2000145399/0800\t", u"19 2000 145399/0800/1", u"0", u"a0"}) {
    EXPECT_TRUE(UcetMod11(text));
  }
  for (const std::u16string_view text : {u"", u" ", u"abc", u"/0800", u"19-2000145398/0800", u"1"}) {
    EXPECT_FALSE(UcetMod11(text));
  }
}

// The weights 2^(n-i+1) mod 11 by definition, by repeated doubling.
bool PlainMod11(std::u16string_view digits) {
  int sum = 0, weight = 1;
  for (std::size_t i = digits.size(); i-- > 0;) {
    weight = weight * 2 % 11;
    sum += (digits[i] - u'0') * weight;
  }
  return sum % 11 == 0;
}

TEST(UcetMod11, EqualsThePlainRuleUpTo62Digits) {
  std::mt19937 random(2);
  for (int i = 0; i < 20000; ++i) {
    std::u16string digits;
    for (auto n = 1 + random() % 62; n > 0; --n) digits += static_cast<char16_t>(u'0' + random() % 10);
    EXPECT_EQ(UcetMod11(digits), PlainMod11(digits));
  }
}

TEST(UcetMod11, PrefixAndBaseNumberFormOneSum) {
  // Neither part is valid alone, but their sum is.
  EXPECT_FALSE(UcetMod11(u"1"));
  EXPECT_FALSE(UcetMod11(u"9"));
  EXPECT_TRUE(UcetMod11(u"1-9"));
}

TEST(UcetMod11, RaisesBeyond62Digits) {
  EXPECT_TRUE(UcetMod11(std::u16string(62, u'0')));
  EXPECT_THROW(static_cast<void>(UcetMod11(std::u16string(63, u'0'))), FloatError);
  EXPECT_THROW(static_cast<void>(UcetMod11(std::u16string(63, u'9') + u"/0100")), FloatError);
  EXPECT_TRUE(UcetMod11(u"0/" + std::u16string(100, u'9')));
}

TEST(CalculateEAN, CompletesAndComparesCodes) {
  struct Row {
    std::u16string_view code;
    bool valid;
    std::u16string_view old_check, new_check, full;
  };
  constexpr Row rows[] = {
      {u"400638133393", true, u" ", u"1", u"4006381333931"},
      {u"4006381333932", true, u"2", u"1", u"4006381333931"},
      {u" 4006381333931 ", true, u"1", u"1", u"4006381333931"},
      {u"1234567", true, u" ", u"0", u"12345670"},
      {u"12345671", true, u"1", u"0", u"12345670"},
      {u"0000000", true, u" ", u"0", u"00000000"},
      {u"123456789", false, u" ", u" ", u""},
      {u"12345678901", false, u" ", u" ", u""},
      {u"123456x", false, u" ", u" ", u""},
      {u"", false, u" ", u" ", u""},
  };
  for (const Row& row : rows) {
    std::u16string old_check = u"?", new_check = u"?", full = u"?";
    EXPECT_EQ(CalculateEAN(row.code, old_check, new_check, full), row.valid);
    EXPECT_EQ(old_check, row.old_check);
    EXPECT_EQ(new_check, row.new_check);
    EXPECT_EQ(full, row.full);
  }
}

TEST(CalculateEAN, TakesAnArgumentThatIsAlsoAResult) {
  std::u16string code = u"4006381333932", old_check, new_check;
  EXPECT_TRUE(CalculateEAN(code, old_check, new_check, code));
  EXPECT_EQ(code, u"4006381333931");
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
