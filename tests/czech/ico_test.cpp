#include "czech/spellings.h"
#include <ravo/czech/ico.h>

#include <string>

namespace ravo::czech {
namespace {

using test::SpellingRow;

const SpellingRow kIcoRows[] = {
    // Published numbers.
    {"27082440", "27082440"},
    {"27074358", "27074358"},
    {"00006947", "00006947"},  // the ministry of finance
    {"04625781", "04625781"},
    // Remainders 0 and 1 of the sum.
    {"00000001", "00000001"},
    {"00000060", "00000060"},
    // As people write them.
    {"IČ: 046 25 781", "04625781"},
    {"ičo 27082440", "27082440"},
    {"IČO:27082440", "27082440"},
    {"I\u010c.\u00a0270\u202f82\u2009440 ", "27082440"},
    {"IC\u030cO: 27082440", "27082440"},
    {"\t27082440\r\n", "27082440"},
    {"\ufeff27082440", "27082440"},
    // Refusals.
    {"", "", Code::IcoEmpty, 0},
    {"  ", "", Code::IcoEmpty, 2},
    {"IČO:", "", Code::IcoEmpty, 4},
    {"2708244", "", Code::IcoLength, 7},
    {"270824400", "", Code::IcoLength, 8},
    {"27082441", "", Code::IcoChecksum, 7},
    {"IČ: 046 25 782", "", Code::IcoChecksum, 13},
    {"00000000", "", Code::IcoChecksum, 7},
    {"27082440 s.r.o.", "", Code::IcoCharacter, 9},
    {"DIČ: 27082440", "", Code::IcoCharacter, 0},
    {"2708244O", "", Code::IcoCharacter, 7},
    {"270\u00a08\u00d724", "", Code::IcoCharacter, 5},
    {"CZ27082440", "", Code::IcoCharacter, 0},
};

TEST(Ico, IsReadAsWrittenOrRefusedWithReasonAndPosition) {
  for (const SpellingRow& row : kIcoRows) {
    test::ExpectSpelling(
        row, [](auto text) { return ParseIco(text); }, [](const Ico& ico) { return Format(ico); });
  }
}

// The weights are prime to 11 and differ: no wrong digit and no exchange of neighbours passes by chance, but
// for the check digits 0 and 1 that stand for two remainders each.
TEST(Ico, EachDigitChangedOnceIsReported) {
  const std::string right = "27082440";
  for (std::size_t i = 0; i < right.size(); ++i) {
    for (char digit = '0'; digit <= '9'; ++digit) {
      std::string changed = right;
      changed[i] = digit;
      EXPECT_EQ(static_cast<bool>(ParseIco(std::string_view(changed))), digit == right[i]) << changed;
    }
  }
}

TEST(Ico, RefusesIllFormedUnits) {
  EXPECT_EQ(ParseIco(std::string_view("2708\xff")).position, 4U);
  EXPECT_EQ(ParseIco(std::string_view("2708\xc2")).code, Code::IcoCharacter);
  EXPECT_EQ(ParseIco(std::string_view("2708\xe2\x80")).code, Code::IcoCharacter);
  EXPECT_EQ(ParseIco(std::u16string_view(u"2708\xd800")).position, 4U);
}

TEST(Ico, TakesNoUnitsFromNowhere) {
  EXPECT_EQ(ParseIco(std::string_view()).code, Code::IcoEmpty);
  EXPECT_EQ(ParseIco(std::u16string_view()).code, Code::IcoEmpty);
}

}  // namespace
}  // namespace ravo::czech
