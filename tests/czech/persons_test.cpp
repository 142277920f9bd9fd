// Tax numbers and birth numbers.
#include "czech/kind_rows.h"
#include <ravo/czech/birth_number.h>
#include <ravo/czech/dic.h>

#include <string>
#include <string_view>

namespace ravo::czech {
namespace {

using test::KindRow;

const KindRow kPersonRows[] = {
    // Published hard cases.
    {Kind::BirthNumber, {"8801251680", "8801251680"}},
    {Kind::Dic, {"CZ682127228", "CZ682127228"}},
    {Kind::Dic, {"CZ687836437", "CZ687836437"}},
    {Kind::Dic, {"CZ681208919", "CZ681208919"}},
    {Kind::Dic, {"CZ27082440", "CZ27082440"}},
    {Kind::Dic, {"CZ699004029", "CZ699004029"}},
    {Kind::Dic, {"CZ699000899", "CZ699000899"}},
    {Kind::Dic, {"CZ699004237", "CZ699004237"}},
    {Kind::Dic, {"CZ25123891", "CZ25123891"}},
    {Kind::Dic, {"CZ7103192745", "CZ7103192745"}},
    {Kind::Dic, {"CZ640903926", "CZ640903926"}},
    {Kind::Dic, {"CZ991231123", "CZ991231123"}},
    // As people write them.
    {Kind::Dic, {"DIČ: CZ 699 004 237", "CZ699004237"}},
    {Kind::Dic, {"dič cz27082440", "CZ27082440"}},
    {Kind::Dic, {"CZ710319/2745", "CZ7103192745"}},
    {Kind::Dic, {"VAT ID: CZ27082440", "CZ27082440"}},
    {Kind::BirthNumber, {"r. č.: 880125 / 1680", "8801251680"}},
    {Kind::BirthNumber, {"Rodné číslo 710319/2745", "7103192745"}},
    {Kind::BirthNumber, {"RČ 710319\u00a02745", "7103192745"}},
    // Both lengths, and what is added to the month.
    {Kind::BirthNumber, {"991231123", "991231123"}},
    {Kind::BirthNumber, {"531231000", "531231000"}},
    {Kind::BirthNumber, {"0002291113", "0002291113"}},  // 29 February 2000
    {Kind::BirthNumber, {"8551011238", "8551011238"}},
    {Kind::BirthNumber, {"0421011239", "0421011239"}},
    {Kind::BirthNumber, {"0471314569", "0471314569"}},
    {Kind::BirthNumber, {"5401010000", "5401010000"}},
    // Refusals.
    {Kind::BirthNumber, {"", "", Code::BirthNumberEmpty, 0}},
    {Kind::BirthNumber, {"710319/274", "", Code::BirthNumberLength, 10}},  // nine digits, born 1971
    {Kind::BirthNumber, {"540101123", "", Code::BirthNumberLength, 9}},
    {Kind::BirthNumber, {"590312/123", "", Code::BirthNumberLength, 10}},
    {Kind::BirthNumber, {"710319/27455", "", Code::BirthNumberLength, 11}},
    {Kind::BirthNumber, {"71031927455", "", Code::BirthNumberLength, 10}},
    {Kind::BirthNumber, {"71031", "", Code::BirthNumberLength, 5}},
    {Kind::BirthNumber, {"7103192746", "", Code::BirthNumberChecksum, 9}},
    {Kind::BirthNumber, {"710319/2746", "", Code::BirthNumberChecksum, 10}},
    {Kind::BirthNumber, {"1103492745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"0102291112", "", Code::BirthNumberDate, 2}},  // 29 February 2001
    {Kind::BirthNumber, {"7100012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7113012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7120012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7133012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7141012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7150012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7163012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7170012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7183012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"7191012745", "", Code::BirthNumberDate, 2}},
    {Kind::BirthNumber, {"532101123", "", Code::BirthNumberDate, 2}},  // no second series before 1954
    {Kind::BirthNumber, {"71031/92745", "", Code::BirthNumberCharacter, 5}},
    {Kind::BirthNumber, {"710319//2745", "", Code::BirthNumberCharacter, 7}},
    {Kind::BirthNumber, {"710319/27/5", "", Code::BirthNumberCharacter, 9}},
    {Kind::BirthNumber, {"710319-2745", "", Code::BirthNumberCharacter, 6}},
    {Kind::Dic, {"", "", Code::DicEmpty, 0}},
    {Kind::Dic, {"27082440", "", Code::DicCountry, 0}},
    {Kind::Dic, {"DIČ: 27082440", "", Code::DicCountry, 5}},
    {Kind::Dic, {"DE123456789", "", Code::DicCountry, 0}},
    {Kind::Dic, {"SK2020273893", "", Code::DicCountry, 0}},
    {Kind::Dic, {"CZ2708244", "", Code::DicLength, 9}},
    {Kind::Dic, {"CZ", "", Code::DicLength, 2}},
    {Kind::Dic, {"CZ71031927455", "", Code::DicLength, 12}},
    {Kind::Dic, {"CZ7103192745555", "", Code::DicLength, 12}},
    {Kind::Dic, {"CZ710319/27455", "", Code::DicLength, 13}},
    {Kind::Dic, {"CZ590312123", "", Code::DicLength, 11}},
    {Kind::Dic, {"CZ27082441", "", Code::DicChecksum, 9}},
    {Kind::Dic, {"CZ99999999", "", Code::DicFirst, 2}},
    {Kind::Dic, {"CZ640903927", "", Code::DicChecksum, 10}},
    {Kind::Dic, {"CZ1103492745", "", Code::DicDate, 4}},
    {Kind::Dic, {"CZ710319/2746", "", Code::DicChecksum, 12}},
    {Kind::Dic, {"CZ270824/40", "", Code::DicCharacter, 8}},
    {Kind::Dic, {"CZ27/082440", "", Code::DicCharacter, 4}},
    {Kind::Dic, {"CZ710319//2745", "", Code::DicCharacter, 9}},
    {Kind::Dic, {"CZ2708244O", "", Code::DicCharacter, 9}},
    {Kind::Dic, {"CZ-27082440", "", Code::DicCharacter, 2}},
    // Foreign numbers by form.
    {Kind::VatNumber, {"CZ27082440", "CZ27082440"}},
    {Kind::VatNumber, {"CZ27082441", "", Code::DicChecksum, 9}},
    {Kind::VatNumber, {"ATU12345678", "ATU12345678"}},
    {Kind::VatNumber, {"BE 0123.456.789", "BE0123456789"}},
    {Kind::VatNumber, {"BE1123456789", "BE1123456789"}},
    {Kind::VatNumber, {"BG123456789", "BG123456789"}},
    {Kind::VatNumber, {"BG1234567890", "BG1234567890"}},
    {Kind::VatNumber, {"CY12345678L", "CY12345678L"}},
    {Kind::VatNumber, {"DE 123 456 789", "DE123456789"}},
    {Kind::VatNumber, {"DK12 34 56 78", "DK12345678"}},
    {Kind::VatNumber, {"EE123456789", "EE123456789"}},
    {Kind::VatNumber, {"EL123456789", "EL123456789"}},
    {Kind::VatNumber, {"ESX12345678", "ESX12345678"}},
    {Kind::VatNumber, {"ES12345678X", "ES12345678X"}},
    {Kind::VatNumber, {"ESX1234567X", "ESX1234567X"}},
    {Kind::VatNumber, {"FI12345678", "FI12345678"}},
    {Kind::VatNumber, {"FR40 303 265 045", "FR40303265045"}},
    {Kind::VatNumber, {"FRAB303265045", "FRAB303265045"}},
    {Kind::VatNumber, {"HR12345678901", "HR12345678901"}},
    {Kind::VatNumber, {"HU12345678", "HU12345678"}},
    {Kind::VatNumber, {"IE1234567FA", "IE1234567FA"}},
    {Kind::VatNumber, {"IE6433435F", "IE6433435F"}},
    {Kind::VatNumber, {"IE8Z49289F", "IE8Z49289F"}},
    {Kind::VatNumber, {"IE9+12345A", "IE9+12345A"}},
    {Kind::VatNumber, {"IT12345678901", "IT12345678901"}},
    {Kind::VatNumber, {"LT123456789", "LT123456789"}},
    {Kind::VatNumber, {"LT123456789012", "LT123456789012"}},
    {Kind::VatNumber, {"LU12345678", "LU12345678"}},
    {Kind::VatNumber, {"LV12345678901", "LV12345678901"}},
    {Kind::VatNumber, {"MT12345678", "MT12345678"}},
    {Kind::VatNumber, {"NL004495445B01", "NL004495445B01"}},
    {Kind::VatNumber, {"PL1234567890", "PL1234567890"}},
    {Kind::VatNumber, {"PT123456789", "PT123456789"}},
    {Kind::VatNumber, {"RO12", "RO12"}},
    {Kind::VatNumber, {"RO1234567890", "RO1234567890"}},
    {Kind::VatNumber, {"SE123456789001", "SE123456789001"}},
    {Kind::VatNumber, {"SI12345678", "SI12345678"}},
    {Kind::VatNumber, {"SK2020273893", "SK2020273893"}},
    {Kind::VatNumber, {"DIČ: SK2020273893", "SK2020273893"}},
    {Kind::VatNumber, {"", "", Code::VatEmpty, 0}},
    {Kind::VatNumber, {"27082440", "", Code::VatCountry, 0}},
    {Kind::VatNumber, {"GB123456789", "", Code::VatCountry, 0}},
    {Kind::VatNumber, {"GR123456789", "", Code::VatCountry, 0}},
    {Kind::VatNumber, {"D", "", Code::VatCountry, 0}},
    {Kind::VatNumber, {"DE12345678", "", Code::VatLength, 10}},
    {Kind::VatNumber, {"DE1234567890", "", Code::VatLength, 11}},
    {Kind::VatNumber, {"DE 1234567890123456", "", Code::VatLength, 12}},
    {Kind::VatNumber, {"DE12345678A", "", Code::VatForm, 10}},
    {Kind::VatNumber, {"ATX12345678", "", Code::VatForm, 2}},
    {Kind::VatNumber, {"FRIO303265045", "", Code::VatForm, 2}},
    {Kind::VatNumber, {"ES123456789", "", Code::VatForm, 10}},
    {Kind::VatNumber, {"NL004495445A01", "", Code::VatForm, 11}},
    {Kind::VatNumber, {"BE2123456789", "", Code::VatForm, 2}},
    {Kind::VatNumber, {"DE12345/789", "", Code::VatCharacter, 7}},
};

TEST(Persons, AreReadAsWrittenOrRefusedWithReasonAndPosition) {
  for (const KindRow& row : kPersonRows) test::ExpectKind(row);
}

struct BirthRow {
  std::string_view text;
  DateParts born;
  Sex sex;
  bool second_series;
  bool remainder_ten;
};
const BirthRow kBirths[] = {
    {"7103192745", {1971, 3, 19}, Sex::Male, false, false},
    {"8801251680", {1988, 1, 25}, Sex::Male, false, true},
    {"8551011238", {1985, 1, 1}, Sex::Female, false, false},
    {"0421011239", {2004, 1, 1}, Sex::Male, true, false},
    {"0471314569", {2004, 1, 31}, Sex::Female, true, false},
    {"5401010000", {1954, 1, 1}, Sex::Male, false, true},
    {"991231123", {1899, 12, 31}, Sex::Male, false, false},
    {"531231000", {1953, 12, 31}, Sex::Male, false, false},
    {"536231000", {1953, 12, 31}, Sex::Female, false, false},
    {"800101000", {1880, 1, 1}, Sex::Male, false, false},
    {"5301010011", {2053, 1, 1}, Sex::Male, false, false},
    {"0002291113", {2000, 2, 29}, Sex::Male, false, false},
};

TEST(BirthNumber, TellsDateAndSex) {
  for (const BirthRow& row : kBirths) {
    const auto parsed = ParseBirthNumber(row.text);
    ASSERT_TRUE(parsed) << row.text;
    EXPECT_EQ(parsed.value.born, row.born) << row.text;
    EXPECT_EQ(parsed.value.sex, row.sex) << row.text;
    EXPECT_EQ(parsed.value.second_series, row.second_series) << row.text;
    EXPECT_EQ(parsed.value.remainder_ten, row.remainder_ten) << row.text;
  }
}

TEST(BirthNumber, IsOfTheFutureOnlyOnADayThatIsGiven) {
  const auto number = ParseBirthNumber(std::string_view("5301010011")).value;
  EXPECT_EQ(CheckBorn(number, DayOf({2026, 11, 21})), Code::BirthNumberFuture);
  EXPECT_EQ(CheckBorn(number, DayOf({2052, 12, 31})), Code::BirthNumberFuture);
  EXPECT_EQ(CheckBorn(number, DayOf({2053, 1, 1})), Code::Correct);
}

TEST(BirthNumber, IsSpelledWithASlash) {
  EXPECT_EQ(Format(ParseBirthNumber(std::string_view("8801251680")).value).View(), "880125/1680");
  EXPECT_EQ(Format(ParseBirthNumber(std::string_view("991231123")).value).View(), "991231/123");
}

TEST(Dic, TellsWhoseItIs) {
  const auto form = [](std::string_view text) { return ParseDic(text).value.form; };
  EXPECT_EQ(form("CZ27082440"), DicForm::LegalEntity);
  EXPECT_EQ(form("CZ7103192745"), DicForm::BirthNumber);
  EXPECT_EQ(form("CZ991231123"), DicForm::BirthNumber);
  EXPECT_EQ(form("CZ640903926"), DicForm::Special);
  EXPECT_EQ(form("CZ699004029"), DicForm::Group);
}

}  // namespace
}  // namespace ravo::czech
