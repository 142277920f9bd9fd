#include <ravo/common/descriptions.h>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

TEST(AdresaExpand, SplitsStreetAndNumber) {
  struct Row {
    std::u16string_view address, street, number;
  };
  constexpr Row rows[] = {
      {u"Nádražní 1234/5", u"Nádražní", u"1234/5"},
      {u"Dlouhá 12a", u"Dlouhá 12a", u""},
      {u"Na Příkopě XIV", u"Na Příkopě", u"XIV"},
      {u"Na Příkopě xiv", u"Na Příkopě", u"xiv"},
      {u"Hlavní", u"Hlavní", u""},
      {u"   ", u"", u""},
      {u"", u"", u""},
      {u"Lipová 12-14", u"Lipová", u"12-14"},
      {u"Lipová 12\\14", u"Lipová", u"12\\14"},
      {u"Lipová 99999999999", u"Lipová 99999999999", u""},
      {u"Lipová 2147483647", u"Lipová", u"2147483647"},
      {u"Lipová 2147483648", u"Lipová 2147483648", u""},
      {u"Lipová  7", u"Lipová ", u"7"},
      {u" \tLipová 7\r\n", u"Lipová", u"7"},
      {u"Lipová $1F", u"Lipová", u"$1F"},
      {u"Lipová +7", u"Lipová", u"+7"},
      {u"Lipová -7", u"Lipová", u"-7"},
      {u"Lipová /", u"Lipová", u"/"},
      {u"Lipová MDC", u"Lipová MDC", u""},
      {u"Lipová\u00A07", u"Lipová\u00A07", u""},
      {u"7 12", u"7", u"12"},
      {u"12", u"12", u""},
  };
  for (const Row& row : rows) {
    std::u16string street = u"old", number = u"old";
    AdresaExpand(row.address, street, number);
    EXPECT_EQ(street, row.street);
    EXPECT_EQ(number, row.number);
  }
}

TEST(DokladDescription, JoinsPrefixNumberAndSuffix) {
  EXPECT_EQ(DokladDescription(u" FV", u"0012 ", u""), u"FV0012");
  EXPECT_EQ(DokladDescription(u"FV", u"0012", u"2010"), u"FV0012/2010");
  EXPECT_EQ(DokladDescription(u"FV", u"0012", u" 2010 "), u"FV0012/2010");
  EXPECT_EQ(DokladDescription(u"FV", u"0012", u" \t"), u"FV0012");
  EXPECT_EQ(DokladDescription(u"", u"", u"2010"), u"/2010");
  EXPECT_EQ(DokladDescription(u"", u"", u""), u"");
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
