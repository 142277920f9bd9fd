#include <ravo/RavoBaseConstants.h>
#include <ravo/RavoBoxConstants.h>
#include <ravo/RavoDCFConstants.h>
#include <ravo/RavoRSSConstants.h>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using RavoBaseConstants::GetBaseTableCachedFields;

TEST(GetBaseTableCachedFields, Rows) {
  struct Row {
    std::u16string_view table;
    std::u16string_view fields;
  };
  constexpr Row rows[] = {
      {u"Doklad", u"PZ,ZADAT_PAR_ZNAK,ZADAT_DOKLAD2,DOKLAD_POSTFIX,MENA_UID"},
      {u"SkupinaDPH", u"UCET_DPH_Z,UCET_DPH_S,JED_DAN_DOKLAD"},
      {u"SkupinaMimoDPH", u"UCET_MD,UCET_D"},
      {u"mena", u""},
      {u"MENA", u""},
      {u"Mena ", u""},
      {u"Men", u""},
      {u"", u""},
      {u"Sklad", u""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(GetBaseTableCachedFields(row.table), row.fields);
    std::u16string result;
    GetBaseTableCachedFields(row.table, result);
    EXPECT_EQ(result, row.fields);
  }
}

TEST(GetBaseTableCachedFields, AnswersMenaWithItsFirstRow) {
  EXPECT_EQ(GetBaseTableCachedFields(u"Mena"), u"STAT_UID");
}

TEST(GetBaseTableCachedFields, LeavesTheOutputOfAnUnknownTableAsItIs) {
  std::u16string result = u"preset";
  GetBaseTableCachedFields(u"mena", result);
  EXPECT_EQ(result, u"preset");
  GetBaseTableCachedFields(u"Mena", result);
  EXPECT_EQ(result, u"STAT_UID");
}

TEST(TableCachedFields, OfRssDatabankAndBoxAreEmpty) {
  for (const std::u16string_view table : {u"Mena", u"Doklad", u"SkupinaDPH", u"SkupinaMimoDPH", u"", u"x"}) {
    EXPECT_EQ(RavoRSSConstants::GetRSSTableCachedFields(table), u"");
    EXPECT_EQ(RavoDCFConstants::GetDCFTableCachedFields(table), u"");
    EXPECT_EQ(RavoBoxConstants::GetBoxTableCachedFields(table), u"");
  }
}

}  // namespace
}  // namespace ravo
