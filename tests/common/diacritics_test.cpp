#include "support/windows_1250.h"
#include <ravo/common/diacritics.h>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

using test::FromWindows1250;
using test::ToWindows1250;

TEST(RemoveDiacritics, CzechText) {
  EXPECT_EQ(RemoveDiacritics(ToWindows1250(u"Příliš žluťoučký kůň")), "Prilis zlutoucky kun");
  EXPECT_EQ(RemoveDiacritics(""), "");
}

TEST(RemoveDiacritics, LettersThatTheTableLacksStay) {
  for (const std::u16string_view text : {u"Ď", u"ď", u"Ó", u"ó", u"Ů", u"ä", u"Ľ", u"ő", u"Ł", u"€"}) {
    EXPECT_EQ(FromWindows1250(RemoveDiacritics(ToWindows1250(text))), text);
  }
  EXPECT_EQ(FromWindows1250(RemoveDiacritics(ToWindows1250(u"Ďábel"))), u"Ďabel");
}

TEST(RemoveDiacritics, EveryByte) {
  constexpr std::u16string_view letters = u"ŠŤŽšťžÁČÉĚÍŇŘÚÝáčéěíňřůúý";
  constexpr std::string_view bases = "STZstzACEEINRUYaceeinruuy";
  static_assert(letters.size() == 25 && bases.size() == 25);
  for (int value = 0; value < 256; ++value) {
    const std::string byte(1, static_cast<char>(value));
    const std::size_t letter = letters.find(FromWindows1250(byte));
    const std::string expected = letter == letters.npos ? byte : std::string(1, bases[letter]);
    EXPECT_EQ(RemoveDiacritics(byte), expected) << value;
  }
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
