// Accounts, IBANs, BICs, symbols, postcodes and numbers of goods and books.
#include "czech/kind_rows.h"
#include <ravo/czech/account.h>
#include <ravo/czech/isbn.h>

#include <string>
#include <string_view>

namespace ravo::czech {
namespace {

using test::KindRow;

const KindRow kPaymentRows[] = {
    {Kind::Iban, {"CZ6508000000192000145399", "CZ6508000000192000145399"}},
    {Kind::Iban, {"IBAN: CZ65 0800 0000 1920 0014 5399", "CZ6508000000192000145399"}},
    {Kind::Iban, {"cz94\u00a05500 0000 0010 1103 8930", "CZ9455000000001011038930"}},
    {Kind::Iban, {"DE89370400440532013000", "DE89370400440532013000"}},
    {Kind::Iban, {"GB29 NWBK 6016 1331 9268 19", "GB29NWBK60161331926819"}},
    {Kind::Iban, {"BE31435411161155", "BE31435411161155"}},
    {Kind::Iban, {"ES9121000418450200051332", "ES9121000418450200051332"}},
    {Kind::Iban, {"NO93 8601 1117 947", "NO9386011117947"}},
    {Kind::Iban, {"ME25505000012345678951", "ME25505000012345678951"}},
    {Kind::Iban, {"SK31 1200 0000 1987 4263 7541", "SK3112000000198742637541"}},
    {Kind::Iban, {"MT84MALT011000012345MTLCAST001S", "MT84MALT011000012345MTLCAST001S"}},
    {Kind::Iban, {"FR1420041010050500013M02606", "FR1420041010050500013M02606"}},
    {Kind::Iban, {"LC55HEMM000100010012001200023015", "LC55HEMM000100010012001200023015"}},
    {Kind::Iban, {"", "", Code::IbanEmpty, 0}},
    {Kind::Iban, {"C", "", Code::IbanCountry, 0}},
    {Kind::Iban, {"6508000000192000145399", "", Code::IbanCountry, 0}},
    {Kind::Iban, {"US6508000000192000145399", "", Code::IbanCountry, 0}},
    {Kind::Iban, {"IBAN XX65", "", Code::IbanCountry, 5}},
    {Kind::Iban, {"CZ650800000019200014539", "", Code::IbanLength, 23}},
    {Kind::Iban, {"CZ65080000001920001453999", "", Code::IbanLength, 24}},
    {Kind::Iban, {"CZ65 0800 0000 1920 0014 5399 1234 5678 9", "", Code::IbanLength, 30}},
    {Kind::Iban, {"CZ6608000000192000145399", "", Code::IbanChecksum, 2}},
    {Kind::Iban, {"CZ6508000000192000145398", "", Code::IbanChecksum, 2}},
    {Kind::Iban, {"CZX508000000192000145399", "", Code::IbanForm, 2}},
    {Kind::Iban, {"CZ6X08000000192000145399", "", Code::IbanForm, 3}},
    {Kind::Iban, {"CZ6508000000192000I45399", "", Code::IbanForm, 18}},
    {Kind::Iban, {"GB29NWB160161331926819", "", Code::IbanForm, 7}},
    {Kind::Iban, {"CZ65 0800/0000 1920 0014 5399", "", Code::IbanCharacter, 9}},
    // Check digits 00, 01 and 99 leave the same remainder as 97, 98 and 02.
    {Kind::Iban, {"CZ9701000000000000003123", "", Code::IbanChecksum, 2}},
    // Right by ISO 7064, and no account by the weights: 19-2000145398 and its own check digits.
    {Kind::Iban, {"CZ9208000000192000145398", "", Code::IbanNational, 4}},
    {Kind::Bic, {"KOMBCZPP", "KOMBCZPP"}},
    {Kind::Bic, {"KOMBCZPPXXX", "KOMBCZPPXXX"}},
    {Kind::Bic, {"BIC: gibaczpx", "GIBACZPX"}},
    {Kind::Bic, {"SWIFT ABNA BE 2A", "ABNABE2A"}},
    {Kind::Bic, {"BICSCZPP", "BICSCZPP"}},
    {Kind::Bic, {"", "", Code::BicEmpty, 0}},
    {Kind::Bic, {"KOMBCZP", "", Code::BicLength, 7}},
    {Kind::Bic, {"KOMBCZPP1", "", Code::BicLength, 9}},
    {Kind::Bic, {"KOMBCZPPXXXX", "", Code::BicLength, 11}},
    {Kind::Bic, {"AGRIF2PP", "", Code::BicForm, 5}},
    {Kind::Bic, {"KOMB.CZPP", "", Code::BicCharacter, 4}},
    {Kind::Account, {"19-2000145399/0800", "19-2000145399/0800"}},
    {Kind::Account, {"34278-0727558021/0100", "34278-727558021/0100"}},
    {Kind::Account, {"000019-2000145399/0800", "19-2000145399/0800"}},
    {Kind::Account, {"000000-2000145399/0800", "2000145399/0800"}},
    {Kind::Account, {"č. ú. 19 - 2000145399 / 0800", "19-2000145399/0800"}},
    {Kind::Account, {"číslo účtu: 1011038930/5500", "1011038930/5500"}},
    {Kind::Account, {"Účet 19\u20132000145399/0800", "19-2000145399/0800"}},
    {Kind::Account, {"51/0100", "51/0100"}},
    {Kind::Account, {"", "", Code::AccountEmpty, 0}},
    {Kind::Account, {"19-2000145399", "", Code::AccountBank, 13}},
    {Kind::Account, {"19-2000145399/", "", Code::AccountBank, 14}},
    {Kind::Account, {"19-2000145399/080", "", Code::AccountBank, 17}},
    {Kind::Account, {"19-2000145399/08000", "", Code::AccountBank, 18}},
    {Kind::Account, {"-2000145399/0800", "", Code::AccountPrefixLength, 0}},
    {Kind::Account, {"0000019-2000145399/0800", "", Code::AccountPrefixLength, 6}},
    {Kind::Account, {"19-20001453990/0800", "", Code::AccountLength, 13}},
    {Kind::Account, {"19-2/0800", "", Code::AccountLength, 4}},
    {Kind::Account, {"/0800", "", Code::AccountLength, 0}},
    {Kind::Account, {"20-2000145399/0800", "", Code::AccountPrefixChecksum, 1}},
    {Kind::Account, {"19-2000145398/0800", "", Code::AccountChecksum, 12}},
    {Kind::Account, {"00/0800", "", Code::AccountZero, 0}},
    {Kind::Account, {"19-0000000000/0800", "", Code::AccountZero, 3}},
    {Kind::Account, {"19-2000-145399/0800", "", Code::AccountCharacter, 7}},
    {Kind::Account, {"19-2000145399/08/00", "", Code::AccountCharacter, 16}},
    {Kind::Account, {"19-2000145399/0800 Kč", "", Code::AccountCharacter, 19}},
    {Kind::Account, {"CZ6508000000192000145399", "", Code::AccountCharacter, 0}},
    {Kind::VariableSymbol, {"2026000579", "2026000579"}},
    {Kind::VariableSymbol, {"VS: 2026 000 579", "2026000579"}},
    {Kind::VariableSymbol, {"variabilní symbol 0012", "12"}},
    {Kind::VariableSymbol, {"v.s.=0", "0"}},
    {Kind::VariableSymbol, {"0000000000", "0"}},
    {Kind::VariableSymbol, {"", "", Code::VsEmpty, 0}},
    {Kind::VariableSymbol, {"20260005790", "", Code::VsLength, 10}},
    {Kind::VariableSymbol, {"20260024O7", "", Code::VsCharacter, 8}},
    {Kind::VariableSymbol, {"-1", "", Code::VsCharacter, 0}},
    {Kind::ConstantSymbol, {"KS 308", "0308"}},
    {Kind::ConstantSymbol, {"00000308", "0308"}},
    {Kind::ConstantSymbol, {"0", "0000"}},
    {Kind::ConstantSymbol, {"1234567890", "1234567890"}},
    {Kind::ConstantSymbol, {"", "", Code::KsEmpty, 0}},
    {Kind::ConstantSymbol, {"12345678901", "", Code::KsLength, 10}},
    {Kind::ConstantSymbol, {"03.08", "", Code::KsCharacter, 2}},
    {Kind::SpecificSymbol, {"spec. symbol: 042", "42"}},
    {Kind::SpecificSymbol, {"", "", Code::SsEmpty, 0}},
    {Kind::SpecificSymbol, {"12345678901", "", Code::SsLength, 10}},
    {Kind::SpecificSymbol, {"A1", "", Code::SsCharacter, 0}},
    {Kind::PostCode, {"110 00", "11000"}},
    {Kind::PostCode, {"PSČ 798\u00a061", "79861"}},
    {Kind::PostCode, {"", "", Code::PostCodeEmpty, 0}},
    {Kind::PostCode, {"1100", "", Code::PostCodeLength, 4}},
    {Kind::PostCode, {"110000", "", Code::PostCodeLength, 5}},
    {Kind::PostCode, {"811 01", "", Code::PostCodeFirst, 0}},
    {Kind::PostCode, {"011 01", "", Code::PostCodeFirst, 0}},
    {Kind::PostCode, {"110-00", "", Code::PostCodeCharacter, 3}},
    {Kind::Ean, {"73513537", "73513537"}},
    {Kind::Ean, {"978-0-471-11709-4", "9780471117094"}},
    {Kind::Ean, {"98412345678908", "98412345678908"}},
    {Kind::Ean, {"036000291452", "036000291452"}},
    {Kind::Ean, {"EAN: 8594001021512", "8594001021512"}},
    {Kind::Ean, {"EAN-13: 8594001021512", "8594001021512"}},
    {Kind::Ean, {"EAN 1300000000000", "1300000000000"}},
    {Kind::Ean, {"", "", Code::EanEmpty, 0}},
    {Kind::Ean, {"7351353", "", Code::EanLength, 7}},
    {Kind::Ean, {"735135378", "", Code::EanLength, 9}},
    {Kind::Ean, {"984123456789081", "", Code::EanLength, 14}},
    {Kind::Ean, {"8594001021513", "", Code::EanChecksum, 12}},
    {Kind::Ean, {"859400102151X", "", Code::EanCharacter, 12}},
    {Kind::Isbn, {"978-80-7367-313-0", "9788073673130"}},
    {Kind::Isbn, {"ISBN 80-200-0980-9", "8020009809"}},
    {Kind::Isbn, {"ISBN-13: 978-80-7367-313-0", "9788073673130"}},
    {Kind::Isbn, {"ISBN-10: 0-8044-2957-x", "080442957X"}},
    {Kind::Isbn, {"979-10-90636-07-1", "9791090636071"}},
    {Kind::Isbn, {"", "", Code::IsbnEmpty, 0}},
    {Kind::Isbn, {"978807367313", "", Code::IsbnLength, 12}},
    {Kind::Isbn, {"020009809", "", Code::IsbnLength, 9}},
    {Kind::Isbn, {"97880736731300", "", Code::IsbnLength, 13}},
    {Kind::Isbn, {"9788073673131", "", Code::IsbnChecksum, 12}},
    {Kind::Isbn, {"80-200-0980-8", "", Code::IsbnChecksum, 12}},
    {Kind::Isbn, {"9770028083655", "", Code::IsbnPrefix, 0}},
    {Kind::Isbn, {"979-0-2600-0043-8", "", Code::IsbnPrefix, 4}},
    {Kind::Isbn, {"X804429570", "", Code::IsbnCharacter, 0}},
    {Kind::Isbn, {"978807367313X", "", Code::IsbnCharacter, 12}},
    {Kind::Isbn, {"080442957Y", "", Code::IsbnCharacter, 9}},
};

TEST(Payments, AreReadAsWrittenOrRefusedWithReasonAndPosition) {
  for (const KindRow& row : kPaymentRows) test::ExpectKind(row);
}

struct AccountRow {
  std::string_view account;
  std::string_view iban;
};
// As banks print both.
const AccountRow kAccounts[] = {
    {"19-2000145399/0800", "CZ65 0800 0000 1920 0014 5399"},
    {"1011038930/5500", "CZ94 5500 0000 0010 1103 8930"},
};

TEST(Account, BecomesAnIbanAndComesBack) {
  for (const AccountRow& row : kAccounts) {
    const Account account = ParseAccount(row.account).value;
    EXPECT_EQ(Format(IbanOf(account)).View(), row.iban);
    EXPECT_EQ(ParseIban(row.iban).value, IbanOf(account));
    EXPECT_EQ(AccountOf(ParseIban(row.iban).value), account);
    EXPECT_EQ(Format(account).View(), row.account);
  }
  EXPECT_FALSE(AccountOf(ParseIban(std::string_view("SK3112000000198742637541")).value));
}

// Every tenth number of ten digits that passes: its IBAN passes, and gives it back.
TEST(Account, EveryAccountHasAnIban) {
  std::uint64_t state = 1;
  int tried = 0;
  while (tried < 2000) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    FixedText<22> text;
    text.AppendNumber(state >> 20 & 0xFFFF, 1);
    text.Append('-');
    text.AppendNumber(state % 10'000'000'000, 2);
    text.Append("/0800");
    const auto parsed = ParseAccount(text.View());
    if (!parsed) continue;
    ++tried;
    const auto iban = ParseIban(IbanOf(parsed.value).text.View());
    ASSERT_TRUE(iban) << text.View();
    ASSERT_EQ(AccountOf(iban.value), parsed.value) << text.View();
  }
}

// Every digit of an account is held by a sum of its own, but the bank code.
TEST(Account, EachDigitChangedOnceIsReported) {
  const std::string right = "19-2000145399";
  for (std::size_t i = 0; i < right.size(); ++i) {
    for (char digit = '0'; digit <= '9'; ++digit) {
      if (right[i] == '-' || right[i] == digit) continue;
      std::string changed = right + "/0800";
      changed[i] = digit;
      EXPECT_FALSE(ParseAccount(std::string_view(changed))) << changed;
    }
  }
}

TEST(Iban, EachCharacterChangedOnceIsReported) {
  const std::string right = "CZ6508000000192000145399";
  for (std::size_t i = 0; i < right.size(); ++i) {
    for (const char other : std::string_view("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ")) {
      if (right[i] == other) continue;
      std::string changed = right;
      changed[i] = other;
      EXPECT_FALSE(ParseIban(std::string_view(changed))) << changed;
    }
  }
}

struct BookRow {
  std::string_view isbn;
  std::string_view usual;
};
const BookRow kBooks[] = {
    {"9788073673130", "978-80-7367-313-0"},
    {"8020009809", "80-200-0980-9"},
    {"0306406152", "0-306-40615-2"},
    {"080442957X", "0-8044-2957-X"},
    {"9791090636071", "979-10-90636-07-1"},
    {"9780471117094", "978-0-471-11709-4"},
    {"1857982185", "1-85798-218-5"},
    // No group 978-69.
    {"9786900000000", "9786900000000"},
};

TEST(Isbn, IsSpelledWithHyphens) {
  for (const BookRow& row : kBooks) {
    const Isbn isbn{Fixed<13>(row.isbn)};
    EXPECT_EQ(Format(isbn).View(), row.usual);
  }
}

TEST(Isbn, BecomesThirteenDigits) {
  EXPECT_EQ(ToIsbn13(ParseIsbn(std::string_view("1-85798-218-5")).value).text.View(), "9781857982183");
  EXPECT_EQ(ToIsbn13(ParseIsbn(std::string_view("9788073673130")).value).text.View(), "9788073673130");
}

TEST(PostCode, IsSpelledInTwoGroups) {
  EXPECT_EQ(Respell(Kind::PostCode, std::string_view("11000")).value.View(), "110 00");
}

}  // namespace
}  // namespace ravo::czech
