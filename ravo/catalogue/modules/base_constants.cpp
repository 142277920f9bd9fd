#include <ravo/catalogue/modules/base_constants.h>

#include <algorithm>
#include <iterator>

namespace ravo::RavoBaseConstants {
namespace {

struct CachedFields {
  std::u16string_view table;
  std::u16string_view fields;
};

// If a name occurs twice, its first row is used.
constexpr CachedFields kCachedFields[] = {
    {u"Mena", u"STAT_UID"},
    // Kept: no look-up finds the second row of "Mena": the first one hides it. Test:
    // GetBaseTableCachedFields.AnswersMenaWithItsFirstRow
    {u"Mena", u"ZADAT_FIRMU,SKUPINA_DPH_UID"},
    {u"Doklad", u"PZ,ZADAT_PAR_ZNAK,ZADAT_DOKLAD2,DOKLAD_POSTFIX,MENA_UID"},
    {u"SkupinaDPH", u"UCET_DPH_Z,UCET_DPH_S,JED_DAN_DOKLAD"},
    {u"SkupinaMimoDPH", u"UCET_MD,UCET_D"},
};

}  // namespace

std::u16string GetBaseTableCachedFields(std::u16string_view table) {
  std::u16string result;
  GetBaseTableCachedFields(table, result);
  return result;
}

// Kept: for an unknown table the result keeps the text that the caller passed in. Test:
// GetBaseTableCachedFields.LeavesTheOutputOfAnUnknownTableAsItIs
void GetBaseTableCachedFields(std::u16string_view table, std::u16string& result) {
  const auto* row = std::ranges::find(kCachedFields, table, &CachedFields::table);
  if (row != std::end(kCachedFields)) result = row->fields;
}

}  // namespace ravo::RavoBaseConstants
